#pragma once

#include "platform/qt/windows/Screen.h"

// The widgets that stand for windows, and where windows lie.

namespace qt {

void prcMakeWindow(WindowView& view);
void prcDropWindow(WindowView& view);

/// Brings a window's place, looks and visibility to what the model says, and its inner size into
/// the model.
void prcSyncWindow(WindowView& view);

/// The user or the window manager has moved or sized a window: its place goes into the model, and
/// its resize handler runs if it is due.
void prcWindowMoved(WindowView& view);

/// Lets the keyboard focus follow the model: the active control of the active window.
void prcFollowActive();

/// A top-level window that goes leaves the input to the frame: where the window manager would give
/// it to another small one, the keys of the game were dead.
void prcHandOn(const QWidget& shell);

/// Makes the window the one that has the input, on the screen and in the model.
void prcBringUp(Window& window);

/// The next visible child of the frame or floating window behind the active one, in the order of
/// their loading; none if there is no other.
Window* fncNextChild();

}  // namespace qt
