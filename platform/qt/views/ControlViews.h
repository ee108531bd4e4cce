#pragma once

#include "platform/qt/windows/Screen.h"

// The widgets that stand for controls, kind by kind.

namespace qt {

/// Makes the widget, timer or action of a view below parent and dresses it as its control says.
void prcMakeControl(ControlView& view, QWidget* parent);

/// Brings a view to what its control says now, in all its sizes anew where the scale is another.
void prcUpdateControl(ControlView& view, const Control& control);

/// Puts a control's widget above its neighbours.
void prcRaiseControl(ControlView& view);

/// The focus of a window has moved within the model: boxes with a mask change how they show their
/// number, and the focused one selects as its SelLength says.
void prcShowFocusTexts(WindowView& home);

}  // namespace qt
