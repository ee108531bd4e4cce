#pragma once

#include "platform/Numbers.h"

// The rules by which a hand is drawn and counted, without a shoe.

/// The sum of two points or totals 0..9, less 10 where it exceeds 9.
Integer fncTotal(Integer one, Integer other);

/// Whether a two-card total is a natural, which ends the hand at once.
bool fncNatural(Integer total);

/// Whether the Player draws on a two-card total 0..7.
bool fncPlayerDraws(Integer intPlayer);

/// Whether the Banker draws on a two-card total 0..7, by the Player's third card as a point value,
/// or the Player's standing. The tableau is that of punto banco as casinos publish it. Another
/// total is faultSubscript.
bool fncBankerDraws(Integer intBanker, bool blnPlayerStood, Integer intCard3Point);
