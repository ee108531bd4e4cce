#include "platform/qt/windows/WindowViews.h"

#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <QWindow>
#include <algorithm>

#include "platform/UserInput.h"
#include "platform/platform.h"
#include "platform/qt/looks/Scale.h"
#include "platform/qt/views/Boxes.h"
#include "platform/qt/views/Captions.h"
#include "platform/qt/windows/ChildShell.h"
#include "platform/qt/windows/Fitting.h"
#include "platform/qt/windows/WindowSystem.h"

namespace qt {

namespace {

ChildShell* fncChild(const WindowView& view) { return qobject_cast<ChildShell*>(view.Shell); }

/// What scrolls the field of a frame.
QScrollArea& fncScrolled(const WindowView& frame) {
  return *static_cast<QScrollArea*>(static_cast<QMainWindow*>(frame.Shell.data())->centralWidget());
}

/// Of the desk in both directions: a restored frame that takes more has had no size but the
/// largest, and gets the other one.
constexpr double dblWhole = 0.95;
constexpr double dblRestored = 0.8;

/// Milliseconds in which a window manager has told the size of what it restores.
constexpr int intRestored = 100;

/// What may be used of the screen that the frame is on.
QRect fncDesk() {
  const WindowView* frame = fncFrameView();
  const QScreen* screen = frame != nullptr && frame->Shell->isVisible()
                              ? frame->Shell->screen()
                              : QGuiApplication::primaryScreen();
  return screen != nullptr ? screen->availableGeometry() : QRect(0, 0, 1024, 700);
}

bool fncTakesDesk(const QWidget& shell) {
  const auto takes = [](int length, int all) {
    return length > all * dblWhole && length * dblWhole < all;
  };
  const QSize now = shell.frameGeometry().size(), desk = fncDesk().size();
  return takes(now.width(), desk.width()) && takes(now.height(), desk.height());
}

/// A dialog and the start screen have no entry in the task bar.
Qt::WindowFlags fncFlags(const Window& window) {
  Qt::WindowFlags flags = Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint;
  switch (window.Kind) {
    case WindowKind::Dialog:
      flags |= Qt::Dialog;
      break;
    case WindowKind::Start:
      flags |= Qt::Tool;
      break;
    default:
      // A window manager hears of a plain window's frame from the toolkit only where it is a
      // dialog.
      flags |= window.BeforeFrame ? Qt::Dialog : Qt::Window;
  }
  return flags.setFlag(Qt::WindowCloseButtonHint, window.CloseBox);
}

/// A floating window that comes up stands before the frame, and leaves the frame the input: some
/// window managers give it away, others put what comes up without it below what has it.
void prcStandBefore(QWidget& shell) {
  if (const WindowView* frame = fncFrameView(); frame != nullptr && frame->Shell->isVisible()) {
    frame->Shell->activateWindow();
  }
  shell.raise();
}

void prcMakeFrame(WindowView& view) {
  auto* frame = new QMainWindow;
  auto* field = new GroundView(*view.Source, nullptr);
  field->setAttribute(Qt::WA_OpaquePaintEvent);
  auto* scrolled = new QScrollArea;
  scrolled->setFrameShape(QFrame::NoFrame);
  scrolled->setFocusPolicy(Qt::NoFocus);
  scrolled->setWidgetResizable(true);
  scrolled->setWidget(field);
  frame->setCentralWidget(scrolled);
  frame->setContextMenuPolicy(Qt::NoContextMenu);
  frame->menuBar()->setNativeMenuBar(false);
  view.Shell = frame;
  view.Ground = field;
  frame->winId();
}

void prcMakeChild(WindowView& view, WindowView& frame) {
  auto* shell = new ChildShell(view, frame.Ground);
  shell->hide();  // Said, so that it does not come up with the frame.
  view.Shell = shell;
  view.Ground = new GroundView(*view.Source, shell);
}

void prcMakeTop(WindowView& view) {
  view.Shell = new GroundView(*view.Source, nullptr, fncFlags(*view.Source));
  view.Shell->setAttribute(Qt::WA_ShowWithoutActivating, view.Source->Kind == WindowKind::Float);
  if (view.Source->Kind == WindowKind::Dialog) {
    view.Shell->setWindowModality(Qt::ApplicationModal);
  }
  view.Ground = view.Shell;
}

/// What the frame around a window takes of its size, in pixels; nothing is known of a top-level
/// window's before it is shown.
QMargins fncFrameOf(const WindowView& view) {
  if (const ChildShell* child = fncChild(view); child != nullptr) {
    return child->fncFrame();
  }
  const QRect outer = view.Shell->frameGeometry();
  const QRect inner = view.Shell->geometry();
  return {inner.left() - outer.left(), inner.top() - outer.top(), outer.right() - inner.right(),
          outer.bottom() - inner.bottom()};
}

/// The window's outer size as the model has it, worked out of the inner one for a window that keeps
/// that.
void prcFollowInner(const WindowView& view) {
  Window& window = *view.Source;
  if (window.FixedInner) {
    const QMargins frame = fncFrameOf(view);
    window.Width = window.ScaleWidth + fncTwips(frame.left() + frame.right());
    window.Height = window.ScaleHeight + fncTwips(frame.top() + frame.bottom());
  }
}

/// Keeps the inner size in the model, and notes that the resize handler is due if it has changed.
void prcKeepInner(WindowView& view) {
  Window& window = *view.Source;
  const QMargins frame = fncFrameOf(view);
  double width = std::max(0.0, window.Width - fncTwips(frame.left() + frame.right()));
  double height = std::max(0.0, window.Height - fncTwips(frame.top() + frame.bottom()));
  if (window.Kind == WindowKind::Frame) {
    const QSize room = fncScrolled(view).viewport()->size();
    width = fncTwips(room.width());
    height = fncTwips(room.height());
  }
  if (window.FixedInner) {
    width = window.ScaleWidth;
    height = window.ScaleHeight;
  }
  window.ScaleWidth = width;
  window.ScaleHeight = height;
  if (view.Drawn.ScaleWidth != width || view.Drawn.ScaleHeight != height) {
    view.Drawn.ScaleWidth = width;
    view.Drawn.ScaleHeight = height;
    view.blnResized = view.blnResized || window.Visible;
  }
}

/// Where on its parent's ground the field of a child begins.
QPoint fncOrigin(const WindowView& view) {
  const WindowView* frame = fncChild(view) != nullptr ? fncFrameView() : nullptr;
  return frame != nullptr ? frame->Origin : QPoint();
}

void prcPlaceChild(WindowView& view) {
  const Window& window = *view.Source;
  const QMargins frame = fncFrameOf(view);
  QRect place = fncPixelRect(window.Left, window.Top, window.Width, window.Height);
  place.setWidth(std::max(place.width(), frame.left() + frame.right()));
  place.setHeight(std::max(place.height(), frame.top() + frame.bottom()));
  view.Shell->setGeometry(place.translated(fncOrigin(view)));
}

QPoint fncWithin(const QRect& place, const QRect& desk) {
  const auto within = [](int at, int length, int from, int room) {
    return std::clamp(at, from, std::max(from, from + room - length));
  };
  return {within(place.left(), place.width(), desk.left(), desk.width()),
          within(place.top(), place.height(), desk.top(), desk.height())};
}

/// The top left corner at which a window on whatever screen is seen from its beginning. Screens of
/// unlike sizes leave corners that are on none.
QPoint fncInSight(const QRect& place) {
  const QScreen& first = *QGuiApplication::primaryScreen();
  const QPoint corner = fncWithin(place, first.availableVirtualGeometry());
  const QPoint title = corner + QPoint(place.width() / 2, 0);
  return QGuiApplication::screenAt(title) != nullptr ? corner
                                                     : fncWithin(place, first.availableGeometry());
}

void prcPlaceTop(WindowView& view) {
  Window& window = *view.Source;
  const QMargins frame = fncFrameOf(view);
  const QSize inner = window.FixedInner
                          ? QSize(fncPixels(window.ScaleWidth), fncPixels(window.ScaleHeight))
                          : QSize(fncPixels(window.Width) - frame.left() - frame.right(),
                                  fncPixels(window.Height) - frame.top() - frame.bottom());
  if (window.Sizable || window.Kind == WindowKind::Frame) {
    view.Shell->resize(inner.expandedTo(QSize(1, 1)));
  } else {
    view.Shell->setFixedSize(inner.expandedTo(QSize(1, 1)));
  }
  QPoint at(fncPixels(window.Left), fncPixels(window.Top));
  const bool blnNoPlace = window.Kind == WindowKind::Dialog && window.Left == 0 && window.Top == 0;
  if (window.Centred || window.Kind == WindowKind::Start || blnNoPlace) {
    at = fncDesk().center() - QPoint(inner.width() / 2, inner.height() / 2);
    window.Left = fncTwips(at.x());
    window.Top = fncTwips(at.y());
  }
  // What will be around it is around the frame already.
  const WindowView* up = frame.isNull() ? fncFrameView() : nullptr;
  view.Shell->move(fncInSight({at, inner.grownBy(up != nullptr ? fncFrameOf(*up) : frame)}));
}

/// The largest place for the frame; where a window manager maximises it this is only the place it
/// comes up at.
void prcMaximise(WindowView& view) {
  const QRect desk = fncDesk();
  view.Shell->move(desk.topLeft());
  view.Shell->resize(desk.size());
}

void prcPlaceWindow(WindowView& view) {
  const Window& window = *view.Source;
  const DrawnWindow& drawn = view.Drawn;
  prcFollowInner(view);
  const bool blnMoved = view.blnFirst || drawn.Left != window.Left || drawn.Top != window.Top ||
                        drawn.Width != window.Width || drawn.Height != window.Height ||
                        drawn.Scale != fncScale() || drawn.Origin != fncOrigin(view);
  if (fncChild(view) != nullptr) {
    if (blnMoved) {
      prcPlaceChild(view);
    }
  } else if (window.Kind == WindowKind::Frame && window.Maximised) {
    if (view.blnFirst) {
      prcMaximise(view);
    }
  } else if (blnMoved) {
    prcPlaceTop(view);
  }
}

void prcShowTop(WindowView& view) {
  const Window& window = *view.Source;
  const WindowView* frame = fncFrameView();
  if ((window.Kind == WindowKind::Dialog || window.BeforeFrame) && frame != nullptr) {
    view.Shell->winId();
    view.Shell->windowHandle()->setTransientParent(frame->Shell->windowHandle());
  }
  if (window.Kind == WindowKind::Frame && window.Maximised) {
    view.Shell->showMaximized();
  } else {
    view.Shell->show();
  }
  if (window.Kind == WindowKind::Float) {
    prcStandBefore(*view.Shell);
  } else if (window.Kind == WindowKind::Start) {
    // Some window managers give a window without a task bar entry no input unasked, and its keys
    // would be dead.
    view.Shell->activateWindow();
  }
}

/// The floating windows are windows of their own, which the frame may cover. They are up while the
/// frame is on the screen: before it they might come to lie behind it, and in the task bar it has
/// them with it.
bool fncIsUp(const Window& window) {
  const WindowView* frame = window.Kind == WindowKind::Float ? fncFrameView() : nullptr;
  if (frame == nullptr || !frame->Source->Visible) {
    return window.Visible;
  }
  return window.Visible && frame->Shell->windowHandle()->isExposed() &&
         !frame->Shell->isMinimized();
}

void prcShowWindow(WindowView& view) {
  const Window& window = *view.Source;
  const bool blnUp = fncIsUp(window);
  if (view.Shell->isHidden() != blnUp) {
    return;
  }
  if (!blnUp) {
    prcHandOn(*view.Shell);
    view.Shell->hide();
    return;
  }
  if (fncChild(view) != nullptr) {
    view.Shell->show();
    view.Shell->raise();
  } else {
    prcShowTop(view);
  }
  view.blnResized = true;
  view.blnShown = window.Kind != WindowKind::Float;
}

/// The window manager is told anew each time that a window comes up.
void prcKeepOnTop(const WindowView& view) {
  const Window& window = *view.Source;
  const bool blnUp = fncChild(view) == nullptr && view.Shell->isVisible();
  if (blnUp && (view.Drawn.Topmost != window.Topmost || (window.Topmost && !view.Drawn.Visible))) {
    prcSetTopmost(*view.Shell, window.Topmost);
  }
}

void prcRaiseWindow(WindowView& view) {
  if (view.Drawn.Raised == view.Source->Raised || view.blnFirst || !view.Source->Visible) {
    return;
  }
  view.Shell->raise();
}

DrawnWindow fncDrawn(const WindowView& view) {
  const Window& window = *view.Source;
  return {window.Caption, window.Left,       window.Top,         window.Width,
          window.Height,  window.ScaleWidth, window.ScaleHeight, !view.Shell->isHidden(),
          window.Topmost, window.BackColor,  window.Picture,     window.Raised,
          fncScale(),     fncOrigin(view)};
}

/// Whether the system tells where a window is. Where it does not, the places that are known stay.
bool fncPlacesAreTold() {
  return !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

/// Writes the place that a window has on the screen into the model; what rounds to the same pixels
/// stays as it is.
void prcTakePlace(WindowView& view) {
  Window& window = *view.Source;
  const bool blnChild = fncChild(view) != nullptr;
  const QRect outer = fncOuterPlace(view);
  const bool blnMoved =
      fncPixels(window.Left) != outer.left() || fncPixels(window.Top) != outer.top();
  if (blnMoved && (blnChild || fncPlacesAreTold())) {
    window.Left = fncTwips(outer.left());
    window.Top = fncTwips(outer.top());
  }
  const QRect known = fncPixelRect(window.Left, window.Top, window.Width, window.Height);
  if (!window.FixedInner && known.size() != outer.size()) {
    window.Width = fncTwips(outer.width());
    window.Height = fncTwips(outer.height());
  }
  prcFollowInner(view);
  prcKeepInner(view);
}

void prcDropWindow(WindowView& view) {
  if (view.Shell == nullptr) {
    return;
  }
  if (ChildShell* child = fncChild(view); child != nullptr) {
    child->prcDetach();
  }
  view.Shell->hide();
  view.Shell->deleteLater();
}

}  // namespace

void prcMakeWindow(WindowView& view) {
  view.Drop = prcDropWindow;
  WindowView* frame = fncFrameView();
  if (view.Source->Kind == WindowKind::Frame) {
    prcMakeFrame(view);
  } else if (view.Source->Kind == WindowKind::Child && frame != nullptr) {
    prcMakeChild(view, *frame);
  } else {
    prcMakeTop(view);
  }
  view.Shell->setObjectName(QString::fromUtf8(view.Source->Name));
  view.Ground->setAccessibleName(fncText(view.Source->Caption));
}

QRect fncOuterPlace(const WindowView& view) {
  return fncChild(view) != nullptr ? view.Shell->geometry().translated(-fncOrigin(view))
                                   : view.Shell->frameGeometry();
}

void prcFitField() {
  WindowView* frame = fncFrameView();
  if (frame == nullptr) {
    return;
  }
  QRect needed(0, 0, 1, 1);
  int left = 0;
  for (const Window* window : fncWindows()) {
    if (window->Kind == WindowKind::Child && window->Visible && fncTooSmall(*frame->Shell)) {
      needed |= fncPixelRect(window->Left, window->Top, window->Width, window->Height);
      // What has a title bar can be dragged into sight.
      left = window->TitleBar ? left : std::min(left, fncPixels(window->Left));
    }
  }
  const QSize least(needed.right() + 1 - left, needed.bottom() + 1);
  QScrollArea& scrolled = fncScrolled(*frame);
  if (frame->Ground->minimumSize() != least) {
    frame->Ground->setMinimumSize(least);
    QCoreApplication::sendPostedEvents(scrolled.viewport(), QEvent::LayoutRequest);
  }
  if (frame->Origin.x() != -left) {
    frame->Origin.setX(-left);
    scrolled.horizontalScrollBar()->setValue(-left);
  }
}

void prcKeepPlaces(double before) {
  WindowView& frame = *fncFrameView();
  prcTakePlace(frame);
  frame.Drawn = fncDrawn(frame);
  const QPoint corner = frame.Shell->frameGeometry().topLeft();
  const auto moved = [&](double place, int from) {
    return place + fncTwips(from) * (1 - fncScale() / before);
  };
  for (Window* window : fncWindows()) {
    if (window->Kind != WindowKind::Child && window != frame.Source) {
      window->Left = moved(window->Left, corner.x());
      window->Top = moved(window->Top, corner.y());
    }
  }
}

void prcSyncWindow(WindowView& view) {
  Window& window = *view.Source;
  if (view.blnFirst || view.Drawn.Caption != window.Caption) {
    view.Shell->setWindowTitle(fncText(window.Caption));
    view.Ground->setAccessibleName(fncText(window.Caption));
    view.Shell->update();
  }
  prcPlaceWindow(view);
  prcKeepInner(view);
  if (view.Drawn.BackColor != window.BackColor || view.Drawn.Picture != window.Picture) {
    view.Ground->update();
  }
  prcShowWindow(view);
  prcKeepOnTop(view);
  prcRaiseWindow(view);
  if (window.Kind == WindowKind::Frame && window.Visible && window.Maximised) {
    prcTakePlace(view);
  }
  prcKeepInner(view);
  view.Drawn = fncDrawn(view);
  view.blnFirst = false;
}

void prcRestoreFrame(QWidget& shell, bool blnDragged) {
  if (!fncTakesDesk(shell)) {
    return;
  }
  QTimer::singleShot(intRestored, &shell, [&shell, blnDragged] {
    if (shell.windowState() != Qt::WindowNoState || !fncTakesDesk(shell)) {
      return;
    }
    if (fncButtonHeld()) {
      prcRestoreFrame(shell, true);
      return;
    }
    QRect place(shell.geometry().topLeft(), fncDesk().size() * dblRestored);
    if (!blnDragged) {
      place.moveCenter(fncDesk().center());
    }
    place.moveTopLeft(fncInSight(place));
    shell.setGeometry(place);
  });
}

bool fncWindowMoved(WindowView& view) {
  Window* window = fncLive(view);
  if (window == nullptr || fncSyncing() || !window->Visible) {
    return false;
  }
  if (fncChild(view) == nullptr) {
    window->Maximised = view.Shell->isMaximized();
  }
  prcTakePlace(view);
  view.Drawn = fncDrawn(view);
  return view.blnResized || window->Kind == WindowKind::Frame;
}

void prcHandOn(const QWidget& shell) {
  const WindowView* frame = fncFrameView();
  if (shell.isWindow() && shell.isActiveWindow() && frame != nullptr && frame->Shell != &shell &&
      frame->Shell->isVisible()) {
    frame->Shell->activateWindow();
  }
}

void prcFollowActive() {
  const Window* window = fncActiveWindow();
  const WindowView* view = window != nullptr ? fncViewOf(*window) : nullptr;
  if (view == nullptr || !view->Shell->isVisible()) {
    return;
  }
  QWidget* target = view->Ground;
  if (window->ActiveControl != nullptr && fncTakesFocus(*window->ActiveControl)) {
    const ControlView* control = fncViewOf(*window->ActiveControl);
    if (control != nullptr && control->Widget != nullptr && control->Widget->isVisible()) {
      target = control->Widget;
    }
  }
  if (target->window()->focusWidget() != target) {
    target->setFocus(Qt::OtherFocusReason);
    if (const WindowView* frame = fncFrameView();
        frame != nullptr && target != view->Ground && frame->Shell == target->window()) {
      fncScrolled(*frame).ensureWidgetVisible(target);
    }
    if (auto* edit = qobject_cast<EditView*>(target); edit != nullptr) {
      edit->prcSelect();
    }
  }
}

}  // namespace qt
