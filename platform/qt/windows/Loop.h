#pragma once

#include <functional>

// How the program waits inside the toolkit's event loop, and how it ends.

namespace qt {

/// Whether the program has ended. From then on nothing is dispatched.
bool fncEnded();

/// Throws EndOfProgram once the program has ended.
void prcThrowIfEnded();

/// Notes the end and lets every loop leave.
void prcNoteEnd();

/// Makes the end undone, for tests that end the program more than once.
void prcForgetEnd();

/// Serves events, sleeping between them, until blnDone says so or the program ends; then it throws
/// EndOfProgram.
void prcServeUntil(const std::function<bool()>& blnDone);

}  // namespace qt
