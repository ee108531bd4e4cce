#pragma once

#include <QString>
#include <string>

#include "platform/Control.h"

// The texts and names of controls as the toolkit takes them.

namespace qt {

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
