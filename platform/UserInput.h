#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/Window.h"

// What the user does, told to the model in one way for every platform. Whatever reaches a control,
// by mouse, key or assistive tool, comes by the same road: the control must be there to be used,
// the box that has the focus in its window is checked, the focus moves if the control takes it, a
// refusal voids all that would follow, and only then values change and handlers run.

/// Runs one event's handlers. A fault is told here, once, and ends the program; the end of the
/// program stops here.
void prcDispatch(const std::function<void()>& handlers);

/// Whether a mouse button can click a control: a label answers any, as chips are given and taken by
/// it, other kinds the left one.
bool fncClicksWith(const Control& control, int button);

/// The road itself: a set-focus from outside, and the beginning of everything else. Returns whether
/// the control may be used; if not, nothing more may follow.
bool fncUserReach(Control& control);

/// A button goes down on a control. Returns whether the press stands; if not, nothing of the click
/// may follow.
bool fncUserPress(Control& control, const Mouse& mouse);

/// The pointer moves over a control, or anywhere while a press on it is held. Its window is told
/// first if it has come to the control across bare ground.
void prcUserMove(Control& control, const Mouse& mouse);
/// The pointer moves over a window's bare ground.
void prcUserMove(Window& window, const Mouse& mouse);

/// The button of a press comes up; blnInside says that it does over the control, which makes it a
/// click: a check box or check button turns over, an option or group button goes down and its
/// fellows come up, and the Click handler runs.
void prcUserRelease(Control& control, const Mouse& mouse, bool blnInside);

/// A whole click without a mouse, by key, menu or assistive tool: that of the left button.
void prcUserClick(Control& control);

/// The text of a box as the user has left it, typed, pasted or set by an assistive tool; what its
/// mask does not admit is dropped.
void prcUserText(Control& box, std::string_view text);

/// A scroll bar or slider is moved to a value.
void prcUserValue(Control& control, double value);

/// The user or the system asks a window to close, which leaves the box that has its focus: a
/// refusal keeps the window.
void prcUserClose(Window& window);

/// Whether a control and all that holds it, its window too, is visible.
bool fncSeen(const Control& control);

/// Whether a control and all that holds it is enabled.
bool fncUsable(const Control& control);

/// Shows help on what has the focus in a window; the program's start sets it.
extern void (*prcUserHelp)(const Window& window);

/// The Tab key: the focus goes to the next control in the order of the stack behind the focused
/// one, or before it. Returns whether it got there.
bool fncUserTab(Window& window, bool blnBackwards);
