#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "judges/ExactOdds.h"

namespace {

TEST(OddsTest, EveryOrderOfSixCardsGivesThePublishedCountsAndTheHelpsPage) {
  const auto odds = fncExactOdds();
  for (std::size_t size = 0; size < odds.size(); ++size) {
    const OddsRow& reckoned = fncOdds(intShoeSizes[size]);
    EXPECT_EQ(odds[size].Banker, reckoned.Banker) << intShoeSizes[size];
    EXPECT_EQ(odds[size].Player, reckoned.Player) << intShoeSizes[size];
    EXPECT_EQ(odds[size].Tie, reckoned.Tie) << intShoeSizes[size];
  }
  const OddsRow& eight = odds.back();
  EXPECT_EQ(eight.Banker, 2'292'252'566'437'888);
  EXPECT_EQ(eight.Player, 2'230'518'282'592'256);
  EXPECT_EQ(eight.Tie, 475'627'426'473'216);
  EXPECT_NEAR(fncEdge(eight, betBanker), 0.010579, 5e-7);
  EXPECT_NEAR(fncEdge(eight, betPlayer), 0.012351, 5e-7);
  EXPECT_NEAR(fncEdge(eight, betTie), 0.143596, 5e-7);
  std::ifstream file(VELMORA_HELP_PAGES "/odds.html");
  const std::string page{std::istreambuf_iterator<char>(file), {}};
  EXPECT_NE(page.find(fncOddsPage(odds)), std::string::npos) << fncOddsPage(odds);
}

}  // namespace
