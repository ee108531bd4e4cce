#include "evening/Curve.h"

#include <algorithm>

#include "evening/Reckoning.h"

namespace {

CurvePoint fncPoint(const EveningHand& hand, Integer intSeat, double won, const BandEdges& band) {
  const auto seat = static_cast<std::size_t>(intSeat);
  const double money = hand.Money.at(seat);
  CurvePoint point{.Money = money, .Stake = hand.Stake.at(seat), .Base = money - won};
  std::ranges::transform(band, point.Band.begin(),
                         [&](float edge) { return point.Base + double{edge}; });
  return point;
}

}  // namespace

std::vector<CurvePoint> fncCurve(Integer intSeat, int shoe) {
  std::vector<CurvePoint> curve;
  const Reach reach = fncReach(shoe);
  if (reach.From == reach.To) {
    return curve;
  }
  const std::deque<BandEdges>& bands =
      fncReckoning(shoe).Band.at(static_cast<std::size_t>(intSeat));
  curve.reserve(static_cast<std::size_t>(reach.To - reach.From) + 1);
  EveningHand start = fncEveningHand(reach.From + 1);
  start.Money.at(static_cast<std::size_t>(intSeat)) = fncMoneyBefore(start, intSeat);
  curve.push_back(fncPoint(start, intSeat, 0, {}));
  double won = 0;
  for (int number = reach.From + 1; number <= reach.To; ++number) {
    const EveningHand& hand = fncEveningHand(number);
    won += fncNet(hand, intSeat);
    const std::size_t at = curve.size() - 1;
    curve.push_back(fncPoint(hand, intSeat, won, at < bands.size() ? bands[at] : BandEdges{}));
  }
  return curve;
}

Stretch fncDeepestFall(Integer intSeat, int shoe) {
  const Reach reach = fncReach(shoe);
  Stretch deepest;
  double won = 0, height = 0;
  int top = reach.From;
  for (int number = reach.From + 1; number <= reach.To; ++number) {
    won += fncNet(fncEveningHand(number), intSeat);
    if (won >= height) {
      height = won;
      top = number;
    } else if (height - won > deepest.Amount) {
      deepest = {top, number, height - won};
    }
  }
  return deepest;
}

Stretch fncLongestLosingRun(Integer intSeat, int shoe) {
  const Reach reach = fncReach(shoe);
  Stretch longest, run;
  for (int number = reach.From + 1; number <= reach.To; ++number) {
    const double net = fncNet(fncEveningHand(number), intSeat);
    if (net > 0) {
      run = {};
    } else if (net < 0) {
      run = {run.Amount == 0 ? number - 1 : run.From, number, run.Amount + 1};
      longest = run.Amount > longest.Amount ? run : longest;
    }
  }
  return longest;
}
