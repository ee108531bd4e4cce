#pragma once

#include <string>

#include "platform/Numbers.h"

// The texts of the adviser, as pure procedures of what is known. Lines are joined by carriage
// return and line feed.

/// What lies face up: the six cards' revealed flags by table position, and whether a third card is
/// on the table.
struct TableView {
  Table<bool, 6> Revealed;  ///< The back is not seen; an empty position counts as revealed.
  Table<bool, 6> Face;      ///< The face picture lies on the table.
};

/// The numbers that the advice for a position is worked out from.
struct AdviceNumbers {
  Integer v;  ///< What this side already shows: a face value 1..13 for positions 0, 1, 3, 4, else a
              ///< total 0..9.
  Integer t;  ///< The score of the other side to reckon with, 0..9.
};

/// The advice for the hidden card at position 0..5; nothing when there is none to give.
bool fncAdvice(Integer Index, const TableView& view, const AdviceNumbers& numbers,
               std::string& text);

/// The texts of the stages, each for the numbers named above.
std::string fncNaturalText(Integer v);
std::string fncPressureText(Integer t);
std::string fncOutcomeText(Integer v, Integer t);
std::string fncHardToBeatText(Integer v);
std::string fncPlayerThirdText(Integer v, Integer t);
std::string fncLastCardText(Integer v, Integer t);

/// What the panels show before there is any advice.
extern const char* const strLearnDefault;
