#pragma once

#include <span>
#include <string>

#include "evening/Record.h"

/// A card 1..52 in brief, as "10H" or "KS"; empty for 0.
std::string fncCardBrief(int intCard);

/// The cards of a side in brief, with blanks between.
std::string fncCardsBrief(const EveningHand& hand, Side side);

/// Hands as rows of comma separated values under a row of headings, each ended by a line break.
/// Hands are given by their numbers from 1.
std::string fncHandsCsv(std::span<const int> intHands);
