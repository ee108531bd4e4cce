#pragma once

#include <vector>

#include "table/Bets.h"

// The labels that tell the result of the last hand, by strResult and the bets as their boxes hold
// them now.

/// A bet that the hand has won or lost, and the label that says so.
struct SeatResult {
  BetSide Side;
  bool Won;
  Control* Label;
};

/// WinP, WinB, or the two tie labels.
std::vector<Control*> fncSideResults();

/// The results of a seat 0..1: won Banker and Player, lost Banker and Player, then the Tie bet.
std::vector<SeatResult> fncSeatResults(Integer intSeat);

/// Hides all win and lose labels of both seats.
void prcHideSeatResults();
