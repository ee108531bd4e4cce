#include "platform/headless/Headless.h"
#include "table/Waits.h"
#include "tests/Game.h"

namespace {

using ClockTest = Game;

TEST_F(ClockTest, WaitsRunThroughTheWrapOfTheCounter) {
  for (const std::uint32_t before : {0U, 1U, 700U, 1500U, 1999U, 2000U, 2001U}) {
    headless::Reset(Folder(), 0U - before);
    prcWaitSeconds(2);
    EXPECT_GT(headless::Now(), 2000U) << before;
    EXPECT_LE(headless::Now(), 2002U) << before;
  }
}

TEST_F(ClockTest, AHandInViewRunsThroughTheWrap) {
  Start();
  Shuffle();
  NextResult("B");
  const std::uint32_t start = headless::Now();
  Deal();
  const std::uint32_t usual = headless::Now() - start;
  for (const std::uint32_t before : {100U, 900U, 1700U, 2600U}) {
    prcFreshGame(Folder());
    headless::Reset(Folder(), 0U - before - start);
    Start();
    Shuffle();
    NextResult("B");
    const std::uint32_t again = headless::Now();
    Deal();
    EXPECT_EQ(headless::Now() - again, usual) << before;
    EXPECT_FALSE(blnBusy);
  }
}

TEST_F(ClockTest, ACounterThatStepsEndsOneWaitAndNoMore) {
  // No counter of a machine should. Where one does, in whatever direction, the game goes on.
  constexpr std::int32_t hours = 5 * 3600 * 1000;
  for (const std::int32_t step : {-hours, -500, -1, 0, 1, 500, hours}) {
    headless::Reset(Folder(), 1'000'000'000);
    headless::After(700, [step] { headless::StepTicks(step); });
    prcWaitSeconds(2);
    EXPECT_GE(headless::Now(), 700U) << step;
    EXPECT_LE(headless::Now(), 2002U + 500U) << step;
    const std::uint32_t after = headless::Now();
    headless::After(100, [] {});  // The wait must look at the counter in its middle.
    prcWaitSeconds(2);
    EXPECT_GT(headless::Now() - after, 2000U) << step;
    EXPECT_LE(headless::Now() - after, 2002U) << step;
  }
}

}  // namespace
