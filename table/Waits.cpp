#include "table/Waits.h"

#include <cmath>

#include "marking/MarkCard.h"
#include "platform/platform.h"

void prcWaitSeconds(double seconds) {
  const std::uint32_t start = platform::TickCount();
  const double limit = seconds * 1000;
  // The difference of two unsigned counts stays right when the counter wraps in the middle of the
  // wait.
  for (double passed = 0; passed <= limit; passed = platform::TickCount() - start) {
    platform::WaitEvents(static_cast<std::uint32_t>(std::floor(limit - passed)) + 1);
  }
}

void prcMarkCardTimers() {
  for (int card = 0; card < intShoes; ++card) {
    if (MarkCardWindow* form = lngMarkCardHwnd[card] != 0 ? fncMarkCard(card) : nullptr) {
      form->Timer1.Enabled = true;
    }
  }
}
