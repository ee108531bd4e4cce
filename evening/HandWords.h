#pragma once

#include <array>
#include <string>

#include "evening/Record.h"

// A hand in brief, for lists of hands.

/// The suits in the order of the card numbers.
using SuitSigns = std::array<const char*, 4>;
inline constexpr SuitSigns strSuitLetters{"S", "C", "D", "H"};
inline constexpr SuitSigns strSuitPictures{"\u2660", "\u2663", "\u2666", "\u2665"};

/// The cards of a side with blanks between, as "10H KS".
std::string fncCardsBrief(const EveningHand& hand, Side side, const SuitSigns& suits);

/// "Banker", "Player" or "Tie" for 'B', 'P' or 'T'.
std::string fncResultName(char result);
