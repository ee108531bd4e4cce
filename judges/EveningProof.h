#pragma once

#include <array>
#include <cstdint>

#include "table/TableState.h"

// Evenings played at the running table, held against the law by which luck is told: what the
// program says of each evening must come out, over many of them, as often as it says.

/// Where evenings lay among all that could have come of their bets.
struct EveningProof {
  int Evenings = 0, Hands = 0;
  int Gridded = 0;                  ///< Evenings whose law for both seats lay on a grid.
  int InHalf = 0, InNine = 0;       ///< Seats' ends within the bands of 50 % and of 90 %.
  std::array<double, 10> Tenths{};  ///< Evenings of both seats by their place among 100 players.
  Table<double, 3> Deviation{};     ///< Mean luck of seat 1, seat 2 and both, in its own errors.
  /// Whether all of this could well come by chance: one time in some thousands it could not. The
  /// law of most evenings must have lain on a grid, so that it is the grid's law that is held
  /// against the table.
  bool fncHolds() const;
};

/// Plays this many evenings of a hundred hands on the headless platform, the bets of both seats
/// changing in size and side every ten hands.
EveningProof fncProveEvenings(int evenings, std::uint64_t seed);
