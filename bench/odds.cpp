#include <cstdio>
#include <cstring>
#include <string>

#include "bench/ExactOdds.h"

// Prints the exact odds of the five shoe sizes: as plain rows, or with --html as the table of the
// help's page on odds.

namespace {

std::string fncGrouped(std::int64_t count) {
  std::string text = std::to_string(count);
  for (auto at = static_cast<std::ptrdiff_t>(text.size()) - 3; at > 0; at -= 3) {
    text.insert(static_cast<std::size_t>(at), ",");
  }
  return text;
}

void prcPrintRow(int decks, const OddsRow& row, bool blnHtml) {
  const char* const form = blnHtml ? "<tr><td>%d</td><td>%s</td><td>%s</td><td>%s</td>"
                                     "<td>%.4f%%</td><td>%.4f%%</td><td>%.4f%%</td></tr>\n"
                                   : "%5d %25s %25s %25s %9.4f%% %9.4f%% %9.4f%%\n";
  std::printf(form, decks, fncGrouped(row.Banker).c_str(), fncGrouped(row.Player).c_str(),
              fncGrouped(row.Tie).c_str(), 100 * fncBankerEdge(row), 100 * fncPlayerEdge(row),
              100 * fncTieEdge(row));
}

}  // namespace

int main(int argc, char** argv) {
  const bool blnHtml = argc > 1 && std::strcmp(argv[1], "--html") == 0;
  const auto odds = fncExactOdds();
  std::printf("%s", blnHtml ? "<table border=\"1\" cellspacing=\"0\" cellpadding=\"5\">\n"
                              "<tr><th rowspan=\"2\">Decks</th>"
                              "<th colspan=\"3\">Orders of six cards won by</th>"
                              "<th colspan=\"3\">House edge on</th></tr>\n"
                              "<tr><th>Banker</th><th>Player</th><th>Tie</th>"
                              "<th>Banker</th><th>Player</th><th>Tie</th></tr>\n"
                            : "decks                    banker                    player"
                              "                       tie    edge B     edge P     edge T\n");
  for (std::size_t size = 0; size < odds.size(); ++size) {
    prcPrintRow(intShoeSizes[size], odds[size], blnHtml);
  }
  if (blnHtml) {
    std::printf("</table>\n");
  }
}
