#include "judges/ExactOdds.h"

#include <cstdio>

#include "table/HandDealing.h"

namespace {

constexpr int intShoe = 1;  // The table plays shoe 0: what lies in this one is listed nowhere.
constexpr int intMostCards = 6;
constexpr int intRanks = 13;
constexpr int intOfDeck = 4;  // Cards of a rank in one deck.

using Odds = std::array<OddsRow, intShoeSizes.size()>;
using Weights = std::array<std::int64_t, intShoeSizes.size()>;

void prcPrepareShoe() {
  intShoeCards[intShoe].prcBound(intMostSlots - 1);
  intCardValue[intShoe].prcBound(intMostSlots - 1);
  for (int slot = 0; slot < intSlotsOfDeck; ++slot) {
    intCardValue[intShoe][slot] = slot % 13 + 1;
  }
  intLastCard[intShoe] = intMostSlots - 1;
}

void prcDeal(const Weights& weights, Odds& odds) {
  intNextCard[intShoe] = 0;
  blnLastHand[intShoe] = blnEndOfShoe[intShoe] = false;
  ZNEW_DealHand(intShoe);
  const char result = strResult[intShoe].front();
  for (std::size_t size = 0; size < odds.size(); ++size) {
    OddsRow& row = odds[size];
    (result == 'B' ? row.Banker : result == 'P' ? row.Player : row.Tie) += weights[size];
  }
}

/// Lays every card that may come at a position and goes on behind it. A weight is the number of
/// ways in which the cards laid so far can leave a shoe of that size.
void prcLay(int position, const Weights& weights, std::array<int, intRanks>& laid, Odds& odds) {
  if (position == intMostCards) {
    prcDeal(weights, odds);
    return;
  }
  for (int rank = 0; rank < intRanks; ++rank) {
    int& used = laid[static_cast<std::size_t>(rank)];
    Weights next = weights;
    for (std::size_t size = 0; size < next.size(); ++size) {
      next[size] *= intOfDeck * intShoeSizes[size] - used;
    }
    intShoeCards[intShoe][position] = rank;
    ++used;
    prcLay(position + 1, next, laid, odds);
    --used;
  }
}

}  // namespace

std::array<OddsRow, intShoeSizes.size()> fncExactOdds() {
  prcPrepareShoe();
  Odds odds{};
  Weights one;
  one.fill(1);
  std::array<int, intRanks> laid{};
  prcLay(0, one, laid, odds);
  return odds;
}

std::string fncOddsPage(const std::array<OddsRow, intShoeSizes.size()>& odds) {
  std::string page =
      "<table border=\"1\" cellspacing=\"0\" cellpadding=\"5\">\n"
      "<tr><th rowspan=\"2\">Decks</th><th colspan=\"3\">Orders of six cards won by</th>"
      "<th colspan=\"3\">House edge on</th></tr>\n"
      "<tr><th>Banker</th><th>Player</th><th>Tie</th>"
      "<th>Banker</th><th>Player</th><th>Tie</th></tr>\n";
  for (std::size_t size = 0; size < odds.size(); ++size) {
    const OddsRow& row = odds[size];
    page += "<tr><td>" + std::to_string(intShoeSizes[size]) + "</td>";
    for (const std::int64_t count : {row.Banker, row.Player, row.Tie}) {
      page += "<td>" + fncGrouped(count) + "</td>";
    }
    for (const BetSide side : {betBanker, betPlayer, betTie}) {
      std::array<char, 32> text{};
      std::snprintf(text.data(), text.size(), "<td>%.4f%%</td>", 100 * fncEdge(row, side));
      page += text.data();
    }
    page += "</tr>\n";
  }
  return page + "</table>\n";
}

std::string fncGrouped(std::int64_t count) {
  std::string text = std::to_string(count);
  for (auto at = static_cast<std::ptrdiff_t>(text.size()) - 3; at > 0; at -= 3) {
    text.insert(static_cast<std::size_t>(at), ",");
  }
  return text;
}
