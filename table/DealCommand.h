#pragma once

#include "platform/Numbers.h"

/// A Deal button 0..3 is clicked: one run of hands, from the checks to the reopened table, the
/// flashing result or the end of the shoe. Another Index is faultSubscript.
void duokkortos_Click(Integer Index);

/// Takes the lost bets of the hand just dealt off the table. No money moves: they were paid for
/// when placed.
void prcClearLostBets();

/// Reopens the Shuffle button, the Deal buttons and the hands box at the close of a run.
void prcOpenDealControls();
