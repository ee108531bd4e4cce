#pragma once

#include <functional>
#include <string>

#include "platform/headless/Headless.h"

// The user of the replays, the conformance suite and the endurance runs, once for each platform.
// Headless.h has most of his words. HeadlessUser.cpp acts on the model and looks at it, the stage
// of the tests has a hand that presses keys and mouse buttons at the real widgets and eyes that
// read them. Time is virtual on both.

namespace user {

/// Brings up what the platform needs around run, once in a process, and returns what run does.
int Play(int argc, char** argv, const std::function<int()>& run);

/// A platform as after its start: no windows, no script, not ended, the clock at 0, the dollar
/// currency, and folder as the folder of the settings file.
void Reset(const std::string& folder = {});

/// Starts the program as its main function does, and returns when it waits.
void Run(bool (*start)());

/// Gives a window the input.
void Activate(Window& window);
/// Restores a maximised window and drags its border until it is that wide.
void Resize(Window& window, double width);

// The eyes: a control or window as the screen shows it.
Control Seen(const Control& control);
Window Seen(const Window& window);

}  // namespace user
