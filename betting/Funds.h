#pragma once

#include "platform/Numbers.h"

/// Whether seat Index can pay NewBet more, in money (it may be negative); False comes after a
/// message. Changes nothing.
bool prcSufficientFunds(Long NewBet, Integer Index);

/// Gives all bets on the table back to the seats, as chips at the present chip value.
void prcReturnBets();
