#pragma once

#include <QAbstractEventDispatcher>

// Time on the stage: the toolkit's event loop on a clock of our own. Nothing sleeps; where nothing
// is pending the clock goes on to the next timer or scripted event at once.

namespace stage {

/// The event loop of this process; the application object takes it down.
QAbstractEventDispatcher* fncEventLoop();

/// Begins the time of user::Now anew and forgets what user::After was told; timers that run go on.
void prcResetClock();

/// Called before the clock goes on, for a user who sees what is open; returns whether he did
/// something.
void prcWhenIdle(bool (*look)());

/// Delivers what the toolkit and the window system have posted. No time passes, no timer ticks.
void prcFlush();

}  // namespace stage
