#pragma once

#include <exception>
#include <new>
#include <utility>

#include "platform/Fault.h"

// The guard of a labelled procedure. The one place that tells a fault to the user is prcTellFault.

/// Marks the way out of a program that has ended: it passes every guard and stops at the event
/// dispatcher.
struct EndOfProgram {};

/// A labelled procedure that is running; they nest as calls do.
struct Procedure {
  Procedure();
  ~Procedure();
  Procedure(const Procedure&) = delete;
  Procedure& operator=(const Procedure&) = delete;

  int Line = 0;
  Procedure* Outer;
};

/// Notes that the innermost labelled procedure has reached this line: 10 for its first step, 20 for
/// the next.
void At(int line);

/// Shows the failure box for a fault at a line of the procedure called label, and ends the program.
[[noreturn]] void prcTellFault(const char* label, int line, const Fault& fault);

/// Runs body as the procedure called label. A fault in it is told under this label, and the program
/// ends.
template <class Body>
auto Guarded(const char* label, Body&& body) {
  int line = 0;
  Fault fault = faultInternal;
  try {
    const Procedure running;
    try {
      return std::forward<Body>(body)();
    } catch (...) {
      line = running.Line;
      throw;
    }
  } catch (const EndOfProgram&) {
    throw;
  } catch (const Fault& raised) {
    fault = raised;
  } catch (const std::bad_alloc&) {
    fault = faultOutOfMemory;
  } catch (const std::exception&) {
    fault = faultInternal;
  }
  prcTellFault(label, line, fault);
}
