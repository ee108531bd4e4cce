#pragma once

#include "platform/Numbers.h"
#include "table/BaccTable.h"

// How a card gets to the table and is turned or offered there. frm is the table window, Index the
// table position 0..5.

/// Flies a card back from above the table towards a position in steps of 180 twips across, and
/// returns when it is within one step. Serves events. The card must lie at least a step across from
/// the start; otherwise faultDivision.
void prcMoveCard(BaccTableWindow& frm, const Integer& Index);

/// Turns a laid card of face value 1..13, or makes it ready for the user, by the card settings. May
/// wait.
void RevealCards(const Integer& value, const Integer& Index, BaccTableWindow& frm);
