#include "platform/headless/Headless.h"
#include "table/Waits.h"
#include "tests/Game.h"

namespace {

using ClockTest = Game;

/// No counter of a machine should step. Where one does, in whatever direction, one wait ends early
/// or late and no more. That it comes round to 0 is nothing.
TEST_F(ClockTest, WaitsRunThroughTheWrapAndAStepOfTheCounter) {
  constexpr std::int32_t hours = 5 * 3600 * 1000;
  for (const std::uint32_t start : {0U, 0U - 1U, 0U - 700U, 0U - 2000U, 1'000'000'000U}) {
    for (const std::int32_t step : {-hours, -500, -1, 0, 1, 500, hours}) {
      SCOPED_TRACE(std::to_string(start) + " stepping by " + std::to_string(step));
      headless::Reset(Folder(), start);
      headless::After(700, [step] { headless::StepTicks(step); });
      prcWaitSeconds(2);
      EXPECT_GE(headless::Now(), step == 0 ? 2001U : 700U);
      EXPECT_LE(headless::Now(), step == 0 ? 2002U : 2502U);
      const std::uint32_t after = headless::Now();
      headless::After(100, [] {});  // The wait must look at the counter in its middle.
      prcWaitSeconds(2);
      EXPECT_EQ(headless::Now() - after, 2001U);
    }
  }
}

}  // namespace
