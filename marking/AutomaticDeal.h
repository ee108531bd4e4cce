#pragma once

#include "marking/MarkCard.h"

// A marking card that deals its own shoe by itself. Nothing in the running program switches it on.

/// Sets the pace of a card's dealing from intAutoDealDelay.
void prcSetDealInterval(MarkCardWindow& form);

/// A tick of tmrDeal: the card deals its own shoe a hand further, if automatic dealing is on. An
/// ended shoe is shuffled first, which serves events; no second tick begins meanwhile.
void tmrDeal_Timer(MarkCardWindow& form);
