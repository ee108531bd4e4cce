#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "evening/Record.h"

// The law of the result of one hand, and that of the sum of many. Money counts in twentieths here,
// so that the Banker's five percent leave whole numbers.

inline constexpr int intTwentieths = 20;

/// One hand: its net by who wins, in twentieths, and the chance of it.
struct HandLaw {
  std::array<std::int64_t, 3> Net{};  ///< Banker, Player, Tie.
  std::array<double, 3> Chance{};
};

/// What the bets of one seat 0..1 win, or lose, by the odds of a full shoe of the hand's size.
HandLaw fncHandLaw(const EveningHand& hand, Integer intSeat);

/// The bets of both seats, which win and lose on the same cards.
HandLaw fncHandLaw(const EveningHand& hand);

/// The law of a sum of hands, each on its own: chances on a grid of money. The grid is exact until
/// it would need more than Most points; then its step doubles, and a result between two points is
/// split among its neighbours so that mean, variance and skewness stay.
struct SumLaw {
  std::size_t Most = 1U << 11U;    ///< Points that the grid may have.
  bool Exact = true;               ///< No result has been split.
  std::int64_t Low = 0;            ///< The first point, in twentieths.
  std::int64_t Step = 0;           ///< From point to point, in twentieths; 0 before the first bet.
  std::vector<double> Share{1.0};  ///< The chance of each point.
  double Mean = 0, Variance = 0;   ///< Of the sum itself, in money; never rounded to the grid.
};

/// Adds one more hand to the sum.
void prcAddHand(SumLaw& law, const HandLaw& hand);

/// The share 0..1 of sums below one given in twentieths, and of those that are just it; the latter
/// is 0 on a grid that is not exact.
double fncShareBelow(const SumLaw& law, std::int64_t sum);
double fncShareAt(const SumLaw& law, std::int64_t sum);

/// The least sums, in money, at or below which these shares lie. The shares rise.
std::array<double, 4> fncQuantiles(const SumLaw& law, const std::array<double, 4>& shares);
