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

/// One point for each hand, and in front of them the seat as it came to the first one; empty before
/// that. The bands of hands seen before are kept.
std::vector<CurvePoint> fncCurve(Integer intSeat);

/// A stretch of hands, from the one behind which it begins to its last; From 0 is the start. Amount
/// is money, or hands lost. Where there is none all are 0.
struct Stretch {
  int From = 0, To = 0;
  double Amount = 0;
};

/// The deepest fall of a seat's winnings from a height before it.
Stretch fncDeepestFall(Integer intSeat);

/// The most losing hands of a seat without a winning one between; hands that moved no money count
/// for neither.
Stretch fncLongestLosingRun(Integer intSeat);

/// Forgets the bands that are kept.
void prcForgetCurve();
