#pragma once

#include "platform/Numbers.h"

/// Gives the table the look of a shuffled shoe 0..8: in play or ended.
void prcTableStatus(const Integer& shoe);

/// Opens or closes all betting controls of both seats.
void prcBettingEnableDisable(const bool& enable);

/// Clears the cards from the table and makes every position unclickable.
void CardsInvisible();

/// Stops the table timer, hides all results, and takes cleared or mistyped bets out of their money
/// fields.
void ResultsInvisible();

/// Colours the two card areas by blnShoePlayerBlue of shoe 0..8.
void prcSetCardBG(const Integer& shoe);

/// Reopens the Shuffle button, the Deal buttons and the hands box at the close of a run.
void prcOpenDealControls();

/// Gives the focus to what a player most likely does next, Shuffle at the end of a shoe and else
/// Deal, unless something that can be used has it.
void prcFocusNextStep();
