#include "evening/Luck.h"

#include <algorithm>
#include <cmath>

#include "evening/Law.h"
#include "table/Odds.h"

namespace {

/// Points of a law times hands that are reckoned without being felt, and the least and most points
/// that a law gets of them.
constexpr std::size_t lngPointsAndHands = 8'000'000;
constexpr std::size_t lngLeastPoints = 1U << 11U, lngMostPoints = 1U << 20U;

/// The bets of a scope, hand by hand.
std::vector<HandLaw> fncLaws(const Scope& scope, Luck& luck) {
  std::vector<HandLaw> laws;
  for (const EveningHand& hand : colEveningHands) {
    if (scope.Shoe != 0 && hand.Shoe != scope.Shoe) {
      continue;
    }
    double staked = 0;
    for (int i = 0; i < intSeats; ++i) {
      if (scope.Seat >= 0 && scope.Seat != i) {
        continue;
      }
      luck.Won += fncNet(hand, i);
      staked += fncStaked(hand, i);
      for (const BetSide side : betSides) {
        const double bet = fncBetMoney(hand, i, side);
        const auto at = static_cast<std::size_t>(side);
        luck.Staked.at(at) += bet;
        luck.Cost.at(at) += bet * fncEdge(fncOdds(hand.Decks), side);
      }
    }
    if (staked > 0) {
      laws.push_back(scope.Seat < 0 ? fncHandLaw(hand) : fncHandLaw(hand, scope.Seat));
    }
  }
  return laws;
}

SumLaw fncSum(const std::vector<HandLaw>& laws, std::size_t most) {
  SumLaw sum{.Most = most};
  for (const HandLaw& law : laws) {
    prcAddHand(sum, law);
  }
  return sum;
}

/// The places among those who bet the same. A grid is off by what it differs from one at least
/// twice as coarse, and cannot tell who came out just the same from who came near.
void prcCompare(Luck& luck, const std::vector<HandLaw>& laws, const SumLaw& sum) {
  const std::int64_t won = std::llround(luck.Won * intTwentieths);
  luck.Worse = std::clamp(fncShareBelow(sum, won), 0.0, 1.0);
  luck.Better = std::max(1 - luck.Worse - fncShareAt(sum, won), 0.0);
  luck.Exact = sum.fncExact();
  if (!luck.Exact) {
    luck.Error = std::abs(luck.Worse - fncShareBelow(fncSum(laws, sum.Most / 4), won)) +
                 fncShareNear(sum, won) / 2;
  }
}

}  // namespace

Luck fncLuck(const Scope& scope) {
  Luck luck;
  const std::vector<HandLaw> laws = fncLaws(scope, luck);
  if (laws.empty()) {
    return luck;
  }
  luck.Hands = static_cast<int>(laws.size());
  const SumLaw sum =
      fncSum(laws, std::clamp(lngPointsAndHands / laws.size(), lngLeastPoints, lngMostPoints));
  luck.Expected = sum.Mean;
  luck.Fortune = luck.Won - luck.Expected;
  luck.Deviation = std::sqrt(sum.Variance);
  luck.Deviations = luck.Deviation > 0 ? luck.Fortune / luck.Deviation : 0;
  prcCompare(luck, laws, sum);
  return luck;
}
