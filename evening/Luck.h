#pragma once

#include <array>
#include <numeric>

#include "evening/Record.h"

/// Whose hands, and which.
struct Scope {
  int Seat = -1;  ///< 0..1, or -1 for both seats together.
  int Shoe = 0;   ///< A shoe of the evening from 1, or 0 for all.

  bool fncHas(int seat) const { return Seat < 0 || Seat == seat; }
};

/// What was staked and won, what the house edge costs on it, and what is left as luck. Money, by
/// BetSide where there are three.
struct Luck {
  int Hands = 0;                   ///< Hands with a bet.
  std::array<double, 3> Staked{};  ///< A bet counts on every hand it stands.
  std::array<double, 3> Cost{};    ///< What the house edge takes of that on average.
  double Won = 0;                  ///< Wins less losses.
  bool Reckoned = false;           ///< What follows is known: all hands are in the reckoning.
  double Fortune = 0;              ///< Won, and what the edge costs on average besides.
  double Deviation = 0;            ///< The standard deviation of what could have been won.
  double Deviations = 0;           ///< Fortune in standard deviations; 0 where nothing could vary.
  double Worse = 0;                ///< Share of players betting the same who would have won less.
  double Better = 0;               ///< Share who would have won more.
  bool Exact = true;               ///< The two shares are exact.
  double Error = 0;                ///< How far they may be off where they are not.
};

/// What the three bets come to.
inline double fncOfAll(const std::array<double, 3>& amounts) {
  return std::accumulate(amounts.begin(), amounts.end(), 0.0);
}

/// The luck of a scope, as far as it has been reckoned. A fresh shoe of the hand's size gives the
/// odds of every hand. Where a grid would be off by more than half a percent, the widest bets are
/// reckoned apart from it, exactly.
Luck fncLuck(const Scope& scope);
