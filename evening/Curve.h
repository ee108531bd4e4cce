#pragma once

#include <array>
#include <vector>

#include "evening/Record.h"

// The course of a seat's money over the evening, and the band in which those who bet the same would
// lie. Hands count from 1.

/// A seat behind a hand, in money. Everything but the stake moves along when money comes from
/// elsewhere than from bets: by a changed stake or a reset of the statistics.
struct CurvePoint {
  double Money = 0;              ///< What it owns.
  double Stake = 0;              ///< The base line.
  double Base = 0;               ///< What it would own had its bets moved nothing.
  std::array<double, 4> Band{};  ///< What it would own at the edges of the band, once reckoned.
};

/// One point for each hand of a shoe, or of all for 0, and in front of them the seat as it came to
/// the first one; empty where there is none. The bands begin there, and end with the last hand that
/// has been reckoned.
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
