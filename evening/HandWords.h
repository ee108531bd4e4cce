#pragma once

#include <string>

#include "evening/Record.h"
#include "table/Cards.h"

// A hand in brief, for lists of hands.

/// The cards of a side with blanks between, as "10H KS".
std::string fncCardsBrief(const EveningHand& hand, Side side, const SuitSigns& suits);

/// "Banker", "Player" or "Tie" for 'B', 'P' or 'T'.
std::string fncResultName(char result);
