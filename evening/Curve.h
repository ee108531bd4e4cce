#pragma once

#include <array>
#include <vector>

#include "evening/Record.h"

// The course of a seat's money over the evening, and the band in which those who bet the same would
// lie. Hands count from 1.

/// Shares of the players below the four edges of the band: half of all lie between the inner two,
/// nine of ten between the outer two.
inline constexpr std::array<double, 4> dblBandShares{0.05, 0.25, 0.75, 0.95};

/// A seat behind a hand, in money. Everything but the stake moves along when money comes from
/// elsewhere than from bets: by a changed stake or a reset of the statistics.
struct CurvePoint {
  double Money = 0;              ///< What it owns.
  double Stake = 0;              ///< The base line.
  double Expected = 0;           ///< What it would own without luck.
  std::array<double, 4> Band{};  ///< What it would own at the edges of the band.
};

/// The hands of a shoe from 1, or of all for 0: from the one behind which it begins to its last.
struct Reach {
  int From = 0, To = 0;
};
Reach fncReach(int shoe);

/// One point for each hand of a reach, and in front of them the seat as it came to the first one;
/// empty where there is none. The bands begin there. Those of the whole evening are kept.
std::vector<CurvePoint> fncCurve(Integer intSeat, int shoe = 0);

/// A stretch of hands, from the one behind which it begins to its last; From 0 is the start. Amount
/// is money, or hands lost. Where there is none all are 0.
struct Stretch {
  int From = 0, To = 0;
  double Amount = 0;
};

/// The deepest fall of a seat's winnings from a height before it, within a shoe or, for 0, in all.
Stretch fncDeepestFall(Integer intSeat, int shoe = 0);

/// The most losing hands of a seat without a winning one between; hands that moved no money count
/// for neither. Within a shoe or, for 0, in all.
Stretch fncLongestLosingRun(Integer intSeat, int shoe = 0);

/// Forgets the bands that are kept.
void prcForgetCurve();
