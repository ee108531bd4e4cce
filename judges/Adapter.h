#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "platform/headless/PaperMachine.h"
#include "platform/platform.h"

// The user of the replays, the conformance suite and the endurance runs, once for each platform:
// HeadlessUser.cpp acts on the model and looks at it, the stage of the tests has a hand that
// presses keys and mouse buttons at the real widgets and eyes that read them. Time is virtual on
// both.

namespace user {

struct Box {
  std::string Text, Title;
  platform::Icon Icon;
  bool blnCancel;  ///< It offers Cancel beside OK.
  platform::Answer Standard;
};

/// Brings up what the platform needs around run, once in a process, and returns what run does.
int Play(int argc, char** argv, const std::function<int()>& run);

/// A platform as after its start: no windows, no script, not ended, the clock at 0, the dollar
/// currency, and folder as the folder of the settings file.
void Reset(const std::string& folder = {});

/// Starts the program as its main function does, and returns when it waits.
void Run(bool (*start)());

/// Lets the program be idle for that long; timers tick.
void Wait(std::uint32_t milliseconds);

/// Milliseconds since Reset.
std::uint32_t Now();

/// Brings the screen up to date with the model.
void Settle();

// The hand. Where it cannot reach a control it throws a logic error that says so. The press may be
// refused; what the control's handlers saw tells. False is returned where this user sees that it
// was.
bool Press(Control& control, float x, float y, int button = intLeftButton);
/// A move while the press is held; the place counts from the control that was pressed.
void Drag(Control& control, float x, float y);
void Release(Control& control, float x, float y, int button = intLeftButton);
bool Click(Control& control, int button = intLeftButton);
void Hover(Control& control);
/// Moves the pointer over bare ground near the window's bottom right corner.
void Hover(Window& window);
/// Clicks into a box, selects all of it and types.
bool Type(Control& box, const std::string& text);
bool Tab(Window& window);
/// A key by its name or letter: "Left", "F12", "5".
void Key(Window& window, const std::string& key, int shift = 0);
void Close(Window& window);
/// Gives a window the input.
void Activate(Window& window);
/// Restores a maximised window and drags its border until it is that wide.
void Resize(Window& window, double width);

// The eyes: a control or window as the screen shows it.
Control Seen(const Control& control);
Window Seen(const Window& window);
/// Whether the last drag was painted before its handlers returned.
bool PaintedAtOnce();

/// Runs while the next message box or modal window is open.
void WhileModal(std::function<void()> act);
/// Answers the next message box that has no answer yet; without one its standard button is taken.
void Answer(platform::Answer answer);
const std::vector<Box>& Boxes();
void ForgetBoxes();

/// Runs handler once, as an event of its own, as soon as the program next serves events; or when
/// time has passed, inside whatever wait the program is then in.
void AtNextTurn(std::function<void()> handler);
void After(std::uint32_t milliseconds, std::function<void()> handler);

bool Ended();

}  // namespace user
