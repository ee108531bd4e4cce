#pragma once

#include <string>

#include "table/TableState.h"

// The hand by table position 0..5: the Player's first, second and third card, then the Banker's.
// Any other Index is faultSubscript.

/// Card number 1..52 of the card that shoe 0..8 has dealt to a position.
Integer& fncHandCard(Integer intShoe, Integer Index);

/// Its face value 1..13.
Integer& fncHandValue(Integer intShoe, Integer Index);

/// "Player first card" and so on, as a position is spoken of.
std::string fncSpokenPosition(Integer Index);
