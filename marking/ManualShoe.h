#pragma once

#include "platform/Numbers.h"

/// Works out in dblHandWin and dblHandLoss, in money, what a seat's bets, given in chips, won and
/// lost on the hand just dealt from the shoe on the table, the one that the user deals by hand.
/// Seat is 1 or 2, as the user counts them. For Seat 1 it also sets varHandUnits and draws the hand
/// on the shoe's own marking card: its mark needs the same reckoning.
void ManualShoe(double PlayerBet, double BankerBet, double TieBet, Integer Seat);
