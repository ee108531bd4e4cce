#pragma once

#include <functional>

// How handlers of the program run inside the toolkit's event loop, and how the program ends.

namespace qt {

/// Whether the program has ended. From then on nothing is dispatched.
bool fncEnded();

/// Throws EndOfProgram once the program has ended.
void prcThrowIfEnded();

/// Notes the end and lets every loop leave.
void prcNoteEnd();

/// Makes the end undone, for tests that end the program more than once.
void prcForgetEnd();

/// Runs handlers for one event of the user and brings the screen up to date. Nothing is thrown out
/// of it, so it may stand directly in a callback of the toolkit.
void prcServe(const std::function<void()>& handlers);

/// Serves events, sleeping between them, until blnDone says so or the program ends; then it throws
/// EndOfProgram.
void prcServeUntil(const std::function<bool()>& blnDone);

}  // namespace qt
