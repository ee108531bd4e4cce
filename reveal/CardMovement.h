#pragma once

#include "platform/Numbers.h"
#include "table/BaccTable.h"

/// Flies a card back from above the table to a position 0..5; returns when it has arrived. Serves
/// events.
void prcMoveCard(BaccTableWindow& frm, const Integer& Index);

/// Turns a laid card of face value 1..13, or makes it ready for the user, by the card settings. May
/// wait.
void RevealCards(const Integer& value, const Integer& Index, BaccTableWindow& frm);
