#pragma once

// One running program for each user.

namespace qt {

/// Whether this process holds the user's lock from now on. The lock goes with the process, however
/// it ends.
bool fncTakeLock();

/// Asks the process that holds the lock to come to the front.
void prcRaiseOther();

/// Gives up the lock.
void prcGiveUpLock();

}  // namespace qt
