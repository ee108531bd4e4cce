#include <algorithm>

#include "judges/Adapter.h"
#include "platform/UserInput.h"

namespace user {

int Play(int /*argc*/, char** /*argv*/, const std::function<int()>& run) { return run(); }
void Reset(const std::string& folder) { headless::Reset(folder); }
void Run(bool (*start)()) {
  platform::Run(0, nullptr, start);
  Settle();
}

void Activate(Window& window) { platform::Activate(window); }
void Resize(Window& window, double width) {
  window.Maximised = false;
  window.Width = width;
  prcDispatch([&] { window.On->Resize(window); });
}

Control Seen(const Control& control) { return control; }
Window Seen(const Window& window) {
  Window seen = window;
  if (seen.Kind == WindowKind::Float && seen.Visible) {  // No screen shows what lies beside it.
    seen.Left = std::clamp(seen.Left, 0.0, platform::ScreenWidth() - seen.Width);
    seen.Top = std::clamp(seen.Top, 0.0, platform::ScreenHeight() - seen.Height);
  }
  return seen;
}

}  // namespace user
