#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "platform/headless/PaperMachine.h"
#include "platform/platform.h"

// The platform without a screen: a virtual clock that moves only while the program waits, a
// scripted user, and a record of what was shown. Tests speak this vocabulary; that of the user is
// also understood on the real widgets of the tests' stage, whose time is virtual too.

namespace user {

/// A message box that was shown.
struct Box {
  std::string Text, Title;
  platform::Icon Icon;
  platform::Buttons Buttons;
  platform::Answer Standard;
};

/// Milliseconds that have passed on the virtual clock since the reset of the platform.
std::uint32_t Now();

/// Lets virtual time pass while the program is idle: timers tick and scripted events run in their
/// order.
void Wait(std::uint32_t milliseconds);

/// Runs event once this many milliseconds from now have passed, inside whatever wait the program is
/// then in.
void After(std::uint32_t milliseconds, std::function<void()> event);

/// Runs event while the next message box or modal window is open.
void WhileModal(std::function<void()> event);

/// Answers the next unanswered message box; without one the box's standard button is taken.
void Answer(platform::Answer answer);

/// The boxes shown since the reset, oldest first.
const std::vector<Box>& Boxes();
void ForgetBoxes();

/// The program has ended.
bool Ended();

/// Brings the screen up to date with the model: windows that are up get their places and sizes,
/// and resize handlers run where a size has changed.
void Settle();

// The hand. Where it cannot reach a control it throws a logic error that says so. The press may be
// refused; what the control's handlers saw tells. False is returned where this user sees that it
// was.

/// A whole click: press, release, click.
bool Click(Control& control, int button = intLeftButton);
bool Press(Control& control, float x = 0, float y = 0, int button = intLeftButton);
/// A move while the press is held; the place counts from the control that was pressed.
void Drag(Control& control, float x, float y);
/// Whether the last drag was painted before its handlers returned.
bool PaintedAtOnce();
void Release(Control& control, float x = 0, float y = 0, int button = intLeftButton);
/// The pointer moves over a control, or over bare ground near the window's bottom right corner.
void Hover(Control& control);
void Hover(Window& window);
/// Clicks into a box, selects all of it and types. Returns whether the focus got there.
bool Type(Control& box, const std::string& text);
/// Moves the focus as the Tab key does. Returns whether it moved.
bool Tab(Window& window);
/// A key by its name or letter: "Left", "F12", "5".
void Key(Window& window, const std::string& key, int shift = 0);
void Close(Window& window);

}  // namespace user

namespace headless {

using namespace user;

/// Puts the platform back to its start: clock at start milliseconds, no script, no records, no
/// loaded windows, the dollar currency, and folder as the folder of the settings file. The game's
/// own tables are left alone.
void Reset(const std::string& folder, std::uint32_t start = 0);

/// Steps the counter of TickCount forward or back, against its contract. No time passes.
void StepTicks(std::int32_t milliseconds);

/// Runs event at the next turn of the event loop, which may be in the middle of a shuffle.
void AtNextTurn(std::function<void()> event);

/// Turns of the event loop since Reset.
std::uint64_t Turns();

/// Where the user wants the next file saved; without it AskSavePath is given up.
void SaveAs(std::string path);

/// The text of every copy and the title of every page printed since Reset.
std::vector<std::string>& Copied();
std::vector<std::string>& Printed();

/// The user picks a row of a grid or a point of a chart.
void Pick(Control& grid, int row);

}  // namespace headless
