#include "platform/headless/Headless.h"
#include "tests/conformance/Adapter.h"

namespace user {

namespace {
std::vector<Box> boxes;
}

void Reset() { headless::Reset({}); }
void Wait(std::uint32_t milliseconds) { headless::Wait(milliseconds); }
void Settle() {}

bool Press(Control& control, float x, float y, int button) {
  return headless::Press(control, x, y, button);
}
void Drag(Control& control, float x, float y) { headless::Drag(control, x, y); }
void Release(Control& control, float x, float y, int /*button*/) {
  headless::Release(control, x, y);
}
void Click(Control& control, int button) { headless::Click(control, button); }
void Hover(Control& control) { headless::Hover(control); }
void Hover(Window& window) { headless::Hover(window); }
void Type(Control& box, const std::string& text) { headless::Type(box, text); }
void Tab(Window& window) { headless::Tab(window); }
void Key(Window& window, const std::string& key) { headless::Key(window, key); }
void Close(Window& window) { headless::Close(window); }
void WhileModal(std::function<void()> act) { headless::WhileModal(std::move(act)); }
void Answer(platform::Answer answer) { headless::Answer(answer); }

const std::vector<Box>& Boxes() {
  boxes.clear();
  for (const headless::Box& box : headless::Boxes()) {
    boxes.push_back({box.Text, box.Title, box.Icon, box.Buttons == platform::Buttons::OkCancel});
  }
  return boxes;
}

void ForgetBoxes() { headless::ForgetBoxes(); }

void AtNextTurn(std::function<void()> handler) { headless::AtNextTurn(std::move(handler)); }
bool Ended() { return headless::Ended(); }

}  // namespace user
