#pragma once

#include <vector>

#include "table/Bets.h"

// The labels that tell the result of the last hand, by strResult and the bets as their boxes hold
// them now.

/// The labels of the result: WinP, WinB or the two tie labels, then seat by seat those of the bets
/// that the hand has won or lost.
std::vector<Control*> fncResultLabels();

/// Shows them, to eye and ear.
void prcShowResults();

/// Hides all win and lose labels of both seats.
void prcHideSeatResults();
