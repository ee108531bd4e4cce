#include <array>
#include <cstdio>

#include "table/Odds.h"
#include "tests/Game.h"

namespace {

TEST(OddsTest, AreThePublishedOnesOfTheHelp) {
  std::string page = fncFile(VELMORA_HELP_PAGES "/odds.html");
  std::erase(page, ',');
  for (const int decks : intShoeSizes) {
    const OddsRow& row = fncOdds(decks);
    std::string line = "<tr><td>" + std::to_string(decks);
    for (const std::int64_t count : {row.Banker, row.Player, row.Tie}) {
      line += "</td><td>" + std::to_string(count);
    }
    for (const BetSide side : {betBanker, betPlayer, betTie}) {
      std::array<char, 32> edge{};
      std::snprintf(edge.data(), edge.size(), "</td><td>%.4f%%", 100 * fncEdge(row, side));
      line += edge.data();
    }
    EXPECT_NE(page.find(line + "</td></tr>"), std::string::npos) << line;
  }
}

}  // namespace
