#pragma once

#include "platform/qt/windows/Screen.h"

class QAbstractButton;

// The widgets that stand for controls, kind by kind.

namespace qt {

/// Makes the widget, timer or action of a view below parent and dresses it as its control says.
void prcMakeControl(ControlView& view, QWidget* parent);

/// Brings a view to what its control says now.
void prcUpdateControl(ControlView& view, const Control& control);

/// Takes what stands for a control off the screen.
void prcDropControl(ControlView& view);

/// Tells the model of what is done to a button by other ways than mouse and keys. One that can be
/// checked is turned over by some of them without a click; which others it then releases is the
/// model's to say.
void prcConnectClick(ControlView& view, QAbstractButton& button);

/// Puts a control's widget above its neighbours.
void prcRaiseControl(ControlView& view);

/// The focus of a window has moved within the model: boxes with a mask change how they show their
/// number, and the focused one selects as its SelLength says.
void prcShowFocusTexts(WindowView& home);

/// A control as it is spoken of: its Spoken, with the text that a label shows; else its text
/// without access keys, else its tool tip.
QString fncSpokenName(const Control& control);

/// The text of a control with the toolkit's sign before its access key.
QString fncCaption(const Control& control);

/// The name of a widget: the control's, with "(index)" for an element.
QString fncObjectName(const Control& control);

/// The text of a control as the toolkit takes it.
QString fncText(const std::string& text);

}  // namespace qt
