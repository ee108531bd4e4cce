#include "platform/qt/windows/InFront.h"

#include <algorithm>

#include "platform/qt/windows/Screen.h"
#include "platform/qt/windows/Sync.h"

namespace qt {

void prcBringUp(Window& window) {
  WindowView* view = fncViewOf(window);
  if (view == nullptr || !view->Shell->isVisible()) {
    return;
  }
  prcToFront(window);
  if (!view->Shell->isWindow()) {
    view->Shell->raise();
    view->Drawn.Raised = window.Raised;
    if (!view->Shell->isActiveWindow()) {
      view->Shell->activateWindow();
    }
  } else {
    view->Shell->raise();
    view->Shell->activateWindow();
  }
  if (const Window* before = fncActiveWindow(); before != nullptr) {
    if (const WindowView* other = fncViewOf(*before); other != nullptr) {
      other->Shell->update();
    }
  }
  view->Shell->update();
  prcActivate(window);
}

Window* fncNextChild(bool blnBackwards) {
  std::vector<Window*> children;
  for (Window* window : fncWindows()) {
    const bool blnSmall = window->Kind == WindowKind::Child || window->Kind == WindowKind::Float;
    if (blnSmall && window->Visible) {
      children.push_back(window);
    }
  }
  if (children.empty()) {
    return nullptr;
  }
  const auto at = std::ranges::find(children, fncActiveWindow());
  const auto place = static_cast<std::size_t>(at - children.begin());
  const std::size_t step = blnBackwards ? children.size() - 1 : at == children.end() ? 0 : 1;
  Window* next = children[(place + step) % children.size()];
  return next == fncActiveWindow() ? nullptr : next;
}

}  // namespace qt
