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
  bool fncEmpty() const { return Net == decltype(Net){}; }  ///< No bet, or none that can move.
};

/// From the least result of a hand to its highest, in twentieths.
std::int64_t fncSpan(const HandLaw& hand);

/// What the bets of one seat 0..1 win, or lose, by the odds of a full shoe of the hand's size.
HandLaw fncHandLaw(const EveningHand& hand, Integer intSeat);

/// What one of those bets loses on average, in money.
double fncCost(const EveningHand& hand, Integer intSeat, BetSide side);

/// Bets of two seats, which win and lose on the same cards.
HandLaw fncTogether(HandLaw seat, const HandLaw& other);

/// One result of a sum, in twentieths, and its chance.
struct Atom {
  std::int64_t Sum = 0;
  double Share = 1;
};

/// The law of a sum of hands, each on its own. Every result is kept as it is until there are more
/// than Most; from then on their chances lie on a grid of at most Most points, the step of which
/// doubles where the hands outgrow it. A result between two points is split among its neighbours so
/// that mean, variance and skewness stay.
struct SumLaw {
  std::size_t Most = 1U << 11U;     ///< Results, or points of the grid.
  std::vector<Atom> Atoms{Atom{}};  ///< The results, rising; none once there is a grid.
  std::int64_t Lattice = 0;         ///< What all distances of results are multiples of.
  std::int64_t Low = 0;             ///< The first point of the grid, in twentieths.
  std::int64_t Step = 0;            ///< From point to point, in twentieths.
  std::vector<double> Share{};      ///< The chance of each point.
  double Variance = 0;              ///< Of the sum itself, in money; never rounded to the grid.
  bool fncExact() const { return !Atoms.empty(); }
};

/// Adds one more hand to the sum.
void prcAddHand(SumLaw& law, const HandLaw& hand);

/// The share 0..1 of sums below one given in twentieths. On a grid half of those that are just it
/// count as below, as far as that can be told; fncShareNear is the share among which they are.
double fncShareBelow(const SumLaw& law, std::int64_t sum);

/// The share of those that are just a sum; 0 on a grid, which cannot tell.
double fncShareAt(const SumLaw& law, std::int64_t sum);

/// The share on the points of the grid up to one and a half steps from a sum; 0 where results are
/// exact.
double fncShareNear(const SumLaw& law, std::int64_t sum);

/// The sums, in money, at or below which these shares lie: the least such, and on a grid the place
/// between its points. The shares rise.
std::array<double, 4> fncQuantiles(const SumLaw& law, const std::array<double, 4>& shares);
