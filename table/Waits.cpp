#include "table/Waits.h"

#include <cmath>

#include "platform/platform.h"

void prcWaitSeconds(double seconds) {
  const std::uint32_t start = platform::TickCount();
  const double limit = seconds * 1000;
  // The difference of two unsigned counts stays right when the counter wraps in the middle of the
  // wait.
  double passed = 0;
  while (passed <= limit) {
    platform::WaitEvents(static_cast<std::uint32_t>(std::floor(limit - passed)) + 1);
    passed = platform::TickCount() - start;
  }
}
