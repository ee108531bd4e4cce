#pragma once

// Requests to close that come from outside of the program's windows.

namespace qt {

/// Asks the program to close as its user would: the frame, or the start screen where there is no
/// frame.
void prcAskClose();

/// Listens to the session manager and to the signals that end a process politely.
void prcWatchOutside();

}  // namespace qt
