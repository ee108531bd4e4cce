#pragma once

#include <optional>
#include <string>

#include "platform/Control.h"
#include "platform/Numbers.h"
#include "table/TableState.h"

// The running values of the nine marking cards, by card 0..8, and the rule that places a mark from
// them. No window.

/// 0 for runs, else rows of a column, up to 20.
extern Table<Integer, intShoes> intMarkVerticalLimit;
extern Table<bool, intShoes> blnMarkIgnoreTies;
extern Table<bool, intShoes> blnMarkStarted;  ///< A Banker or Player result has come.
extern Table<Integer, intShoes> intRun;  ///< Banker above 0, Player below; in limit mode the row.
extern Table<Integer, intShoes> intColumn;
extern Table<Integer, intShoes> intTieRun;  ///< Ties in the current column.
extern Table<Integer, intShoes> intScoreUnits;
extern Table<bool, intShoes> blnScoreStarted;
extern Table<Integer, intShoes> intLastTotalColumn;
extern Integer intMarkShapeHeight, intMarkShapeTop;  ///< Of a mark's frame as designed, twips.
extern bool blnMarkShapeCaptured;
extern Integer intMarkCardBase;    ///< Height of the drawing area right after load, twips.
extern Integer intMarkCardNumber;  ///< The card being opened.
extern bool blnAutoDeal;           ///< Marking cards deal their own shoes by themselves.
extern Integer intAutoDealDelay;   ///< Seconds.

/// Of one side's frames, and of numbers below 0.
inline constexpr Colour clrDarkRed{192, 0, 0};

/// What one hand leaves on a card.
struct Mark {
  /// Row from 1, column from 0. Row 0 for an ignored tie that no result has gone before.
  Integer Row, Column;
  std::string Heading;  ///< "B" or "P" when the headings are due: the letter over column 0.
  std::optional<Integer> Total;  ///< The score to show above the column; nothing before the first.
  bool NewTotal = false;         ///< The label of that score has to be made.
  Colour Border;
  bool Oval = false;
  bool TieLine = false;    ///< An ignored tie: a thin line without text.
  bool AboveCard = false;  ///< An ignored tie before the first result.
  std::string Caption;
  std::string Spoken;        ///< The result in words, for the ear.
  std::optional<bool> Lost;  ///< Whether the hand lost units. Nothing for a hand without units.
};

/// Places the hand just dealt on card 0..8 by its running values, which it moves on, and the state
/// of the card's shoe. A card outside is a fault, and so is a score beyond an Integer.
Mark fncPlaceMark(const Integer& card);

/// Puts the running values and settings of all nine cards back to how the program starts.
void prcResetMarkState();
