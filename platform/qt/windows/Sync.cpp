#include "platform/qt/windows/Sync.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <optional>
#include <unordered_set>
#include <utility>

#include "platform/UserInput.h"
#include "platform/platform.h"
#include "platform/qt/looks/Scale.h"
#include "platform/qt/views/Accessible.h"
#include "platform/qt/views/ControlViews.h"
#include "platform/qt/windows/Fitting.h"
#include "platform/qt/windows/Loop.h"
#include "platform/qt/windows/Reports.h"
#include "platform/qt/windows/Screen.h"
#include "platform/qt/windows/WindowViews.h"

namespace qt {

namespace {

constexpr std::uint32_t lngFrameMilliseconds = 8;

std::optional<std::uint32_t> tckSynced;  // When all windows were last brought up to date.

bool fncMatches(const ControlView& view, const Control* control) {
  return view.Source == control && view.Drawn.Serial == control->Serial;
}

/// The view of a control, made if needed together with the views of all that holds it.
ControlView* fncEnsure(WindowView& home, Control& control,
                       std::vector<std::unique_ptr<ControlView>>& made) {
  const auto known = home.ByControl.find(&control);
  if (known != home.ByControl.end()) {
    return known->second;
  }
  QWidget* parent = home.Ground;
  if (control.Container != nullptr) {
    ControlView* holder = fncEnsure(home, *control.Container, made);
    holder->blnHolds = true;
    parent = holder->Widget != nullptr ? holder->Widget : home.Ground;
  }
  made.push_back(std::make_unique<ControlView>(home, control));
  ControlView* view = made.back().get();
  home.ByControl[&control] = view;
  prcMakeControl(*view, parent);
  return view;
}

using Views = std::vector<std::unique_ptr<ControlView>>;

/// Drops the views from place on whose controls have left the stack.
Views fncSurvivors(WindowView& home, std::size_t place) {
  std::unordered_set<std::uint32_t> present;
  for (std::size_t at = place; at < home.Source->Controls.size(); ++at) {
    present.insert(home.Source->Controls[at]->Serial);
  }
  Views left;
  for (std::size_t at = place; at < home.Controls.size(); ++at) {
    if (present.contains(home.Controls[at]->Drawn.Serial)) {
      left.push_back(std::move(home.Controls[at]));
    }
  }
  home.Controls.resize(place);
  return left;
}

/// Puts the view of a control at its place in the list: found among the survivors, or made.
/// Survivors keep their place on the screen while they follow one another as before; every other
/// one is raised, in order.
void prcMatchStack(WindowView& home) {
  const std::vector<Control*>& stack = home.Source->Controls;
  std::size_t place = 0;
  while (place < stack.size() && place < home.Controls.size() &&
         fncMatches(*home.Controls[place], stack[place])) {
    ++place;
  }
  if (place == stack.size() && place == home.Controls.size()) {
    return;
  }
  Views old = fncSurvivors(home, place);
  Views made;
  std::size_t next = 0;
  for (; place < stack.size(); ++place) {
    Control& control = *stack[place];
    std::size_t at = next;
    while (at < old.size() && !(old[at] != nullptr && fncMatches(*old[at], &control))) {
      ++at;
    }
    if (at < old.size()) {
      home.Controls.push_back(std::move(old[at]));
      next = at + 1;
      continue;
    }
    const auto moved = std::ranges::find_if(old, [&](const std::unique_ptr<ControlView>& view) {
      return view != nullptr && fncMatches(*view, &control);
    });
    if (moved != old.end()) {
      home.Controls.push_back(std::move(*moved));
      prcRaiseControl(*home.Controls.back());
      continue;
    }
    fncEnsure(home, control, made);
    const auto fresh = std::ranges::find_if(made, [&](const std::unique_ptr<ControlView>& view) {
      return view != nullptr && view->Source == &control;
    });
    home.Controls.push_back(std::move(*fresh));
  }
}

void prcSyncControls(WindowView& home) {
  if (home.Source->On->Adorn != nullptr) {
    home.Source->On->Adorn(*home.Source);
  }
  prcMatchStack(home);
  const bool blnFocusMoved =
      home.DrawnActive != home.Source->ActiveControl || home.DrawnFocus != home.Source->FocusGiven;
  home.DrawnActive = home.Source->ActiveControl;
  home.DrawnFocus = home.Source->FocusGiven;
  for (const std::unique_ptr<ControlView>& view : home.Controls) {
    if (view->Scale != fncScale() || !(view->Drawn == *view->Source)) {
      prcUpdateControl(*view, *view->Source);
    }
  }
  if (blnFocusMoved) {
    prcShowFocusTexts(home);
  }
}

void prcDropUnloaded() {
  for (const std::unique_ptr<WindowView>& view : scrNow.Windows) {
    if (fncLive(*view) == nullptr) {
      prcHandOn(*view->Shell);
    }
  }
  // Whoever looks into the list while a view goes finds it whole.
  const auto gone =
      std::stable_partition(scrNow.Windows.begin(), scrNow.Windows.end(),
                            [](const auto& view) { return fncLive(*view) != nullptr; });
  const std::vector<std::unique_ptr<WindowView>> going(
      std::make_move_iterator(gone), std::make_move_iterator(scrNow.Windows.end()));
  scrNow.Windows.erase(gone, scrNow.Windows.end());
  if (scrNow.Active != nullptr &&
      std::ranges::find(fncWindows(), scrNow.Active) == fncWindows().end()) {
    scrNow.Active = nullptr;
  }
}

/// Brings the windows up to date when the frame comes on the screen or goes.
class FrameWatch : public QObject {
 public:
  using QObject::QObject;
  bool eventFilter(QObject* /*object*/, QEvent* event) override {
    if (event->type() == QEvent::Expose || event->type() == QEvent::WindowStateChange) {
      QTimer::singleShot(0, this, [] { prcSyncAll(); });
    }
    return false;
  }
};

void prcAddLoaded() {
  // The frame first: it is the parent of its children.
  for (const bool blnFrames : {true, false}) {
    for (Window* window : fncWindows()) {
      if ((window->Kind == WindowKind::Frame) == blnFrames && fncViewOf(*window) == nullptr) {
        auto view = std::make_unique<WindowView>(*window);
        prcMakeWindow(*view);
        if (blnFrames) {
          view->Shell->windowHandle()->installEventFilter(new FrameWatch(view->Shell));
        }
        scrNow.Windows.push_back(std::move(view));
      }
    }
  }
}

/// The input of a window that has gone is due to the child that the frame's belongs to; the toolkit
/// would hand it to any widget, and the model not hear of it.
void prcHandOnInput() {
  if (scrNow.Active == nullptr || !scrNow.Active->Visible) {
    const Window* next = fncFrameInput();
    if (WindowView* view = next != nullptr ? fncViewOf(*next) : nullptr; view != nullptr) {
      view->blnShown = true;
    }
  }
}

void prcSyncOnce() {
  scrNow.blnSyncing = true;
  prcDropUnloaded();
  prcAddLoaded();
  prcFitField();
  // The frame comes up with everything in it, and the windows that stand before it come after it.
  for (const WindowKind kind : {WindowKind::Child, WindowKind::Frame, WindowKind::Float,
                                WindowKind::Dialog, WindowKind::Start}) {
    for (const std::unique_ptr<WindowView>& view : scrNow.Windows) {
      if (view->Source->Kind == kind) {
        prcSyncControls(*view);
        prcSyncWindow(*view);
      }
    }
  }
  prcHandOnInput();
  prcFollowActive();
  prcTellEar();
  scrNow.blnSyncing = false;
  tckSynced = platform::TickCount();
}

/// Draws everything anew where the frame fits another scale. Returns whether it did.
bool fncFollowFrame() {
  WindowView* frame = fncFrameView();
  const double before = fncScale();
  if (frame == nullptr || !fncFitToFrame(*frame->Shell, prcSyncAll)) {
    return false;
  }
  prcKeepPlaces(before);
  prcSyncOnce();
  return true;
}

/// The window to be resized or activated next; none if nothing is due. Of several that have come
/// up, the frame is first, and a window that opened others while it loaded is shown after them and
/// has the input in the end.
WindowView* fncDue() {
  WindowView* shown = nullptr;
  for (const std::unique_ptr<WindowView>& view : scrNow.Windows) {
    if (view->blnResized) {
      return view.get();
    }
    if (view->blnShown && (shown == nullptr || shown->Source->Kind != WindowKind::Frame)) {
      shown = view.get();
    }
  }
  return shown;
}

/// Runs one resize or activate handler that is due. Returns whether there was one.
bool fncRunDue() {
  WindowView* due = fncDue();
  if (due == nullptr) {
    return false;
  }
  WindowView& view = *due;
  const bool blnResize = std::exchange(view.blnResized, false);
  const bool blnActivate = !blnResize && std::exchange(view.blnShown, false);
  Window* window = fncLive(view);
  if (window != nullptr && blnResize && window->On->Resize != nullptr) {
    prcServe([window] { window->On->Resize(*window); });
  } else if (window != nullptr && blnActivate) {
    prcActivate(*window);
  }
  return true;
}

}  // namespace

void prcSyncAll() {
  if (scrNow.blnSyncing) {
    return;
  }
  prcSyncOnce();
  while (!fncEnded() && (fncFollowFrame() || fncRunDue())) {
  }
}

void prcSyncIfDue() {
  if (!tckSynced || platform::TickCount() - *tckSynced >= lngFrameMilliseconds) {
    prcSyncAll();
  }
}

void prcPaintNow(Control& control) {
  WindowView* home = control.Form != nullptr ? fncViewOf(*control.Form) : nullptr;
  if (home == nullptr || scrNow.blnSyncing || fncLive(*home) == nullptr) {
    return;
  }
  ControlView* view = fncViewOf(control);
  scrNow.blnSyncing = true;
  if (view == nullptr || view->blnHolds) {
    prcSyncControls(*home);
  } else if (fncMatches(*view, &control) && !(view->Drawn == control)) {
    prcUpdateControl(*view, control);
  }
  scrNow.blnSyncing = false;
  QEvent paint(QEvent::UpdateRequest);
  QCoreApplication::sendEvent(home->Shell->window(), &paint);
}

void prcClearScreen() {
  scrNow.blnSyncing = true;  // The focus that goes round among what is left is no user's.
  std::exchange(scrNow.Windows, {}).clear();  // Whoever looks while a view goes finds no window.
  scrNow.ByWidget.clear();
  scrNow.Active = nullptr;
  scrNow.LastChild = nullptr;
  tckSynced.reset();
  scrNow.blnSyncing = false;
}

void prcActivate(Window& window) {
  if (scrNow.Active == &window || std::ranges::find(fncWindows(), &window) == fncWindows().end()) {
    return;
  }
  scrNow.Active = &window;
  if (window.Kind == WindowKind::Child) {
    scrNow.LastChild = &window;
  }
  if (window.On->Activate != nullptr) {
    prcServe([&window] { window.On->Activate(window); });
  } else if (!scrNow.blnSyncing) {
    prcSyncAll();
  }
}

void prcServe(const std::function<void()>& handlers) {
  if (fncEnded()) {
    return;
  }
  prcDispatch(handlers);
  if (!fncEnded()) {
    prcSyncAll();
  }
}

}  // namespace qt
