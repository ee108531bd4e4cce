#pragma once

#include "platform/qt/windows/Screen.h"

// The widgets that stand for windows, and where windows lie.

namespace qt {

/// Makes the widgets of a window, not yet shown.
void prcMakeWindow(WindowView& view);

/// Brings a window's place, looks and visibility to what the model says, and its inner size into
/// the model.
void prcSyncWindow(WindowView& view);

/// The place of a window's outer edges on the screen; a child's in the field of its frame. Pixels.
QRect fncOuterPlace(const WindowView& view);

/// Makes the ground of a frame that is too small for what it holds large enough to be scrolled.
void prcFitField();

/// After a change of the scale: the frame is as large as before in pixels, and the windows that
/// stand beside it keep their distance from its corner in twips.
void prcKeepPlaces(double before);

/// The frame is no longer maximised: one that has never had a smaller size gets one that shows it,
/// in the middle of the desk, or where the hand that is dragging it lets it go.
void prcRestoreFrame(QWidget& shell, bool blnDragged = false);

/// The user or the window manager has moved or sized a window: its place goes into the model.
/// Returns whether the screen is to follow: its resize handler is due, or it is the frame.
bool fncWindowMoved(WindowView& view);

/// Lets the keyboard focus follow the model: the active control of the active window.
void prcFollowActive();

/// A top-level window that goes leaves the input to the frame: where the window manager would give
/// it to another small one, the keys of the game were dead.
void prcHandOn(const QWidget& shell);

}  // namespace qt
