#pragma once

#include <cstdint>

// The exact odds of a hand out of a full shoe, by the draw rules of the table.

/// In how many of the orders of six cards out of a full shoe each side wins.
struct OddsRow {
  std::int64_t Banker = 0, Player = 0, Tie = 0;
  std::int64_t fncAll() const { return Banker + Player + Tie; }
};

/// The row of a shoe of 1, 2, 4, 6 or 8 decks; all are counted at the first call and kept. Another
/// size is faultSubscript.
const OddsRow& fncOdds(int decks);

/// What a bet of 1 loses a hand on average; a Banker win pays 0.95, a tie 8 to 1, and a tie leaves
/// the other bets alone.
double fncBankerEdge(const OddsRow& row);
double fncPlayerEdge(const OddsRow& row);
double fncTieEdge(const OddsRow& row);
