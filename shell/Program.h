#pragma once

/// Puts the game's state to its start, calls each window's prcPrepare... procedure, which no one
/// calls again, and loads the start screen. Where a second instance is started, the first has been
/// brought to the front and False comes back.
bool fncStartProgram();
