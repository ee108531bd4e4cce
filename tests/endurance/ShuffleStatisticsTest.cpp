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
  EXPECT_LT(std::abs(s.Burnt.fncDeviation()), dblChance);
  EXPECT_LT(std::abs(s.MirroredValues.fncDeviation()), dblChance);
  EXPECT_LT(std::abs(s.MirroredSteps.fncDeviation()), dblChance);
  if (GetParam() >= 4) {
    EXPECT_LT(std::abs(s.ValueByPosition.fncDeviation()), dblChance);
  }
}

INSTANTIATE_TEST_SUITE_P(Sizes, ShuffleStatisticsTest, testing::ValuesIn(intShoeSizes));

TEST(ShuffleEnds, ComeOutFirstHalfAsOften) {
  const ShuffleStatistics s = fncShuffleStatistics(1, 20'000, 1);
  const double ends = static_cast<double>(s.LowEndFirst + s.HighEndFirst) / 2;
  EXPECT_NEAR(ends / s.InnerFirst, 0.5, 0.1);
}

TEST(ChiSquareTest, TellsABentDieFromAFairOne) {
  ChiSquare fair, bent;
  for (const int counted : {98, 104, 95, 101, 107, 95}) {
    fair.prcAdd(counted, 100);
  }
  for (const int counted : {160, 88, 88, 88, 88, 88}) {
    bent.prcAdd(counted, 100);
  }
  EXPECT_LT(std::abs(fair.fncDeviation()), 2);
  EXPECT_GT(bent.fncDeviation(), dblChance);
}

}  // namespace
