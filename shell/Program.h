#pragma once

/// Puts the game's state to its start, prepares all windows and loads the start screen. Where a
/// second instance is started, the first has been brought to the front and False comes back.
bool fncStartProgram();
