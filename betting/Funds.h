#pragma once

#include "platform/Numbers.h"

/// Whether seat Index can pay NewBet more, in money (it may be negative); a refusal is told in a
/// message. Changes nothing: a function, in spite of its prefix.
bool prcSufficientFunds(Long NewBet, Integer Index);

/// Gives all bets on the table back to the seats, as chips at the present chip value.
void prcReturnBets();
