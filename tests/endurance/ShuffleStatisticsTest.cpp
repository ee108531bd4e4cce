#include <gtest/gtest.h>

#include "judges/ShuffleStatistics.h"

// Two million positions of each size; docs/shuffle.md tells what ten million of each gave.

namespace {

class ShuffleStatisticsTest : public testing::TestWithParam<int> {};

TEST_P(ShuffleStatisticsTest, KeepsToWhatTheMethodPromises) {
  constexpr int positions = 2'000'000;
  const int shoes = positions / GetParam() / intSlotsOfDeck;
  EXPECT_TRUE(fncShuffleStatistics(GetParam(), shoes, 1).fncHolds())
      << "velmora_shuffle " << positions << " tells what does not";
}

INSTANTIATE_TEST_SUITE_P(Sizes, ShuffleStatisticsTest, testing::ValuesIn(intShoeSizes));

TEST(ChiSquareTest, TellsABentDie) {
  ChiSquare bent;
  bent.prcAddAlike(std::array<double, 6>{160, 88, 88, 88, 88, 88});
  EXPECT_FALSE(bent.fncLikely());
}

}  // namespace
