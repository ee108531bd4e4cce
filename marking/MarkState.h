#pragma once

#include <optional>

#include "platform/Numbers.h"
#include "table/TableState.h"

// The running values of the nine marking cards, by card 0..8, and the rule that places a mark from
// them. No window.

extern Table<Integer, intShoes>
    intMarkVerticalLimit;  ///< 0 for runs, else rows of a column, up to 20.
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
extern bool blnAutoDeal;
extern Integer intAutoDealDelay;  ///< Seconds.

/// What one hand leaves on a card.
struct Mark {
  Integer Row, Column;       ///< Row from 1, column from 0.
  bool FirstResult = false;  ///< The headings are due, beginning with this result.
  bool TotalDue = false;     ///< A score stands above the column.
  bool NewTotal = false;     ///< The label of that score has to be made.
  bool Oval = false;
  bool TieLine = false;    ///< An ignored tie: a thin line without text.
  bool AboveCard = false;  ///< An ignored tie before the first result.
  std::string Caption;
  std::optional<bool>
      Negative;  ///< Sign of the hand's units for the text colour; nothing when it had none.
};

/// Places the hand just dealt on card 0..8 by its running values, which it moves on, and the state
/// of the card's shoe.
Mark fncPlaceMark(Integer card);

/// Puts the running values and settings of all nine cards back to how the program starts.
void prcResetMarkState();
