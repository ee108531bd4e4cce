#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/Window.h"

// What the user does, told to the model in one way for every platform: the value is written into
// the control, then the handlers run, with the rules of focus that all windows share.

/// Runs one event's handlers. A fault that no procedure has told is told here; the end of the
/// program stops here.
void prcDispatch(const std::function<void()>& handlers);

/// A button goes down on a control. The box that has the focus is checked first, and the focus
/// moves if the control takes it. Returns whether the press stands; if not, nothing of the click
/// may follow.
bool fncUserPress(Control& control, const Mouse& mouse);

/// The pointer moves over a control, or anywhere while a press on it is held.
void prcUserMove(Control& control, const Mouse& mouse);

/// The button of a press comes up; blnInside says that it does over the control, which makes it a
/// click.
void prcUserRelease(Control& control, const Mouse& mouse, bool blnInside);

/// A click as such, by mouse, key or screen reader: a check box or check button turns over, an
/// option or group button goes down and its fellows come up, and the Click handler runs. A hidden
/// or disabled control is left alone.
void prcUserClick(Control& control);

/// The text of a box as the user has left it; what its mask does not admit is dropped.
void prcUserText(Control& box, std::string_view text);

/// A scroll bar or slider is moved to a value.
void prcUserValue(Control& control, double value);

/// The user or the system asks a window to close.
void prcUserClose(Window& window);

/// Whether a control and all that holds it, its window too, is visible.
bool fncSeen(const Control& control);

/// Whether a control and all that holds it is enabled.
bool fncUsable(const Control& control);

/// The next control in Tab order behind the focused one, or before it; none if the window has no
/// stop.
Control* fncNextStop(const Window& window, bool blnBackwards);
