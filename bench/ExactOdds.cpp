#include "bench/ExactOdds.h"

#include "table/HandDealing.h"

namespace {

constexpr int intShoe = 1;  // The table plays shoe 0: what lies in this one is listed nowhere.
constexpr int intMostCards = 6;
constexpr int intPoints = 10;

using Odds = std::array<OddsRow, intShoeSizes.size()>;
using Weights = std::array<std::int64_t, intShoeSizes.size()>;

/// Cards of one deck that count this many points: the tens and the pictures all count 0.
constexpr int fncOfDeck(int points) { return points == 0 ? 16 : 4; }

/// A face value that counts this many points.
constexpr int fncFace(int points) { return points == 0 ? 13 : points; }

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
void prcLay(int position, const Weights& weights, std::array<int, intPoints>& laid, Odds& odds) {
  if (position == intMostCards) {
    prcDeal(weights, odds);
    return;
  }
  for (int points = 0; points < intPoints; ++points) {
    int& used = laid[static_cast<std::size_t>(points)];
    Weights next = weights;
    for (std::size_t size = 0; size < next.size(); ++size) {
      next[size] *= fncOfDeck(points) * intShoeSizes[size] - used;
    }
    intShoeCards[intShoe][position] = fncFace(points) - 1;
    ++used;
    prcLay(position + 1, next, laid, odds);
    --used;
  }
}

/// A share of all orders. Both counts are below 2^53, so they are exact as they stand.
double fncShare(const OddsRow& row, std::int64_t count) {
  return static_cast<double>(count) / static_cast<double>(row.fncAll());
}

}  // namespace

std::array<OddsRow, intShoeSizes.size()> fncExactOdds() {
  prcPrepareShoe();
  Odds odds{};
  Weights one;
  one.fill(1);
  std::array<int, intPoints> laid{};
  prcLay(0, one, laid, odds);
  return odds;
}

double fncBankerEdge(const OddsRow& row) {
  return fncShare(row, row.Player) - 0.95 * fncShare(row, row.Banker);
}

double fncPlayerEdge(const OddsRow& row) {
  return fncShare(row, row.Banker) - fncShare(row, row.Player);
}

double fncTieEdge(const OddsRow& row) {
  return fncShare(row, row.Banker + row.Player) - 8 * fncShare(row, row.Tie);
}
