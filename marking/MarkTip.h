#pragma once

#include <string>

#include "platform/Numbers.h"

/// What the mark of the hand just dealt tells under the pointer on card 0..8, in lines: the hand's
/// number, its totals and cards, and, where Player 1 had a bet on it, what was staked and won. A
/// card outside is a fault.
std::string fncMarkTip(const Integer& card);
