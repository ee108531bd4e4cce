#pragma once

#include <QAction>
#include <QPoint>
#include <QWidget>

#include "platform/Control.h"

// What window tests need beyond the scripted user they share with the other platform.

namespace real {

/// The widget of a control; the test fails by an exception where there is none.
QWidget& Widget(const Control& control);

/// What stands for an entry in its menu; an exception where there is nothing.
QAction& Action(const Control& entry);

/// The widget that holds a window's controls.
QWidget& Ground(const Window& window);

/// A key into the widget that has the focus within a window.
void Key(const Window& window, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

/// A place in twips from a control's corner, as a place on the screen.
QPoint Global(const Control& control, float x, float y);

}  // namespace real
