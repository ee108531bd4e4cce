#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "table/Odds.h"

// The exact odds of the first hand of a full shoe once more, by dealing every hand: what the game
// deals is held against what it reckons.

/// One row for each of intShoeSizes. Runs ZNEW_DealHand once for every sequence of six ranks,
/// 4,826,809 in all, on shoe 1, whose tables it overwrites.
std::array<OddsRow, intShoeSizes.size()> fncExactOdds();

/// A count with a comma behind each thousand.
std::string fncGrouped(std::int64_t count);

/// The table of the help's page on odds.
std::string fncOddsPage(const std::array<OddsRow, intShoeSizes.size()>& odds);
