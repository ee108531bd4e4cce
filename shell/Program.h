#pragma once

/// Prepares all windows and starts the program: a second instance brings the first to the front and
/// returns False.
bool fncStartProgram();
