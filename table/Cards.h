#pragma once

#include <array>
#include <string>

#include "table/TableState.h"

// Cards by slot, number, face value and name. A slot says everything of a card: face value (slot
// mod 13) + 1, suit (slot mod 52) div 13. In this folder card names a slot, and number a card
// number.

/// Card number 1..52 of a slot 0..415.
Integer CardNumber1To52(Integer card);

/// "Spade", "Club", "Diamond" or "Heart" for a slot. Leaves the suit's row 1..4 in intSuitRow, by
/// which its caller counts the card.
std::string CardSuite(Integer card);

/// "1" to "10", "Jack", "Queen", "King" for a face value 1..13, empty for any other.
std::string fncCardValueName(Integer value);

/// "King of Spades" and the like for a card number 1..52, as it is spoken of.
std::string fncCardName(Integer number);

/// The suits in the order of the card numbers.
using SuitSigns = std::array<const char*, 4>;
inline constexpr SuitSigns strSuitLetters{"S", "C", "D", "H"};
inline constexpr SuitSigns strSuitPictures{"\u2660", "\u2663", "\u2666", "\u2665"};

/// A card number 1..52 in short, such as "10H" or "AS", its suit by one of the two.
std::string fncCardBrief(Integer number, const SuitSigns& suits);

/// Point value of a face value: itself up to 9, 0 for the tens and pictures.
inline Integer fncCardPoint(Integer value) { return value > 9 ? Integer(0) : value; }
