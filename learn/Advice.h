#pragma once

#include <string>

#include "platform/Numbers.h"

// The texts of the adviser, as pure procedures of what is known. Index is the table position 0..5
// of the hidden card. Lines are joined by carriage return and line feed.

/// What lies face up, by table position.
struct TableView {
  Table<bool, 6> Revealed;  ///< The back is not seen; an empty position counts as revealed.
  Table<bool, 6> Face;      ///< The face picture lies on the table, under the back or in view.
};

/// The numbers that the advice for a position is worked out from.
struct AdviceNumbers {
  /// What this side already shows: a face value 1..13 for positions 0, 1, 3, 4, else a total 0..9.
  Integer v;
  Integer t;  ///< The score of the other side to reckon with, 0..9.
};

/// Whether a third card lies on the table with its face in view.
inline bool fncThirdRevealed(const TableView& view, Integer Index) {
  return view.Revealed[Index] && view.Face[Index];
}

/// Writes the advice for the hidden card at position 0..5 into text and returns True; leaves text
/// alone and returns False when there is none to give. An Index outside is faultSubscript.
bool fncAdvice(Integer Index, const TableView& view, const AdviceNumbers& numbers,
               std::string& text);

/// One card of a pair is seen, the other side not wholly: v a face value 1..13.
std::string fncNaturalText(Integer v);

/// The other side shows its pair, this one nothing: t the other's total 0..9.
std::string fncPressureText(Integer t);

/// One card of a pair is seen, and the other side's total t 0..9: v a face value 1..13.
std::string fncOutcomeText(Integer v, Integer t);

/// A third card against a hand that may still change: v this side's total 0..6.
std::string fncHardToBeatText(Integer v);

/// The Player's third card before the Banker's: v and t totals 0..9. Empty for totals on which no
/// such card is drawn.
std::string fncPlayerThirdText(Integer v, Integer t);

/// The last card of the hand, all ten point values sorted by what they do: v and t totals 0..9.
std::string fncLastCardText(Integer v, Integer t);

/// What the panels show before there is any advice.
extern const char* const strLearnDefault;
