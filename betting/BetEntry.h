#pragma once

#include "platform/Numbers.h"
#include "table/Bets.h"

// Bets by typing and by chips. Index is the seat 0..1. The money of a bet leaves the seat's total
// at once.

/// Sets intAddSub by the mouse button of the press: +1 for left and middle, -1 for right, else as
/// it was.
void prcAddSub(Integer Button);

/// Adds intMultiple chips, which may be negative, to a bet of seat Index, after the funds and limit
/// checks.
void BBetInc(Integer Index, Integer intMultiple);
void PBetInc(Integer Index, Integer intMultiple);
void TBetInc(Integer Index, Integer intMultiple);

/// That of the three which bets on side.
void prcBetInc(BetSide side, Integer Index, Integer intMultiple);

void txtTieBet_GotFocus(Integer Index);
void txtBankerBet_GotFocus(Integer Index);
void txtPlayerBet_GotFocus(Integer Index);

/// The check of a bet box as the focus is about to leave it; Cancel keeps the focus.
void txtTieBet_Validate(Integer Index, bool& Cancel);
void txtBankerBet_Validate(Integer Index, bool& Cancel);
void txtPlayerBet_Validate(Integer Index, bool& Cancel);
