#pragma once

#include "platform/Window.h"

// The comparison of the screen with the model, which runs when the event loop turns and when a
// handler has returned.

namespace qt {

/// Brings all loaded windows up to date and runs the resize handlers that are due.
void prcSyncAll();

/// The same, unless it was done less than a frame's time ago.
void prcSyncIfDue();

/// Brings one control and what it holds up to date and paints that at once.
void prcPaintNow(Control& control);

/// Takes all windows off the screen, at the end.
void prcClearScreen();

/// Gives a window the input and runs its activate handler if it is another than before.
void prcActivate(Window& window);

}  // namespace qt
