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
/// it would have more than Most points; then its step doubles, and results between two points are
/// shared out between them so that their mean stays.
struct SumLaw {
  std::size_t Most = 1U << 14U;    ///< Points that the grid may have.
  std::int64_t Low = 0;            ///< The first point, in twentieths.
  std::int64_t Step = 0;           ///< From point to point; 0 while there is one point.
  std::vector<double> Share{1.0};  ///< The chance of each point.
  double Mean = 0, Variance = 0;   ///< Of the sum itself, in money; never rounded.
  double Spread = 0;               ///< Variance that the sharing out has added, in money.
};

/// Adds one more hand to the sum.
void prcAddHand(SumLaw& law, const HandLaw& hand);

/// Whether the grid has held every result as it is so far.
bool fncExact(const SumLaw& law);

/// How far a share of the law may be from the true one because of its grid; 0 for an exact one.
double fncError(const SumLaw& law);

/// The share 0..1 of sums below an amount of money.
double fncShareBelow(const SumLaw& law, double dblMoney);

/// The least sums below or at which these shares lie, in money; the shares rise.
std::array<float, 4> fncQuantiles(const SumLaw& law, const std::array<double, 4>& shares);
