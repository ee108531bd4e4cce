#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "platform/headless/PaperMachine.h"
#include "platform/platform.h"

// The platform without a screen: a virtual clock that moves only while the program waits, a
// scripted user, and a record of what was shown. Tests speak this vocabulary.

namespace headless {

/// A message box that was shown.
struct Box {
  std::string Text, Title;
  platform::Icon Icon;
  platform::Buttons Buttons;
  platform::Answer Standard;
};

/// Puts the platform back to its start: clock at start milliseconds, no script, no records, no
/// loaded windows, the dollar currency, and folder as the folder of the settings file. The game's
/// own tables are left alone.
void Reset(const std::string& folder, std::uint32_t start = 0);

/// Milliseconds that have passed on the virtual clock since Reset.
std::uint32_t Now();

/// Steps the counter of TickCount forward or back, against its contract. No time passes.
void StepTicks(std::int32_t milliseconds);

/// Lets virtual time pass while the program is idle: timers tick and scripted events run in their
/// order.
void Wait(std::uint32_t milliseconds);

/// Runs event once this many milliseconds from now have passed, inside whatever wait the program is
/// then in.
void After(std::uint32_t milliseconds, std::function<void()> event);

/// Runs event at the next turn of the event loop, which may be in the middle of a shuffle.
void AtNextTurn(std::function<void()> event);

/// Runs event while the next message box or modal window is open.
void WhileModal(std::function<void()> event);

/// Answers the next unanswered message box; without one the box's standard button is taken.
void Answer(platform::Answer answer);

/// The boxes shown since Reset, oldest first.
const std::vector<Box>& Boxes();
void ForgetBoxes();

/// Turns of the event loop since Reset, and controls that were repainted at once, by name and index
/// ("pctCardBack(0)").
std::uint64_t Turns();
std::vector<std::string>& Repaints();

/// The program has ended.
bool Ended();

/// Where the user wants the next file saved; without it AskSavePath is given up.
void SaveAs(std::string path);

/// The text of every copy and the title of every page printed since Reset.
std::vector<std::string>& Copied();
std::vector<std::string>& Printed();

/// Gives windows that are up what a screen gives them: a place in the middle where they have none
/// of their own, and the inner size; the resize handler runs where that has changed.
void PlaceWindows();

// The scripted user. Each call fails the test by an exception when the control is not there to be
// used.

/// A whole click: press, release, click. Returns whether the press stood.
bool Click(Control& control, int button = intLeftButton);
bool Press(Control& control, float x = 0, float y = 0, int button = intLeftButton);
/// A move while the press is held; the place counts from the control that was pressed.
void Drag(Control& control, float x, float y);
void Release(Control& control, float x = 0, float y = 0);
/// The pointer moves over a control, or over the bare window.
void Hover(Control& control);
void Hover(Window& window);
/// The user picks a row of a grid or a point of a chart.
void Pick(Control& grid, int row);
/// Puts the focus in a box as by mouse and replaces its text as by typing. Returns whether the
/// focus got there.
bool Type(Control& box, const std::string& text);
/// Moves the focus as the Tab key does. Returns whether it moved.
bool Tab(Window& window);
void Key(Window& window, const std::string& key, int shift = 0);
void Close(Window& window);

}  // namespace headless
