#include "table/Waits.h"

#include <cmath>

#include "marking/MarkCard.h"
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

void prcMarkCardTimers() {
  for (int k = 0; k < intShoes; ++k) {
    if (MarkCardWindow* form = lngMarkCardHwnd[k] != 0 ? fncMarkCard(k) : nullptr) {
      form->Timer1.Enabled = true;
    }
  }
}
