#pragma once

#include <functional>
#include <vector>

#include "platform/Control.h"

// How the window benchmarks take and tell what they measure. All times are milliseconds.

namespace bench {

/// A clock that goes only forward.
double fncNow();

/// Processor time that this process has used so far.
double fncProcessorTime();

/// The value below which this part 0..1 of the values lies; the values must not be empty.
double fncQuantile(std::vector<double> values, double part);

/// Prints "name value" as a line of its own, for bench/run to read.
void prcTell(const char* name, double value);

/// Ends the measurement with a sentence on the error stream.
[[noreturn]] void prcGiveUp(const char* why);

/// Calls back once the painting of the window that holds a control is done: the control has been
/// painted, no timer of the start is due and the event loop has turned once more.
void prcWhenPainted(const Control& control, std::function<void()> done);

/// Sleeps in the event loop.
void prcRest(int milliseconds);

/// Renames of files that this process has done so far.
int fncRenames();

}  // namespace bench
