#include "platform/qt/input/InputRouter.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>

#include "platform/UserInput.h"
#include "platform/qt/looks/Scale.h"
#include "platform/qt/windows/Loop.h"
#include "platform/qt/windows/Screen.h"
#include "platform/qt/windows/WindowViews.h"

namespace qt {

namespace {

/// Kinds whose widget goes on with a press by itself: it places the caret, drags, or selects a row.
bool fncNative(ControlKind kind) {
  switch (kind) {
    case ControlKind::TextBox:
    case ControlKind::MaskedEdit:
    case ControlKind::ListBox:
    case ControlKind::HScrollBar:
    case ControlKind::VScrollBar:
    case ControlKind::Slider:
      return true;
    default:
      return false;
  }
}

/// Whether the mouse means something at a control; otherwise what holds it is meant.
bool fncAnswersMouse(const Control& control) {
  const ControlEvents& on = *control.On;
  if (on.Click != nullptr || on.MouseDown != nullptr || on.MouseMove != nullptr ||
      on.MouseUp != nullptr) {
    return true;
  }
  switch (control.Kind) {
    case ControlKind::Label:
    case ControlKind::Shape:
    case ControlKind::Line:
    case ControlKind::Frame:
    case ControlKind::Toolbar:
    case ControlKind::ProgressBar:
      return false;
    case ControlKind::Picture:
      return control.TabStop;
    default:
      return true;
  }
}

/// Whether a widget shows a label or picture, over which the mouse is not on bare ground though
/// nothing answers it.
bool fncCovers(const QWidget& widget) {
  const ControlView* view = fncControlViewOf(&widget);
  const Control* control = view != nullptr ? fncLive(*view) : nullptr;
  return control != nullptr &&
         (control->Kind == ControlKind::Label || control->Kind == ControlKind::Picture);
}

/// The control that the mouse means at a widget; none on bare ground.
Control* fncMeant(const QWidget& widget) {
  const ControlView* view = fncControlViewOf(&widget);
  Control* control = view != nullptr ? fncLive(*view) : nullptr;
  while (control != nullptr && !fncAnswersMouse(*control)) {
    control = control->Container;
  }
  return control;
}

int fncButton(Qt::MouseButton button) {
  switch (button) {
    case Qt::LeftButton:
      return intLeftButton;
    case Qt::RightButton:
      return intRightButton;
    case Qt::MiddleButton:
      return intMiddleButton;
    default:
      return 0;
  }
}

int fncButtons(Qt::MouseButtons buttons) {
  int held = 0;
  for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
    held |= buttons.testFlag(button) ? fncButton(button) : 0;
  }
  return held;
}

/// A place on the screen in twips from a widget's top left corner.
Mouse fncMouse(const QWidget& widget, QPointF global, int button, int shift) {
  const QPointF at = widget.mapFromGlobal(global);
  return {button, shift, static_cast<float>(fncTwips(at.x())),
          static_cast<float>(fncTwips(at.y()))};
}

QWidget* fncWidgetOf(const Control& control) {
  const ControlView* view = fncViewOf(control);
  return view != nullptr ? view->Widget.data() : nullptr;
}

void prcShowDown(QWidget* widget, bool blnDown) {
  if (auto* button = qobject_cast<QAbstractButton*>(widget); button != nullptr) {
    button->setDown(blnDown);
  }
}

/// Boxes that select their text on focus keep it selected when a click brings the focus.
bool fncKeepsSelection(const Control& control, bool blnHadFocus) {
  return !blnHadFocus && control.SelLength > 0;
}

}  // namespace

int fncShift(Qt::KeyboardModifiers modifiers) {
  return (modifiers.testFlag(Qt::ShiftModifier) ? intShiftMask : 0) |
         (modifiers.testFlag(Qt::ControlModifier) ? intCtrlMask : 0) |
         (modifiers.testFlag(Qt::AltModifier) ? intAltMask : 0);
}

InputRouter::InputRouter(QObject* parent) : QObject(parent) { qApp->installEventFilter(this); }

bool InputRouter::eventFilter(QObject* object, QEvent* event) {
  if (object->isWidgetType()) {
    return fncWidgetEvent(*static_cast<QWidget*>(object), event);
  }
  if (!object->isWindowType() || !fncHeldIsHidden()) {
    return false;
  }
  if (event->type() == QEvent::MouseMove) {
    return fncMovedOnWindow(*static_cast<QMouseEvent*>(event));
  }
  if (event->type() == QEvent::MouseButtonRelease) {
    fncReleased(*static_cast<QMouseEvent*>(event));
  }
  return false;
}

bool InputRouter::fncWidgetEvent(QWidget& widget, QEvent* event) {
  bool blnTaken = false;
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      blnTaken = fncPressed(widget, *static_cast<QMouseEvent*>(event));
      break;
    case QEvent::MouseMove:
      blnTaken = fncMoved(widget, *static_cast<QMouseEvent*>(event));
      break;
    case QEvent::MouseButtonRelease:
      blnTaken = fncReleased(*static_cast<QMouseEvent*>(event));
      break;
    case QEvent::KeyPress:
      blnTaken = fncKeyPressed(widget, *static_cast<QKeyEvent*>(event));
      break;
    case QEvent::Close:
      if (WindowView* view = fncWindowViewOf(&widget); view != nullptr && view->Shell == &widget) {
        event->ignore();
        if (Window* window = fncLive(*view); window != nullptr && !fncSyncing()) {
          prcServe([window] { prcUserClose(*window); });
        }
        return true;
      }
      break;
    case QEvent::Move:
    case QEvent::Resize:
      if (WindowView* view = fncWindowViewOf(&widget);
          view != nullptr && (view->Shell == &widget || view->Ground == &widget)) {
        if (widget.isWindow() || view->Source->Kind == WindowKind::Frame) {
          prcWindowMoved(*view);
        }
      }
      break;
    case QEvent::WindowActivate:
      // The toolkit passes it on to all children; none of them is meant.
      if (WindowView* view = fncWindowViewOf(&widget);
          view != nullptr && widget.isWindow() && view->Shell == &widget && !fncSyncing()) {
        Window* window = view->Source->Kind == WindowKind::Frame ? fncFrameInput() : view->Source;
        if (window != nullptr) {
          prcActivate(*window);
        }
      }
      break;
    default:
      break;
  }
  if (blnTaken) {
    event->accept();
  }
  return blnTaken;
}

bool InputRouter::fncPressed(QWidget& widget, const QMouseEvent& event) {
  WindowView* home = fncWindowViewOf(&widget);
  if (home == nullptr || fncLive(*home) == nullptr) {
    return false;
  }
  if (held_.Target != nullptr || swallowed_ != Qt::NoButton) {
    return !held_.blnNative;  // A second button during a press.
  }
  if (fncActiveWindow() != home->Source && home->Source->Kind != WindowKind::Frame) {
    prcBringUp(*home->Source);
  }
  Control* control = fncMeant(widget);
  return control != nullptr && fncPressControl(*control, widget, event);
}

bool InputRouter::fncPressControl(Control& control, QWidget& widget, const QMouseEvent& event) {
  QWidget* own = fncWidgetOf(control);
  if (own == nullptr) {
    return false;
  }
  held_ = {&control, control.Serial, own, event.button(), fncNative(control.Kind)};
  const bool blnHadFocus = control.Form->ActiveControl == &control;
  const Mouse mouse = fncMouse(*own, event.globalPosition(), fncButton(event.button()),
                               fncShift(event.modifiers()));
  bool blnStands = false;
  prcServe([&] { blnStands = fncUserPress(control, mouse); });
  const bool blnUp = !QGuiApplication::mouseButtons().testFlag(event.button());
  if (!blnStands || fncHeldControl() == nullptr) {
    held_ = {};
    swallowed_ = blnUp ? Qt::NoButton : event.button();
    return true;
  }
  if (blnUp) {
    // The button came up while the handlers showed something: the press leads to no click.
    prcRelease(std::exchange(held_, {}), QPointF(-1e6, -1e6), fncShift(event.modifiers()));
    return true;
  }
  if (held_.blnNative) {
    return &widget != own ? false : fncKeepsSelection(control, blnHadFocus);
  }
  if (event.button() == Qt::LeftButton) {
    prcShowDown(own, true);
  }
  return true;
}

Control* InputRouter::fncHeldControl() const {
  if (held_.Target == nullptr || held_.Widget == nullptr) {
    return nullptr;
  }
  const ControlView* view = fncControlViewOf(held_.Widget);
  Control* control = view != nullptr ? fncLive(*view) : nullptr;
  return control == held_.Target && control->Serial == held_.Serial ? control : nullptr;
}

bool InputRouter::fncHeldIsHidden() const {
  return held_.Target != nullptr && (held_.Widget == nullptr || !held_.Widget->isVisible());
}

bool InputRouter::fncMovedOnWindow(const QMouseEvent& event) {
  if (Control* control = fncHeldControl(); control != nullptr) {
    const Mouse mouse = fncMouse(*held_.Widget, event.globalPosition(), fncButtons(event.buttons()),
                                 fncShift(event.modifiers()));
    prcServe([&] { prcUserMove(*control, mouse); });
  }
  return true;
}

bool InputRouter::fncMoved(QWidget& widget, const QMouseEvent& event) {
  if (swallowed_ != Qt::NoButton) {
    return true;
  }
  if (held_.Target == nullptr) {
    return fncHovered(widget, event);
  }
  const bool blnNative = held_.blnNative;
  fncMovedOnWindow(event);
  if (held_.Widget != nullptr && held_.Button == Qt::LeftButton && !blnNative) {
    prcShowDown(held_.Widget, held_.Widget->rect().contains(
                                  held_.Widget->mapFromGlobal(event.globalPosition()).toPoint()));
  }
  return !blnNative;
}

bool InputRouter::fncHovered(QWidget& widget, const QMouseEvent& event) {
  WindowView* home = fncWindowViewOf(&widget);
  Window* window = home != nullptr ? fncLive(*home) : nullptr;
  if (window == nullptr || (home->Shell == &widget && home->Ground != &widget)) {
    return false;
  }
  const int shift = fncShift(event.modifiers());
  if (Control* control = fncMeant(widget); control != nullptr) {
    QWidget* own = fncWidgetOf(*control);
    if (own != nullptr && control->On->MouseMove != nullptr) {
      const Mouse mouse = fncMouse(*own, event.globalPosition(), 0, shift);
      prcServe([&] { prcUserMove(*control, mouse); });
    }
    return !fncNative(control->Kind);
  }
  if (fncCovers(widget)) {
    return true;
  }
  if (window->On->MouseMove != nullptr) {
    const Mouse mouse = fncMouse(*home->Ground, event.globalPosition(), 0, shift);
    prcServe([&] { window->On->MouseMove(*window, mouse); });
  }
  return true;
}

bool InputRouter::fncReleased(const QMouseEvent& event) {
  if (swallowed_ != Qt::NoButton) {
    if (swallowed_ == event.button()) {
      swallowed_ = Qt::NoButton;
    }
    return true;
  }
  if (held_.Target == nullptr || held_.Button != event.button()) {
    return held_.Target != nullptr && !held_.blnNative;
  }
  const bool blnNative = held_.blnNative;
  if (fncHeldControl() != nullptr) {
    prcRelease(std::exchange(held_, {}), event.globalPosition(), fncShift(event.modifiers()));
  }
  held_ = {};
  return !blnNative;
}

void InputRouter::prcRelease(const Held& held, QPointF global, int shift) {
  QWidget* widget = held.Widget;
  prcShowDown(widget, false);
  const bool blnInside =
      widget->isVisible() && widget->rect().contains(widget->mapFromGlobal(global).toPoint());
  const Mouse mouse = fncMouse(*widget, global, fncButton(held.Button), shift);
  Control* control = held.Target;
  prcServe([&] { prcUserRelease(*control, mouse, blnInside); });
}

}  // namespace qt
