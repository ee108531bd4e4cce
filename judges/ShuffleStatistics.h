#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "table/TableState.h"

// Counts over many shuffles of the game's own Shuffle, and how far they lie from what they should
// be.

/// Standard deviations beyond which nothing is chance.
inline constexpr double dblChance = 4;

/// A sum of squared differences from expected counts, each divided by the expected count.
struct ChiSquare {
  double Sum = 0;
  int Degrees = 0;
  void prcAdd(double counted, double expected);
  /// Adds counts that should all be alike: a degree less than there are.
  void prcAddAlike(std::span<const double> counts);
  /// How far the sum lies from its mean, in standard deviations of a normal value.
  double fncDeviation() const;
  bool fncLikely() const;
};

/// All counts are whole numbers, held as doubles for the sums.
struct ShuffleStatistics {
  int Decks = 0;
  std::int64_t Shoes = 0;
  std::int64_t BrokenShoes = 0;  ///< In which a slot was missing or stood twice.
  std::vector<double> First{};   ///< How often each slot came out first.
  /// The same held against the two end slots expected half as often as the others.
  ChiSquare FirstSlot{};
  /// Face values 2 to 12 at each position, each as often as the others. An Ace lies in slot 0 and a
  /// King in the last one: those two do not quite keep to it.
  ChiSquare ValueByPosition{};
  /// Steps from a card's face value to the next card's, 0 to 12, up and round.
  std::array<double, 13> Steps{};
  /// Up and down are alike to the method: an Ace comes at each position as often as a King, a 2 as
  /// a Queen, and so on, and a step as often as the same step down.
  ChiSquare MirroredValues{}, MirroredSteps{};
  /// Whether all that the method promises holds. Where each value may lie is promised from four
  /// decks on: in fewer the two end slots weigh too much.
  bool fncHolds() const;
};

/// Shuffles shoe 1 this many times with the seeds that follow one another from firstSeed.
ShuffleStatistics fncShuffleStatistics(int decks, std::int64_t shoes, std::uint64_t firstSeed);
