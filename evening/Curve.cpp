#include "evening/Curve.h"

#include <algorithm>

#include "evening/Law.h"

namespace {

/// What players who bet the same win up to a hand, in money.
struct Band {
  float Mean = 0;
  std::array<float, 4> Edges{};
};

/// The bands of a seat behind each hand of a reach so far, and the law behind the last of them.
struct Bands {
  SumLaw Law;
  std::deque<Band> ByHand;
};
std::array<Bands, intSeats> bands;  ///< Of the whole evening.

const EveningHand& fncHand(int number) {
  return colEveningHands[static_cast<std::size_t>(number) - 1];
}

/// Works out the bands of the hands that came since they were last asked for.
void prcExtend(Bands& of, Integer intSeat, Reach reach) {
  for (int n = reach.From + static_cast<int>(of.ByHand.size()) + 1; n <= reach.To; ++n) {
    prcAddHand(of.Law, fncHandLaw(fncHand(n), intSeat));
    Band band{.Mean = static_cast<float>(of.Law.Mean)};
    std::ranges::transform(fncQuantiles(of.Law, dblBandShares), band.Edges.begin(),
                           [](double edge) { return static_cast<float>(edge); });
    of.ByHand.push_back(band);
  }
}

/// A band lies around the money that the seat would own had its bets moved none.
CurvePoint fncPoint(const EveningHand& hand, Integer intSeat, double won, const Band& band) {
  const auto seat = static_cast<std::size_t>(intSeat);
  const double unmoved = hand.Money.at(seat) - won;
  CurvePoint point{.Money = hand.Money.at(seat),
                   .Stake = hand.Stake.at(seat),
                   .Expected = unmoved + double{band.Mean}};
  std::ranges::transform(band.Edges, point.Band.begin(),
                         [&](float edge) { return unmoved + double{edge}; });
  return point;
}

}  // namespace

Reach fncReach(int shoe) {
  if (shoe == 0) {
    return {0, static_cast<int>(colEveningHands.size())};
  }
  const auto shoeOf = [](const EveningHand& hand) { return int{hand.Shoe}; };
  const auto from = std::ranges::lower_bound(colEveningHands, shoe, {}, shoeOf);
  const auto to = std::ranges::upper_bound(colEveningHands, shoe, {}, shoeOf);
  return {static_cast<int>(from - colEveningHands.begin()),
          static_cast<int>(to - colEveningHands.begin())};
}

std::vector<CurvePoint> fncCurve(Integer intSeat, int shoe) {
  std::vector<CurvePoint> curve;
  const Reach reach = fncReach(shoe);
  if (reach.From == reach.To) {
    return curve;
  }
  Bands ofShoe;
  Bands& of = shoe == 0 ? bands.at(static_cast<std::size_t>(intSeat)) : ofShoe;
  prcExtend(of, intSeat, reach);
  curve.reserve(of.ByHand.size() + 1);
  EveningHand start = fncHand(reach.From + 1);
  start.Money.at(static_cast<std::size_t>(intSeat)) = fncMoneyBefore(start, intSeat);
  curve.push_back(fncPoint(start, intSeat, 0, {}));
  double won = 0;
  for (const Band& band : of.ByHand) {
    const EveningHand& hand = fncHand(reach.From + static_cast<int>(curve.size()));
    won += fncNet(hand, intSeat);
    curve.push_back(fncPoint(hand, intSeat, won, band));
  }
  return curve;
}

Stretch fncDeepestFall(Integer intSeat, int shoe) {
  const Reach reach = fncReach(shoe);
  Stretch deepest;
  double won = 0, height = 0;
  int top = reach.From;
  for (int number = reach.From + 1; number <= reach.To; ++number) {
    won += fncNet(fncHand(number), intSeat);
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
    const double net = fncNet(fncHand(number), intSeat);
    if (net > 0) {
      run = {};
    } else if (net < 0) {
      run = {run.Amount == 0 ? number - 1 : run.From, number, run.Amount + 1};
      longest = run.Amount > longest.Amount ? run : longest;
    }
  }
  return longest;
}

void prcForgetCurve() { bands = {}; }
