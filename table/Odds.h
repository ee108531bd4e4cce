#pragma once

#include <cstdint>

#include "table/Bets.h"

// The exact odds of a hand out of a full shoe, by the draw rules of the table.

/// In how many of the orders of six cards out of a full shoe each side wins.
struct OddsRow {
  std::int64_t Banker = 0, Player = 0, Tie = 0;
  std::int64_t fncAll() const { return Banker + Player + Tie; }
};

/// The row of a shoe of 1, 2, 4, 6 or 8 decks; all are counted at the first call and kept. Another
/// size is faultSubscript.
const OddsRow& fncOdds(int decks);

/// What a bet of 1 on a side loses a hand on average; a tie leaves the other bets alone.
double fncEdge(const OddsRow& row, BetSide side);
