#pragma once

#include "platform/qt/windows/Screen.h"

// The widgets that stand for windows, and where windows lie.

namespace qt {

/// Makes the widgets of a window, not yet shown.
void prcMakeWindow(WindowView& view);

/// Brings a window's place, looks and visibility to what the model says, and its inner size into
/// the model.
void prcSyncWindow(WindowView& view);

/// The user or the window manager has moved or sized a window: its place goes into the model.
/// Returns whether its resize handler is due.
bool fncWindowMoved(WindowView& view);

/// Lets the keyboard focus follow the model: the active control of the active window.
void prcFollowActive();

/// A top-level window that goes leaves the input to the frame: where the window manager would give
/// it to another small one, the keys of the game were dead.
void prcHandOn(const QWidget& shell);

}  // namespace qt
