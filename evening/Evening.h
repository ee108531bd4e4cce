#pragma once

/// Ties the evening to the game: its hooks and its menu. Called once at the start of the program,
/// before the frame loads; nothing of an earlier evening is left.
void prcStartEvening();
