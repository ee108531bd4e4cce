#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "platform/platform.h"

// The scripted user of the conformance suite and of the endurance runs, once for each platform:
// tests/headless acts on the model by the virtual clock, tests/qt with real events on real widgets.

namespace user {

struct Box {
  std::string Text, Title;
  platform::Icon Icon;
  bool blnCancel;  ///< It offers Cancel beside OK.
};

/// A platform as after its start: no windows, no script, not ended.
void Reset();

/// Lets the program be idle for that long; timers tick.
void Wait(std::uint32_t milliseconds);

/// Brings the screen up to date with the model.
void Settle();

/// The press may be refused; what the control's handlers saw tells. Returns false where this user
/// sees that it was.
bool Press(Control& control, float x, float y, int button = intLeftButton);
void Drag(Control& control, float x, float y);
void Release(Control& control, float x, float y, int button = intLeftButton);
void Click(Control& control, int button = intLeftButton);
void Hover(Control& control);
/// Moves the pointer over bare ground near the window's bottom right corner.
void Hover(Window& window);
/// Clicks into a box, selects all of it and types.
void Type(Control& box, const std::string& text);
void Tab(Window& window);
/// A key by its name or letter: "Left", "F12", "5".
void Key(Window& window, const std::string& key);
void Close(Window& window);

/// Runs while the next message box or modal window is open.
void WhileModal(std::function<void()> act);
/// Answers the next message box that has no answer yet.
void Answer(platform::Answer answer);
const std::vector<Box>& Boxes();
void ForgetBoxes();

/// Runs handler once, as an event of its own, as soon as the program next serves events.
void AtNextTurn(std::function<void()> handler);

bool Ended();

}  // namespace user
