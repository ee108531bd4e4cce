#pragma once

#include "platform/Numbers.h"

/// Works out in dblHandWin and dblHandLoss what a seat's bets, given in chips, won and lost on the
/// hand just dealt. For Seat 1 (1 or 2) it also sets varHandUnits and draws the hand on the shoe's
/// own marking card.
void ManualShoe(double PlayerBet, double BankerBet, double TieBet, Integer Seat);
