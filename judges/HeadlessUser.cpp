#include <algorithm>
#include <utility>

#include "judges/Adapter.h"
#include "platform/UserInput.h"
#include "platform/headless/Headless.h"

namespace user {

namespace {
std::vector<Box> boxes;
}

int Play(int /*argc*/, char** /*argv*/, const std::function<int()>& run) { return run(); }
void Reset(const std::string& folder) { headless::Reset(folder); }
void Run(bool (*start)()) {
  platform::Run(0, nullptr, start);
  Settle();
}
void Wait(std::uint32_t milliseconds) { headless::Wait(milliseconds); }
std::uint32_t Now() { return headless::Now(); }
void Settle() { headless::PlaceWindows(); }

bool Press(Control& control, float x, float y, int button) {
  return headless::Press(control, x, y, button);
}
void Drag(Control& control, float x, float y) {
  headless::Repaints().clear();
  headless::Drag(control, x, y);
}
void Release(Control& control, float x, float y, int /*button*/) {
  headless::Release(control, x, y);
}
bool Click(Control& control, int button) { return headless::Click(control, button); }
void Hover(Control& control) { headless::Hover(control); }
void Hover(Window& window) { headless::Hover(window); }
bool Type(Control& box, const std::string& text) { return headless::Type(box, text); }
bool Tab(Window& window) { return headless::Tab(window); }
void Key(Window& window, const std::string& key, int shift) { headless::Key(window, key, shift); }
void Close(Window& window) { headless::Close(window); }
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
bool PaintedAtOnce() { return !headless::Repaints().empty(); }

void WhileModal(std::function<void()> act) { headless::WhileModal(std::move(act)); }
void Answer(platform::Answer answer) { headless::Answer(answer); }

const std::vector<Box>& Boxes() {
  boxes.clear();
  for (const headless::Box& box : headless::Boxes()) {
    boxes.push_back({box.Text, box.Title.empty() ? "Velmora" : box.Title, box.Icon,
                     box.Buttons == platform::Buttons::OkCancel, box.Standard});
  }
  return boxes;
}

void ForgetBoxes() { headless::ForgetBoxes(); }

void AtNextTurn(std::function<void()> handler) { headless::AtNextTurn(std::move(handler)); }
void After(std::uint32_t milliseconds, std::function<void()> handler) {
  headless::After(milliseconds, std::move(handler));
}
bool Ended() { return headless::Ended(); }

}  // namespace user
