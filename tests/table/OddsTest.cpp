#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <fstream>
#include <iterator>

#include "platform/Texts.h"
#include "table/Odds.h"

namespace {

TEST(OddsTest, ArePublishedOnesAndStandInTheHelp) {
  const OddsRow& eight = fncOdds(8);
  EXPECT_EQ(eight.Banker, 2'292'252'566'437'888);
  EXPECT_EQ(eight.Player, 2'230'518'282'592'256);
  EXPECT_EQ(eight.Tie, 475'627'426'473'216);
  std::ifstream file(VELMORA_HELP_PAGES "/odds.html");
  const std::string page{std::istreambuf_iterator<char>(file), {}};
  for (const int decks : intShoeSizes) {
    const OddsRow& row = fncOdds(decks);
    std::string line = "<tr><td>" + std::to_string(decks) + "</td>";
    for (const std::int64_t count : {row.Banker, row.Player, row.Tie}) {
      std::string grouped = std::to_string(count);
      for (std::size_t at = grouped.size(); at > 3;) {
        at -= 3;
        grouped.insert(at, ",");
      }
      line += "<td>" + grouped + "</td>";
    }
    for (const BetSide side : {betBanker, betPlayer, betTie}) {
      std::array<char, 32> edge{};
      std::snprintf(edge.data(), edge.size(), "<td>%.4f%%</td>", 100 * fncEdge(row, side));
      line += edge.data();
    }
    EXPECT_NE(page.find(line + "</tr>"), std::string::npos) << line;
  }
}

}  // namespace
