#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "table/TableState.h"

// The exact odds of the first hand of a full shoe, by the game's own draw rules.

/// In how many of the orders of six cards out of a full shoe each side wins.
struct OddsRow {
  std::int64_t Banker = 0, Player = 0, Tie = 0;
  std::int64_t fncAll() const { return Banker + Player + Tie; }
};

/// One row for each of intShoeSizes. Runs ZNEW_DealHand once for every sequence of six ranks,
/// 4,826,809 in all, on shoe 1, whose tables it overwrites.
std::array<OddsRow, intShoeSizes.size()> fncExactOdds();

/// A count with a comma behind each thousand.
std::string fncGrouped(std::int64_t count);

/// The table of the help's page on odds.
std::string fncOddsPage(const std::array<OddsRow, intShoeSizes.size()>& odds);

/// What a bet of 1 loses a hand on average; a Banker win pays 0.95, a tie 8 to 1, and a tie leaves
/// the other bets alone.
double fncBankerEdge(const OddsRow& row);
double fncPlayerEdge(const OddsRow& row);
double fncTieEdge(const OddsRow& row);
