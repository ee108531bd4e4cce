#include "evening/Luck.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "evening/Reckoning.h"

namespace {

constexpr double dblMostError = 0.005;  // Of the shares of players that are told.

/// Results of the widest bets that are kept apart where a grid is off by more.
constexpr std::size_t lngLeastWide = 1U << 10U, lngMostWide = 1U << 14U;

void prcCountSeat(Luck& luck, const EveningHand& hand, int seat) {
  luck.Won += fncNet(hand, seat);
  for (const BetSide side : betSides) {
    if (const double bet = fncBetMoney(hand, seat, side); bet != 0) {
      luck.Staked.at(static_cast<std::size_t>(side)) += bet;
      luck.Cost.at(static_cast<std::size_t>(side)) += fncCost(hand, seat, side);
    }
  }
}

/// What was staked and won, which needs no law.
void prcCount(Luck& luck, const Scope& scope) {
  const Reach reach = fncReach(scope.Shoe);
  for (int n = reach.From; n < reach.To; ++n) {
    const EveningHand& hand = fncEveningHand(n + 1);
    double staked = 0;
    for (int seat = 0; seat < intSeats; ++seat) {
      if (scope.fncHas(seat)) {
        prcCountSeat(luck, hand, seat);
        staked += fncStaked(hand, seat);
      }
    }
    luck.Hands += staked > 0 ? 1 : 0;
  }
}

/// The places among those who bet the same, of whom the widest bets came to each of some results,
/// and the rest follow a law. A grid is off by what it differs from one at least twice as coarse,
/// and cannot tell who came out just the same from who came near.
void prcCompare(Luck& luck, const SplitLaw& law) {
  const std::int64_t won = std::llround(luck.Won * intTwentieths);
  double coarse = 0, same = 0, near = 0;
  luck.Worse = 0;
  for (const Atom& atom : law.Wide.Atoms) {
    const std::int64_t rest = won - atom.Sum;
    luck.Worse += atom.Share * fncShareBelow(law.Rest.Sum, rest);
    coarse += atom.Share * fncShareBelow(law.Rest.Coarse, rest);
    same += atom.Share * fncShareAt(law.Rest.Sum, rest);
    near += atom.Share * fncShareNear(law.Rest.Sum, rest);
  }
  luck.Exact = law.Rest.Sum.fncExact();
  luck.Error = luck.Exact ? 0 : std::abs(luck.Worse - coarse) + near / 2;
  luck.Worse = std::clamp(luck.Worse, 0.0, 1.0);
  luck.Better = std::max(1 - luck.Worse - same, 0.0);
}

std::vector<HandLaw> fncHandLaws(const Scope& scope) {
  std::vector<HandLaw> laws;
  const Reach reach = fncReach(scope.Shoe);
  for (int n = reach.From + 1; n <= reach.To; ++n) {
    const EveningHand& hand = fncEveningHand(n);
    laws.push_back(scope.Seat < 0 ? fncTogether(fncHandLaw(hand, 0), fncHandLaw(hand, 1))
                                  : fncHandLaw(hand, scope.Seat));
  }
  return laws;
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
  luck.Fortune = luck.Won + fncOfAll(luck.Cost);
  luck.Deviation = std::sqrt(law.Sum.Variance);
  luck.Deviations = luck.Deviation > 0 ? luck.Fortune / luck.Deviation : 0;
  prcCompare(luck, {.Rest = law});
  for (std::size_t wide = lngLeastWide; luck.Error > dblMostError && wide <= lngMostWide;) {
    Luck finer = luck;
    prcCompare(finer, fncSplitLaw(fncHandLaws(scope), wide));
    if (finer.Error >= luck.Error) {
      break;
    }
    luck = finer;
    wide *= 4;
  }
  return luck;
}
