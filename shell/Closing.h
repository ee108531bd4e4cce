#pragma once

/// The way out of the program: stores the frame's place, closes every window in its order and ends
/// the program.
void MDIForm1_Unload();
