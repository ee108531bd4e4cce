#include "evening/Luck.h"

#include <algorithm>
#include <cmath>

#include "evening/Reckoning.h"
#include "table/Odds.h"

namespace {

void prcCountSeat(Luck& luck, const EveningHand& hand, int seat) {
  luck.Won += fncNet(hand, seat);
  for (const BetSide side : betSides) {
    const double bet = fncBetMoney(hand, seat, side);
    luck.Staked.at(static_cast<std::size_t>(side)) += bet;
    luck.Cost.at(static_cast<std::size_t>(side)) += bet * fncEdge(fncOdds(hand.Decks), side);
  }
}

/// What was staked and won, which needs no law.
void prcCount(Luck& luck, const Scope& scope) {
  const Reach reach = fncReach(scope.Shoe);
  for (int n = reach.From; n < reach.To; ++n) {
    const EveningHand& hand = fncEveningHand(n + 1);
    double staked = 0;
    for (int seat = 0; seat < intSeats; ++seat) {
      if (scope.Seat < 0 || scope.Seat == seat) {
        prcCountSeat(luck, hand, seat);
        staked += fncStaked(hand, seat);
      }
    }
    luck.Hands += staked > 0 ? 1 : 0;
  }
}

/// The places among those who bet the same. A grid is off by what it differs from one at least
/// twice as coarse, and cannot tell who came out just the same from who came near.
void prcCompare(Luck& luck, const BetLaw& law) {
  const std::int64_t won = std::llround(luck.Won * intTwentieths);
  luck.Worse = std::clamp(fncShareBelow(law.Sum, won), 0.0, 1.0);
  luck.Better = std::max(1 - luck.Worse - fncShareAt(law.Sum, won), 0.0);
  luck.Exact = law.Sum.fncExact();
  if (!luck.Exact) {
    luck.Error =
        std::abs(luck.Worse - fncShareBelow(law.Coarse, won)) + fncShareNear(law.Sum, won) / 2;
  }
}

}  // namespace

Luck fncLuck(const Scope& scope) {
  Luck luck;
  prcCount(luck, scope);
  const Reckoning& reckoning = fncReckoning(scope.Shoe);
  const Reach reach = fncReach(scope.Shoe);
  luck.Reckoned = reckoning.Hands == reach.To - reach.From;
  if (!luck.Reckoned || luck.Hands == 0) {
    return luck;
  }
  const BetLaw& law = reckoning.fncLaw(scope.Seat);
  luck.Expected = law.Sum.Mean;
  luck.Fortune = luck.Won - luck.Expected;
  luck.Deviation = std::sqrt(law.Sum.Variance);
  luck.Deviations = luck.Deviation > 0 ? luck.Fortune / luck.Deviation : 0;
  prcCompare(luck, law);
  return luck;
}
