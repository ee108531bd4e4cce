#pragma once

#include <array>
#include <deque>
#include <vector>

#include "evening/Law.h"

// What the bets of the evening, or of one of its shoes, could have brought. Reckoned hand by hand
// and kept, so that one more hand costs little; the many of a long evening are reckoned in portions
// between which the program goes on.

/// The laws of a seat's bets, or of those of both.
struct BetLaw {
  int Hands = 0;  ///< With a bet.
  SumLaw Sum{};
  SumLaw Coarse{};  ///< The same with a quarter of the points: how far they differ tells the error.
};

/// The bets of an evening in two parts, which add up: the results of the widest of them, each as it
/// is, and the law of the rest.
struct SplitLaw {
  SumLaw Wide{};
  BetLaw Rest{};
};

/// Splits bets so that at most lngWide results are kept. Takes a while where there are many.
SplitLaw fncSplitLaw(std::vector<HandLaw> hands, std::size_t lngWide);

/// What players who bet the same have won up to a hand, in money: half of all lie between the inner
/// two edges, nine of ten between the outer two.
using BandEdges = std::array<float, 4>;

struct Reckoning {
  int Shoe = 0;                                        ///< From 1, or 0 for the whole evening.
  int Hands = 0;                                       ///< So many of its hands are in it so far.
  std::array<BetLaw, 3> Laws{};                        ///< Of seat 0, of seat 1, of both.
  std::array<std::deque<BandEdges>, intSeats> Band{};  ///< Of each seat behind each of the hands.

  /// The law of a seat 0..1, or of both for -1.
  const BetLaw& fncLaw(int seat) const { return Laws.at(seat < 0 ? 2U : unsigned(seat)); }
};

/// What is reckoned of a shoe, or of the evening for 0. The evening and the shoe that was asked for
/// last are kept.
const Reckoning& fncReckoning(int shoe);

/// Reckons on for some milliseconds. Returns whether all hands are in it.
bool fncReckonOn(int shoe);

/// Forgets all of it, as at the start of the program.
void prcForgetReckoning();
