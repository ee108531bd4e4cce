#include <gtest/gtest.h>

#include "judges/ShuffleStatistics.h"

// Two million positions of each size; docs/shuffle.md tells what ten million of each gave.

namespace {

class ShuffleStatisticsTest : public testing::TestWithParam<int> {};

TEST_P(ShuffleStatisticsTest, KeepsToWhatTheMethodPromises) {
  constexpr std::int64_t positions = 2'000'000;
  const ShuffleStatistics s =
      fncShuffleStatistics(GetParam(), positions / GetParam() / intSlotsOfDeck, 1);
  EXPECT_EQ(s.BrokenShoes, 0);
  EXPECT_LT(std::abs(s.FirstSlot.fncDeviation()), dblChance);
  EXPECT_LT(std::abs(s.MirroredValues.fncDeviation()), dblChance);
  EXPECT_LT(std::abs(s.MirroredSteps.fncDeviation()), dblChance);
  if (GetParam() >= 4) {
    EXPECT_LT(std::abs(s.ValueByPosition.fncDeviation()), dblChance);
  }
}

INSTANTIATE_TEST_SUITE_P(Sizes, ShuffleStatisticsTest, testing::ValuesIn(intShoeSizes));

TEST(ChiSquareTest, TellsABentDie) {
  ChiSquare bent;
  for (const int counted : {160, 88, 88, 88, 88, 88}) {
    bent.prcAdd(counted, 100);
  }
  EXPECT_GT(bent.fncDeviation(), dblChance);
}

}  // namespace
