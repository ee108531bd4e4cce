#pragma once

#include "platform/Numbers.h"

/// Deals one whole hand from shoe 0..8: cards, draws, totals, result and the watch for the end of
/// the shoe. Does nothing at the end of a shoe. Serves no events.
void ZNEW_DealHand(const Integer& intShoe);
