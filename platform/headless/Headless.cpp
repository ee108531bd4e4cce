#include "platform/headless/Headless.h"

#include <algorithm>
#include <cmath>
#include <deque>
#include <fstream>
#include <map>
#include <stdexcept>

#include "platform/Picking.h"
#include "platform/Procedure.h"
#include "platform/Texts.h"
#include "platform/UserInput.h"

namespace {

/// A scripted event; events of one moment run in the order in which they were scripted.
struct Scripted {
  std::uint64_t Due;
  std::function<void()> Event;
};

struct State {
  std::uint64_t Clock = 0;  // Milliseconds since Reset, beyond the wrap of the tick counter.
  std::uint32_t Start = 0;
  std::uint64_t Turns = 0;
  bool blnEnded = false;
  bool blnPaintedAtOnce = false;  // By the last drag.
  std::deque<Scripted> Script;
  std::deque<std::function<void()>> NextTurn, Modal;
  std::deque<platform::Answer> Answers;
  std::vector<user::Box> Boxes;
  std::map<std::uint32_t, std::uint64_t> TimerDue;  // By the timer's serial.
  std::vector<std::string> Copied, Printed;
  std::deque<std::string> SavePaths;
  double ScreenWidth = 15360, ScreenHeight = 10500;
};

State state;

void prcThrowIfEnded() {
  if (state.blnEnded) {
    throw EndOfProgram{};
  }
}

void prcRun(const std::function<void()>& event) {
  prcDispatch(event);
  prcThrowIfEnded();
}

/// Gives each running timer its next tick and forgets those that have stopped. Returns the first
/// one due.
Control* fncFirstTimer() {
  Control* first = nullptr;
  std::uint64_t firstDue = 0;
  for (const Window* window : fncWindows()) {
    for (Control* timer : window->Timers) {
      if (!timer->Enabled || timer->Interval <= 0) {
        state.TimerDue.erase(timer->Serial);
        continue;
      }
      const auto interval = static_cast<std::uint64_t>(std::int32_t{timer->Interval});
      const std::uint64_t due =
          state.TimerDue.try_emplace(timer->Serial, state.Clock + interval).first->second;
      if (first == nullptr || due < firstDue) {
        first = timer;
        firstDue = due;
      }
    }
  }
  return first;
}

/// Runs what is due now. Returns whether anything ran.
bool fncServeDue() {
  ++state.Turns;
  prcThrowIfEnded();
  if (state.NextTurn.empty() && state.Script.empty() && fncWindows().empty()) {
    return false;  // Whole shoes are shuffled without a window, with a turn for each card.
  }
  if (!state.NextTurn.empty()) {
    const std::function<void()> event = std::move(state.NextTurn.front());
    state.NextTurn.pop_front();
    prcRun(event);
    return true;
  }
  const auto scripted = std::ranges::min_element(state.Script, {}, &Scripted::Due);
  if (scripted != state.Script.end() && scripted->Due <= state.Clock) {
    const std::function<void()> event = std::move(scripted->Event);
    state.Script.erase(scripted);
    prcRun(event);
    return true;
  }
  Control* timer = fncFirstTimer();
  if (timer != nullptr && state.TimerDue[timer->Serial] <= state.Clock) {
    state.TimerDue[timer->Serial] =
        state.Clock + static_cast<std::uint64_t>(std::int32_t{timer->Interval});
    prcRun([timer] {
      if (timer->On->Timer != nullptr) {
        timer->On->Timer(*timer);
      }
    });
    return true;
  }
  return false;
}

/// The moment of the next thing to happen, at most limit.
std::uint64_t fncNextMoment(std::uint64_t limit) {
  for (const Scripted& scripted : state.Script) {
    limit = std::min(limit, scripted.Due);
  }
  if (Control* timer = fncFirstTimer(); timer != nullptr) {
    limit = std::min(limit, state.TimerDue[timer->Serial]);
  }
  return std::max(limit, state.Clock);
}

void prcRunModalScript() {
  if (state.Modal.empty()) {
    return;
  }
  const std::function<void()> event = std::move(state.Modal.front());
  state.Modal.pop_front();
  prcRun(event);
}

/// In the middle of the screen, in whole pixels of the design.
void prcCentre(Window& window) {
  const bool blnNoPlace = window.Left == 0 && window.Top == 0;
  if (window.Centred || window.Kind == WindowKind::Start ||
      (window.Kind == WindowKind::Dialog && blnNoPlace)) {
    const auto middle = [](double screen, double size) {
      return 15 * (std::floor((screen / 15 - 1) / 2) - std::floor(size / 15 / 2));
    };
    window.Left = middle(state.ScreenWidth, window.Width);
    window.Top = middle(state.ScreenHeight, window.Height);
  }
}

/// A child's inner size: less its border, and its title bar if it has one.
void prcKeepInner(Window& window) {
  const double border = 2 * 15 * (window.Sizable ? 4 : window.TitleBar ? 1 : 0);
  const double width = window.Width - border;
  const double height = window.Height - border - (window.TitleBar ? 15 * 20 : 0);
  if (width == window.ScaleWidth && height == window.ScaleHeight) {
    return;
  }
  window.ScaleWidth = width;
  window.ScaleHeight = height;
  if (window.On->Resize != nullptr) {
    prcDispatch([&] { window.On->Resize(window); });
  }
}

void prcNeedUsable(Control& control) {
  if (!fncSeen(control) || !fncUsable(control)) {
    throw std::logic_error(std::string("the user cannot reach ") + control.Name);
  }
}

/// A character goes into a box that has the focus: over what is selected, else behind its text.
void prcTypeInto(Control& box, const std::string& key) {
  if (box.Kind == ControlKind::MaskedEdit || box.Kind == ControlKind::TextBox) {
    const auto selected = static_cast<std::size_t>(std::max(0, box.SelLength));
    prcUserText(box, box.Text.substr(std::min(selected, box.Text.size())) + key);
  }
}

}  // namespace

namespace platform {

int Run(int /*argc*/, char** /*argv*/, bool (*start)()) {
  bool blnStarted = false;
  prcDispatch([&] { blnStarted = start(); });
  if (!blnStarted) {
    state.blnEnded = true;
  }
  return 0;
}

void DoEvents() {
  while (fncServeDue()) {
  }
}

void WaitEvents(std::uint32_t milliseconds) {
  const std::uint64_t limit = state.Clock + milliseconds;
  while (!fncServeDue()) {
    if (state.Clock >= limit) {
      return;
    }
    state.Clock = fncNextMoment(limit);
  }
}

std::uint32_t TickCount() { return state.Start + static_cast<std::uint32_t>(state.Clock); }

Answer MsgBox(const std::string& text, Icon icon, const std::string& title, Buttons buttons,
              Answer standard) {
  prcThrowIfEnded();
  state.Boxes.push_back({text, title.empty() ? "Velmora" : title, icon, buttons, standard});
  prcRunModalScript();
  if (state.Answers.empty()) {
    return standard;
  }
  const Answer answer = state.Answers.front();
  state.Answers.pop_front();
  return answer;
}

void RepaintNow(Control& /*control*/) { state.blnPaintedAtOnce = true; }

void RunModal(Window& window) {
  prcThrowIfEnded();
  prcRunModalScript();
  if (window.Visible) {
    prcUserClose(window);
  }
  if (window.Visible) {
    fncUnload(window);  // A box that refuses is left as it is: there is nobody to mend it.
  }
}

void Activate(Window& window) {
  if (window.On->Activate != nullptr) {
    window.On->Activate(window);
  }
}

double ScreenWidth() { return state.ScreenWidth; }
double ScreenHeight() { return state.ScreenHeight; }
Desk WholeDesk() { return {0, 0, state.ScreenWidth, state.ScreenHeight}; }

std::string AskSavePath(const std::string& /*title*/, const std::string& /*name*/,
                        std::span<const FileKind> /*kinds*/) {
  prcThrowIfEnded();
  prcRunModalScript();
  if (state.SavePaths.empty()) {
    return {};
  }
  std::string path = std::move(state.SavePaths.front());
  state.SavePaths.pop_front();
  return path;
}

std::string SaveFile(const std::string& path, const std::string& contents) {
  std::ofstream file(path, std::ios::binary);
  file << contents;
  file.close();
  return file ? std::string() : "Could not be written";
}

std::string SavePicture(const Control& control, const std::string& path) {
  return SaveFile(path, control.Spoken);
}

std::string PrintPicture(const Control& /*control*/, const std::string& title) {
  prcThrowIfEnded();
  state.Printed.push_back(title);
  prcRunModalScript();
  return {};
}

void CopyText(const std::string& text) { state.Copied.push_back(text); }

void End() {
  state.blnEnded = true;
  throw EndOfProgram{};
}

}  // namespace platform

namespace user {

std::uint32_t Now() { return static_cast<std::uint32_t>(state.Clock); }

void Wait(std::uint32_t milliseconds) {
  const std::uint64_t limit = state.Clock + milliseconds;
  try {
    while (state.Clock < limit || fncNextMoment(limit) < limit) {
      platform::WaitEvents(static_cast<std::uint32_t>(limit - state.Clock));
    }
    platform::DoEvents();
  } catch (const EndOfProgram&) {
    state.blnEnded = true;
  }
}

void After(std::uint32_t milliseconds, std::function<void()> event) {
  state.Script.push_back({state.Clock + milliseconds, std::move(event)});
}

void WhileModal(std::function<void()> event) { state.Modal.push_back(std::move(event)); }
void Answer(platform::Answer answer) { state.Answers.push_back(answer); }
const std::vector<Box>& Boxes() { return state.Boxes; }
void ForgetBoxes() { state.Boxes.clear(); }
bool Ended() { return state.blnEnded; }
bool PaintedAtOnce() { return state.blnPaintedAtOnce; }

void Settle() {
  // A resize handler may load a window.
  const std::vector<Window*> loaded(fncWindows().begin(), fncWindows().end());
  for (Window* window : loaded) {
    if (window->FixedInner) {
      window->Width = window->ScaleWidth;
      window->Height = window->ScaleHeight;
    }
    if (window->On->Adorn != nullptr) {
      window->On->Adorn(*window);
    }
    if (window->Visible) {
      window->Kind == WindowKind::Child ? prcKeepInner(*window) : prcCentre(*window);
    }
  }
}

bool Press(Control& control, float x, float y, int button) {
  Hover(control);  // The pointer gets there first.
  bool blnStands = false;
  prcDispatch([&] { blnStands = fncUserPress(control, {button, x, y}); });
  return blnStands;
}

bool Click(Control& control, int button) {
  if (!Press(control, 0, 0, button)) {
    return false;
  }
  prcDispatch([&] { prcUserRelease(control, {button}, true); });
  return true;
}

void Drag(Control& control, float x, float y) {
  state.blnPaintedAtOnce = false;
  prcDispatch([&] { prcUserMove(control, {intLeftButton, x, y}); });
}

void Release(Control& control, float x, float y, int button) {
  const bool blnInside = x >= 0 && y >= 0 && x < control.Width && y < control.Height;
  prcDispatch([&] { prcUserRelease(control, {button, x, y}, blnInside); });
}

void Hover(Control& control) {
  prcNeedUsable(control);
  const Mouse middle{.X = static_cast<float>(control.Width / 2),
                     .Y = static_cast<float>(control.Height / 2)};
  prcDispatch([&] { prcUserMove(control, middle); });
}

void Hover(Window& window) {
  prcDispatch([&] { prcUserMove(window, {}); });
}

bool Type(Control& box, const std::string& text) {
  if (!Press(box)) {
    return false;
  }
  prcDispatch([&] { prcUserText(box, ""); });
  for (const char key : text) {
    Key(*box.Form, std::string(1, key));
    if (box.Form->ActiveControl != &box) {
      return false;  // The window has made something else of the key.
    }
  }
  return true;
}

bool Tab(Window& window) {
  bool blnMoved = false;
  prcDispatch([&] { blnMoved = fncUserTab(window, false); });
  return blnMoved;
}

void Key(Window& window, const std::string& key, int shift) {
  prcDispatch([&] {
    if (window.On->KeyDown != nullptr) {
      window.On->KeyDown(window, key, shift);
    }
    if (window.ActiveControl != nullptr) {
      fncUserPickKey(*window.ActiveControl, key);
    }
    if (window.On->KeyPress != nullptr && key.size() == 1) {
      window.On->KeyPress(window, key.front());
    }
    if (window.hWnd != 0 && window.ActiveControl != nullptr && key.size() == 1) {
      prcTypeInto(*window.ActiveControl, key);
    }
  });
}

void Close(Window& window) {
  prcDispatch([&] { prcUserClose(window); });
}

}  // namespace user

namespace headless {

void Reset(const std::string& folder, std::uint32_t start) {
  while (!fncWindows().empty()) {
    prcForgetWindow(*fncWindows().back());
  }
  state = State{};
  state.Start = start;
  ResetMachine(folder);
  prcSetCurrency(CurrencyStyle{});
}

void StepTicks(std::int32_t milliseconds) {
  state.Start += static_cast<std::uint32_t>(milliseconds);
}

void AtNextTurn(std::function<void()> event) { state.NextTurn.push_back(std::move(event)); }
std::uint64_t Turns() { return state.Turns; }
void SaveAs(std::string path) { state.SavePaths.push_back(std::move(path)); }
std::vector<std::string>& Copied() { return state.Copied; }
std::vector<std::string>& Printed() { return state.Printed; }

void Pick(Control& grid, int row) {
  prcNeedUsable(grid);
  prcDispatch([&] { prcUserPick(grid, row); });
}

}  // namespace headless
