#pragma once

#include "table/Bets.h"

// Bets placed again, taken back and doubled. Each goes the way of a click on a chip, through the
// same tests and messages; where chips cannot be clicked, nothing happens.

/// Notes how the bets stood before one of them changes.
void prcNoteBetChange(BetSide side, Integer intSeat, double dblChips);

/// Notes the bets of the hand just settled, as those to be repeated; what was placed for it can no
/// longer be taken back.
void prcNoteBetsPlayed();

/// Nothing that was placed so far can be taken back.
void prcForgetBetChanges();

/// Nothing was bet yet, as at the start of the program.
void prcForgetBets();

/// Makes the bets of each seat those of the last hand dealt; a seat that sat out has none then.
/// Before the first hand nothing happens.
void prcRepeatBets();

/// Undoes the last change of a bet, or the last repetition or doubling as a whole, back to the bets
/// as the last hand left them.
void prcTakeBack();

/// Doubles every bet on the table.
void prcDoubleBets();
