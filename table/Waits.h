#pragma once

/// Returns when more than this many seconds have passed; events are served meanwhile, the processor
/// rests.
void prcWaitSeconds(double seconds);
