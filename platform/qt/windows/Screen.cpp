#include "platform/qt/windows/Screen.h"

#include <algorithm>

#include "platform/qt/looks/Scale.h"

namespace qt {

namespace {

bool fncLoaded(const Window* window, std::int32_t handle) {
  return std::ranges::find(fncWindows(), window) != fncWindows().end() &&
         std::int32_t{window->hWnd} == handle;
}

}  // namespace

// Never destroyed: where the display goes away, the toolkit ends the process from within an event,
// and nothing on the screen may be touched on the way out.
ScreenState& scrNow = *new ScreenState;

ControlView::ControlView(WindowView& home, Control& source)
    : Home(home), Source(&source), Drawn(source), Scale(fncScale()) {}

ControlView::~ControlView() {
  const auto known = Home.ByControl.find(Source);
  if (known != Home.ByControl.end() && known->second == this) {
    Home.ByControl.erase(known);
  }
  if (Drop != nullptr) {
    Drop(*this);
  }
}

WindowView::WindowView(Window& source) : Source(&source), Handle(source.hWnd) {}

WindowView::~WindowView() {
  Controls.clear();
  if (Drop != nullptr) {
    Drop(*this);
  }
}

WindowView* fncViewOf(const Window& window) {
  const auto known =
      std::ranges::find(scrNow.Windows, &window, [](const auto& view) { return view->Source; });
  return known == scrNow.Windows.end() ? nullptr : known->get();
}

ControlView* fncViewOf(const Control& control) {
  const WindowView* home = control.Form != nullptr ? fncViewOf(*control.Form) : nullptr;
  if (home == nullptr) {
    return nullptr;
  }
  const auto known = home->ByControl.find(&control);
  return known == home->ByControl.end() ? nullptr : known->second;
}

ControlView* fncControlViewOf(const QWidget* widget) {
  for (; widget != nullptr; widget = widget->isWindow() ? nullptr : widget->parentWidget()) {
    if (ControlView* view = scrNow.ByWidget.value(widget); view != nullptr) {
      return view;
    }
  }
  return nullptr;
}

WindowView* fncWindowViewOf(const QWidget* widget) {
  for (; widget != nullptr; widget = widget->parentWidget()) {
    for (const std::unique_ptr<WindowView>& view : scrNow.Windows) {
      if (view->Shell == widget || view->Ground == widget) {
        return view.get();
      }
    }
    if (widget->isWindow()) {
      break;
    }
  }
  return nullptr;
}

void prcNoteWidget(const QWidget* widget, ControlView* view) {
  scrNow.ByWidget.insert(widget, view);
}

void prcForgetWidget(const QWidget* widget) { scrNow.ByWidget.remove(widget); }

Control* fncLive(const ControlView& view) {
  if (fncLive(view.Home) == nullptr) {
    return nullptr;
  }
  const std::vector<Control*>& stack = view.Home.Source->Controls;
  const auto at = std::ranges::find(stack, view.Source);
  return at != stack.end() && (*at)->Serial == view.Drawn.Serial ? *at : nullptr;
}

Window* fncLive(const WindowView& view) {
  return fncLoaded(view.Source, view.Handle) ? view.Source : nullptr;
}

Window* fncActiveWindow() { return scrNow.Active; }

Window* fncFrameInput() {
  Window* found = nullptr;
  for (Window* window : fncWindows()) {
    const bool blnOpen = window->Kind == WindowKind::Child && window->Visible;
    if (blnOpen && (found == nullptr || window == scrNow.LastChild)) {
      found = window;
    }
  }
  const WindowView* frame = fncFrameView();
  return found != nullptr || frame == nullptr ? found : frame->Source;
}

WindowView* fncFrameView() {
  const auto frame = std::ranges::find_if(
      scrNow.Windows, [](const auto& view) { return view->Source->Kind == WindowKind::Frame; });
  return frame == scrNow.Windows.end() ? nullptr : frame->get();
}

bool fncSyncing() { return scrNow.blnSyncing; }

}  // namespace qt
