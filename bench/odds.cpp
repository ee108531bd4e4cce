#include <cstdio>
#include <cstring>

#include "judges/ExactOdds.h"

// Prints the exact odds of the five shoe sizes: as plain rows, or with --html as the table of the
// help's page on odds.

int main(int argc, char** argv) {
  const auto odds = fncExactOdds();
  if (argc > 1 && std::strcmp(argv[1], "--html") == 0) {
    std::printf("%s", fncOddsPage(odds).c_str());
    return 0;
  }
  std::printf("decks %25s %25s %25s %10s %10s %10s\n", "Banker", "Player", "Tie", "edge B",
              "edge P", "edge T");
  for (std::size_t size = 0; size < odds.size(); ++size) {
    const OddsRow& row = odds[size];
    std::printf("%5d %25s %25s %25s %9.4f%% %9.4f%% %9.4f%%\n", intShoeSizes[size],
                fncGrouped(row.Banker).c_str(), fncGrouped(row.Player).c_str(),
                fncGrouped(row.Tie).c_str(), 100 * fncEdge(row, betBanker),
                100 * fncEdge(row, betPlayer), 100 * fncEdge(row, betTie));
  }
}
