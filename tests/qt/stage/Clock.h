#pragma once

#include <QAbstractEventDispatcher>
#include <cstdint>
#include <functional>

// Time on the stage: the toolkit's event loop on a clock of our own. Nothing sleeps; where nothing
// is pending the clock goes on to the next timer or scripted event at once.

namespace stage {

/// The event loop of this process; the application object takes it down.
QAbstractEventDispatcher* fncEventLoop();

/// Milliseconds since prcResetClock, which forgets the script; timers that run go on.
std::uint64_t fncNow();
void prcResetClock();

/// Runs event once this many milliseconds from now have passed.
void prcAfter(std::uint32_t milliseconds, std::function<void()> event);

/// Called before the clock goes on, for a user who sees what is open; returns whether he did
/// something.
void prcWhenIdle(bool (*look)());

/// Delivers what the toolkit and the window system have posted. No time passes, no timer ticks.
void prcFlush();

}  // namespace stage
