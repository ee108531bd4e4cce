#pragma once

#include "platform/Fault.h"

// What a fault is told by: the labelled procedure in which it was raised, and its line.

/// Marks the way out of a program that has ended: it unwinds every procedure and stops at the event
/// dispatcher.
struct EndOfProgram {};

/// A labelled procedure that is running, made at its top. A fault that unwinds it is told under its
/// label and the step reached last, those of the innermost one; helpers without a label leave their
/// faults to their caller's step.
class Procedure {
 public:
  explicit Procedure(const char* label);
  ~Procedure();
  Procedure(const Procedure&) = delete;
  Procedure& operator=(const Procedure&) = delete;

  /// The procedure has reached this step; it begins at 1. The line that a fault tells is 10 times
  /// the step.
  void Step(int step) const { step_ = step; }

 private:
  const char* label_;
  int exceptions_;
  mutable int step_ = 1;
};

/// Runs work, which has but one step, as the procedure called label: for a handler of one line.
template <class Work>
auto Guarded(const char* label, Work&& work) {
  const Procedure running(label);
  return work();
}

/// Forgets where the last fault was raised, as must come before anything that may raise the next.
void prcForgetFault();

/// Shows the failure box for a fault, with the label and line that it unwound first, and ends the
/// program.
[[noreturn]] void prcTellFault(const Fault& fault);
