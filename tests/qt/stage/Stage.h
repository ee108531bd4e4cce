#pragma once

#include <QApplication>
#include <QMessageBox>
#include <QWindow>
#include <functional>
#include <optional>

#include "platform/qt/looks/Scale.h"
#include "platform/qt/views/Painted.h"
#include "platform/qt/windows/Screen.h"

// What hand and eyes share: from the names of the model to what stands for them on the screen.

namespace stage {

/// The widget of a control; none where it has none or is not on the screen.
QWidget* fncWidget(const Control& control);

/// What stands for an entry in its menu, or for a button's room on its toolbar; none if nothing.
QAction* fncAction(const Control& control);

/// The widgets of a loaded window; an error where it is not on the screen.
qt::WindowView& fncView(const Window& window);

/// The first place of an area, the middle before all others, that holds says yes to.
std::optional<QPoint> fncFirst(const QRect& area, const std::function<bool(QPoint)>& holds);

/// Whether the pointer at a place within a widget is over it or what lies in it, and not over
/// another.
bool fncOver(const QWidget& widget, QPoint at);

// The hand at whatever lies there, told of a place on the screen and the top-level window that gets
// the event. Each serves what the toolkit posts meanwhile.

void prcPoint(const QWidget& window, QPoint global);
/// blnSoon makes it the second press of a double click.
void prcPress(const QWidget& window, Qt::MouseButton button, bool blnSoon = false);
void prcLift(const QWidget& window, Qt::MouseButton button);
/// Turns the wheel by notches, away from the user.
void prcTurnWheel(const QWidget& window, int notches);
/// A key to whatever window has the keyboard.
void prcKey(Qt::Key key, Qt::KeyboardModifiers modifiers = {}, const QString& text = {});
void prcTypeCharacter(char typed);

/// A text of the toolkit as the model writes it, with both signs for a line break.
std::string fncTold(QString text);

}  // namespace stage
