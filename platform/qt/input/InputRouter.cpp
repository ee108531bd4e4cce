#include "platform/qt/input/InputRouter.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>
#include <QWindow>

#include "platform/UserInput.h"
#include "platform/qt/looks/Scale.h"
#include "platform/qt/views/Bars.h"
#include "platform/qt/views/Flip.h"
#include "platform/qt/views/Painted.h"
#include "platform/qt/windows/InFront.h"
#include "platform/qt/windows/Reports.h"
#include "platform/qt/windows/Screen.h"
#include "platform/qt/windows/Sync.h"
#include "platform/qt/windows/WindowViews.h"

namespace qt {

namespace {

/// The part of a card's width that the hand may tremble over in a click.
constexpr int intTremble = 6;

/// Kinds whose widget goes on with a press by itself: it places the caret, drags, or selects a row;
/// a toolbar holds a button of the toolkit's own.
bool fncNative(ControlKind kind) {
  switch (kind) {
    case ControlKind::TextBox:
    case ControlKind::MaskedEdit:
    case ControlKind::ListBox:
    case ControlKind::Grid:
    case ControlKind::HScrollBar:
    case ControlKind::VScrollBar:
    case ControlKind::Slider:
    case ControlKind::Toolbar:
      return true;
    default:
      return false;
  }
}

/// The control that a widget shows; none on bare ground.
Control* fncControlOf(const QWidget& widget) {
  const ControlView* view = fncControlViewOf(&widget);
  return view != nullptr ? fncLive(*view) : nullptr;
}

/// A button as the model calls it; 0 for those that mean nothing.
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
Mouse fncMouse(const QWidget& widget, QPointF global, int button) {
  const ControlView* view = fncControlViewOf(&widget);
  const QPoint corner = view != nullptr ? fncCorner(view->Drawn) : QPoint();
  const QPointF at = widget.mapFromGlobal(global) - corner;
  return {button, static_cast<float>(fncTwips(at.x())), static_cast<float>(fncTwips(at.y()))};
}

QWidget* fncWidgetOf(const Control& control) {
  const ControlView* view = fncViewOf(control);
  return view != nullptr ? view->Widget.data() : nullptr;
}

void prcShowDown(QWidget* widget, bool blnDown) {
  if (auto* button = qobject_cast<QAbstractButton*>(widget); button != nullptr) {
    button->setDown(blnDown);
  } else if (auto* painted = qobject_cast<PaintedView*>(widget); painted != nullptr) {
    painted->prcSetDown(blnDown);
  }
}

/// A card that was pulled from within its edges, were it there and back, is no card that was
/// clicked: who meant to squeeze it would see it turned. A hand that only trembles has clicked.
bool fncPulled(const Control& control, const QWidget& card, QPointF way) {
  const int tremble = std::max(QApplication::startDragDistance(), card.width() / intTremble);
  return control.Dress == Look::Card && way.manhattanLength() > tremble;
}

/// The toolkit has given a widget the focus: an assistive tool asked for it, if not the model.
void prcReached(const QWidget& widget) {
  ControlView* view = fncControlViewOf(&widget);
  if (view != nullptr && !fncSyncing() && view->Source != view->Home.Source->ActiveControl) {
    prcAct(*view, [](Control& control) { fncUserReach(control); });
  }
}

void prcAskToClose(const WindowView& view) {
  if (Window* window = fncLive(view); window != nullptr && !fncSyncing()) {
    prcServe([window] { prcUserClose(*window); });
  }
}

void prcHasBecomeActive(const WindowView& view) {
  Window* window = view.Source->Kind == WindowKind::Frame ? fncFrameInput() : view.Source;
  if (window != nullptr) {
    prcActivate(*window);
  }
}

/// What the window system does to a window; whether that is none of the toolkit's business.
bool fncWindowEvent(WindowView& view, QWidget& widget, QEvent* event) {
  const bool blnShell = view.Shell == &widget;
  switch (event->type()) {
    case QEvent::Close:
      if (blnShell) {
        event->ignore();
        prcAskToClose(view);
      }
      return blnShell;
    case QEvent::Move:
    case QEvent::Resize:
      if ((blnShell || view.Ground == &widget) && fncWindowMoved(view)) {
        prcSyncAll();
      }
      return false;
    case QEvent::WindowStateChange:
      if (blnShell && &view == fncFrameView() &&
          static_cast<QWindowStateChangeEvent*>(event)->oldState() == Qt::WindowMaximized) {
        prcRestoreFrame(widget);
      }
      return false;
    case QEvent::WindowActivate:
      // The toolkit passes it on to all children; none of them is meant.
      if (blnShell && widget.isWindow() && !fncSyncing()) {
        prcHasBecomeActive(view);
      }
      return false;
    default:
      return false;
  }
}

}  // namespace

InputRouter::InputRouter(QObject* parent) : QObject(parent) { qApp->installEventFilter(this); }

bool InputRouter::eventFilter(QObject* object, QEvent* event) {
  if (object->isWidgetType()) {
    return fncWidgetEvent(*static_cast<QWidget*>(object), event);
  }
  if (event->type() == QEvent::Expose && object->isWindowType()) {
    prcEndUnseen(*static_cast<QWindow*>(object));
  }
  // The toolkit drops what comes for a widget that has been hidden under the press.
  const bool blnHidden = held_.Widget != nullptr && !held_.Widget->isVisible();
  if (object->isWindowType() && blnHidden && event->type() == QEvent::MouseMove) {
    prcEndLost(static_cast<QMouseEvent*>(event)->buttons());
    return fncDragged(*static_cast<QMouseEvent*>(event));
  }
  if (object->isWindowType() && blnHidden && event->type() == QEvent::MouseButtonRelease) {
    fncReleased(*static_cast<QMouseEvent*>(event));
  }
  return false;
}

bool InputRouter::fncMouseEvent(QWidget& widget, const QMouseEvent& event) {
  if (fncWindowViewOf(&widget) == nullptr) {
    return false;
  }
  if (event.type() == QEvent::MouseMove) {
    return fncMoved(widget, event);
  }
  if (fncButton(event.button()) == 0) {
    return true;
  }
  return event.type() == QEvent::MouseButtonRelease ? fncReleased(event)
                                                    : fncPressed(widget, event);
}

bool InputRouter::fncWidgetEvent(QWidget& widget, QEvent* event) {
  bool blnTaken = false;
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
      blnTaken = fncMouseEvent(widget, *static_cast<QMouseEvent*>(event));
      break;
    case QEvent::Wheel:
      blnTaken = fncWheeled(widget, *static_cast<QWheelEvent*>(event));
      break;
    case QEvent::FocusIn:
      prcReached(widget);
      break;
    case QEvent::KeyPress:
      blnTaken = fncKeyPressed(widget, *static_cast<QKeyEvent*>(event));
      break;
    case QEvent::Close:
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::WindowStateChange:
    case QEvent::WindowActivate: {
      WindowView* view = fncWindowViewOf(&widget);
      return view != nullptr && fncWindowEvent(*view, widget, event);
    }
    default:
      break;
  }
  if (blnTaken) {
    event->accept();
  }
  return blnTaken;
}

bool InputRouter::fncPressed(QWidget& widget, const QMouseEvent& event) {
  prcEndFlip();
  blnToolkitHolds_ = false;
  WindowView* home = fncWindowViewOf(&widget);
  if (fncLive(*home) == nullptr) {
    return false;
  }
  prcEndLost(event.buttons() & ~Qt::MouseButtons(event.button()));
  if (held_.Button != Qt::NoButton) {
    return !held_.blnNative;  // A second button during a press.
  }
  if (fncActiveWindow() != home->Source && home->Source->Kind != WindowKind::Frame) {
    prcBringUp(*home->Source);
  }
  Control* control = fncControlOf(widget);
  return control != nullptr && fncPressControl(*control, widget, event);
}

bool InputRouter::fncPressControl(Control& control, QWidget& widget, const QMouseEvent& event) {
  QWidget* own = fncWidgetOf(control);
  if (own == nullptr) {
    return false;
  }
  // A box that selects its text as it gets the focus keeps it so: this press is not the toolkit's.
  const bool blnSelects = control.Form->ActiveControl != &control;
  held_ = {&control, control.Serial, own, event.button(), false, event.globalPosition()};
  const Mouse mouse = fncMouse(*own, event.globalPosition(), fncButton(event.button()));
  bool blnStands = false;
  prcServe([&] { blnStands = fncUserPress(control, mouse); });
  if (!blnStands || fncHeldControl() == nullptr) {
    held_.Target = nullptr;
    return true;
  }
  held_.blnNative =
      fncNative(control.Kind) && !(blnSelects && &widget == own && control.SelLength > 0);
  prcShowDown(own, fncClicksWith(control, mouse.Button));
  const bool blnNative = held_.blnNative;
  prcEndLost(QGuiApplication::mouseButtons());
  return !blnNative;
}

void InputRouter::prcEndLost(Qt::MouseButtons down) {
  if (held_.Button != Qt::NoButton && !down.testFlag(held_.Button)) {
    prcRelease(QPointF(-1e6, -1e6));
  }
}

void InputRouter::prcEndUnseen(const QWindow& window) {
  const WindowView* frame = fncFrameView();
  const QWidget* pressed = held_.Widget != nullptr ? held_.Widget->window()
                           : frame != nullptr      ? frame->Shell.data()
                                                   : nullptr;
  // Where windows are drawn when the compositor says so, one that is late looks unseen.
  if (pressed != nullptr && pressed->windowHandle() == &window && !window.isExposed() &&
      QGuiApplication::mouseButtons() != Qt::NoButton &&
      QGuiApplication::platformName() != QLatin1String("wayland")) {
    prcEndLost(Qt::NoButton);
    blnToolkitHolds_ = true;
  }
}

Control* InputRouter::fncHeldControl() const {
  Control* control = held_.Widget != nullptr ? fncControlOf(*held_.Widget) : nullptr;
  return control != nullptr && control == held_.Target && control->Serial == held_.Serial ? control
                                                                                          : nullptr;
}

bool InputRouter::fncMoved(QWidget& widget, const QMouseEvent& event) {
  prcEndLost(event.buttons());
  if (held_.Button != Qt::NoButton) {
    return fncDragged(event);
  }
  if (!blnToolkitHolds_) {
    return fncHovered(widget, event);
  }
  QWidget* under = QApplication::widgetAt(event.globalPosition().toPoint());
  if (under != nullptr && fncWindowViewOf(under) != nullptr) {
    fncHovered(*under, event);
  }
  return true;
}

bool InputRouter::fncDragged(const QMouseEvent& event) {
  const bool blnOurs = held_.Button != Qt::NoButton && !held_.blnNative;
  if (Control* control = fncHeldControl(); control != nullptr) {
    QWidget& own = *held_.Widget;
    held_.blnPulled |= fncPulled(*control, own, event.globalPosition() - held_.From);
    const bool blnInside = own.rect().contains(own.mapFromGlobal(event.globalPosition()).toPoint());
    prcShowDown(&own, blnInside && fncClicksWith(*control, fncButton(held_.Button)));
    const Mouse mouse = fncMouse(own, event.globalPosition(), fncButtons(event.buttons()));
    prcServe([&] { prcUserMove(*control, mouse); });
  }
  return blnOurs;
}

bool InputRouter::fncHovered(QWidget& widget, const QMouseEvent& event) {
  WindowView* home = fncWindowViewOf(&widget);
  Window* window = fncLive(*home);
  if (window == nullptr) {
    return false;
  }
  if (Control* control = fncControlOf(widget); control != nullptr) {
    QWidget* own = fncWidgetOf(*control);
    if (own != nullptr &&
        (control->On->MouseMove != nullptr || control->Kind == ControlKind::Chart)) {
      const Mouse mouse = fncMouse(*own, event.globalPosition(), 0);
      prcServe([&] { prcUserMove(*control, mouse); });
    }
    // A widget that is closed is no ground.
    return !fncNative(control->Kind) || !fncUsable(*control);
  }
  if (home->Ground != &widget) {
    return false;  // A border, or what the toolkit has put around the field.
  }
  if (window->On->MouseMove != nullptr) {
    const Mouse mouse = fncMouse(*home->Ground, event.globalPosition(), 0);
    prcServe([&] { prcUserMove(*window, mouse); });
  }
  return true;
}

bool InputRouter::fncWheeled(QWidget& widget, const QWheelEvent& event) {
  WindowView* home = fncWindowViewOf(&widget);
  if (home == nullptr || fncLive(*home) == nullptr) {
    return false;
  }
  Control* control = fncControlOf(widget);
  const bool blnOwn = control != nullptr && fncNative(control->Kind);
  return (!blnOwn || fncTurns(*control)) && fncTurnBar(*home, control, event);
}

bool InputRouter::fncReleased(const QMouseEvent& event) {
  const bool blnOurs = held_.Button != Qt::NoButton && !held_.blnNative;
  if (held_.Button == event.button()) {
    prcRelease(event.globalPosition());
  }
  return blnOurs;
}

void InputRouter::prcRelease(QPointF global) {
  Control* control = fncHeldControl();
  const Held held = std::exchange(held_, {});
  if (control == nullptr) {
    return;
  }
  QWidget* widget = held.Widget;
  prcShowDown(widget, false);
  const bool blnInside = widget->isVisible() && !held.blnPulled &&
                         !fncPulled(*control, *widget, global - held.From) &&
                         widget->rect().contains(widget->mapFromGlobal(global).toPoint());
  const Mouse mouse = fncMouse(*widget, global, fncButton(held.Button));
  prcServe([&] { prcUserRelease(*control, mouse, blnInside); });
}

}  // namespace qt
