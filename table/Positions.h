#pragma once

#include <string>

#include "table/BaccTable.h"

// The hand by table position 0..5: the Player's first, second and third card, then the Banker's.
// Any other is faultSubscript.

/// Card number 1..52 of the card that shoe 0..8 has dealt to a position.
Integer& fncHandCard(Integer intShoe, Integer position);

/// Its face value 1..13.
Integer& fncHandValue(Integer intShoe, Integer position);

/// One side of the hand on the table: where it shows, and what the hand holds of it.
struct HandSide {
  int First;  ///< The position of its first card, 0 or 3.
  Control& TotalLabel;
  Control& NaturalLabel;
  Integer Total2;  ///< On its first two cards.
  Integer Total;
  bool blnNatural;
  bool blnThird;  ///< It has drawn a third card.
};

/// The side that a position belongs to.
HandSide fncHandSide(Integer position);

/// "Player first card" and so on, as a position is spoken of.
std::string fncSpokenPosition(Integer position);
