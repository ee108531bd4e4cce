#include "evening/Curve.h"

#include <algorithm>

#include "evening/Law.h"

namespace {

/// What players who bet the same win up to a hand, in money.
struct Band {
  float Mean = 0;
  std::array<float, 4> Edges{};
};

/// The bands of a seat behind each hand so far, and the law behind the last of them.
struct Bands {
  SumLaw Law;
  std::deque<Band> ByHand;
};
std::array<Bands, intSeats> bands;

/// Works out the bands of the hands that came since they were last asked for.
const std::deque<Band>& fncBands(Integer intSeat) {
  Bands& seat = bands.at(static_cast<std::size_t>(intSeat));
  while (seat.ByHand.size() < colEveningHands.size()) {
    prcAddHand(seat.Law, fncHandLaw(colEveningHands[seat.ByHand.size()], intSeat));
    Band band{.Mean = static_cast<float>(seat.Law.Mean)};
    std::ranges::transform(fncQuantiles(seat.Law, dblBandShares), band.Edges.begin(),
                           [](double edge) { return static_cast<float>(edge); });
    seat.ByHand.push_back(band);
  }
  return seat.ByHand;
}

/// A band lies around the money that the seat would own had its bets moved none.
CurvePoint fncPoint(const EveningHand& hand, Integer intSeat, double won, const Band& band) {
  const auto seat = static_cast<std::size_t>(intSeat);
  const double unmoved = hand.Money.at(seat) - won;
  CurvePoint point{.Money = hand.Money.at(seat),
                   .Stake = static_cast<double>(hand.Stake.at(seat)),
                   .Expected = unmoved + double{band.Mean}};
  std::ranges::transform(band.Edges, point.Band.begin(),
                         [&](float edge) { return unmoved + double{edge}; });
  return point;
}

}  // namespace

std::vector<CurvePoint> fncCurve(Integer intSeat) {
  std::vector<CurvePoint> curve;
  if (colEveningHands.empty()) {
    return curve;
  }
  const std::deque<Band>& band = fncBands(intSeat);
  curve.reserve(colEveningHands.size() + 1);
  const EveningHand& first = colEveningHands.front();
  EveningHand start = first;
  start.Money.at(static_cast<std::size_t>(intSeat)) = fncMoneyBefore(first, intSeat);
  curve.push_back(fncPoint(start, intSeat, 0, {}));
  double won = 0;
  for (std::size_t n = 0; n < colEveningHands.size(); ++n) {
    won += fncNet(colEveningHands[n], intSeat);
    curve.push_back(fncPoint(colEveningHands[n], intSeat, won, band[n]));
  }
  return curve;
}

Stretch fncDeepestFall(Integer intSeat) {
  Stretch deepest;
  double won = 0, height = 0;
  int top = 0, number = 0;
  for (const EveningHand& hand : colEveningHands) {
    won += fncNet(hand, intSeat);
    ++number;
    if (won >= height) {
      height = won;
      top = number;
    } else if (height - won > deepest.Amount) {
      deepest = {top, number, height - won};
    }
  }
  return deepest;
}

Stretch fncLongestLosingRun(Integer intSeat) {
  Stretch longest, run;
  int number = 0;
  for (const EveningHand& hand : colEveningHands) {
    const double net = fncNet(hand, intSeat);
    ++number;
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
