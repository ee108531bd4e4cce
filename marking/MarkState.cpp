#include "marking/MarkState.h"

#include <cstdlib>

#include "platform/Texts.h"

Table<Integer, intShoes> intMarkVerticalLimit;
Table<bool, intShoes> blnMarkIgnoreTies;
Table<bool, intShoes> blnMarkStarted;
Table<Integer, intShoes> intRun;
Table<Integer, intShoes> intColumn;
Table<Integer, intShoes> intTieRun;
Table<Integer, intShoes> intScoreUnits;
Table<bool, intShoes> blnScoreStarted;
Table<Integer, intShoes> intLastTotalColumn;
Integer intMarkShapeHeight, intMarkShapeTop;
bool blnMarkShapeCaptured = false;
Integer intMarkCardBase;
Integer intMarkCardNumber;
bool blnAutoDeal = false;
Integer intAutoDealDelay;

namespace {

constexpr Colour clrDarkBlue{0, 0, 128};
constexpr Colour clrTieGreen{0, 192, 0};

/// What the shoe of a card says about the hand just dealt, as the rule asks for it.
struct Hand {
  bool Banker, Player, Tie;
  bool Ignored;  ///< A tie on a card that ignores them.
};

Hand fncHand(std::int64_t card) {
  const std::string& result = strResult[intMarkCardShoe[card]];
  const bool blnTie = fncEqualNoCase(result, "T");
  return {fncEqualNoCase(result, "B"), fncEqualNoCase(result, "P"), blnTie,
          blnTie && blnMarkIgnoreTies[card]};
}

/// The run before the first Banker or Player result: only ties may stand in the column.
void prcBeginRun(std::int64_t card, const Hand& hand) {
  if (hand.Banker) {
    intRun[card] = 1;
  } else if (hand.Player) {
    intRun[card] = -1;
  } else if (hand.Tie && !hand.Ignored) {
    intTieRun[card] += 1;
    intRun[card] = 0;
  }
}

void prcChangeSide(std::int64_t card, int run) {
  intRun[card] = run;
  intColumn[card] += 1;
  intTieRun[card] = 0;
}

void prcMoveRun(std::int64_t card, const Hand& hand) {
  const int run = intRun[card];
  if (hand.Banker && run > 0) {
    intRun[card] += 1;
  } else if (hand.Player && run > 0) {
    prcChangeSide(card, -1);
  } else if (hand.Player && run < 0) {
    intRun[card] -= 1;
  } else if (hand.Banker && run < 0) {
    prcChangeSide(card, 1);
  }
  if (hand.Tie && !hand.Ignored) {
    intTieRun[card] += 1;
  }
}

/// Adds the hand's units to the score, which shows above its column once it has left 0.
void prcScore(std::int64_t card, Mark& mark) {
  if (varHandUnits[card]) {
    intScoreUnits[card] += *varHandUnits[card];
  }
  if (intScoreUnits[card] != 0) {
    blnScoreStarted[card] = true;
  }
  if (blnScoreStarted[card]) {
    mark.NewTotal = mark.Column != intLastTotalColumn[card];
    intLastTotalColumn[card] = mark.Column;
    mark.Total = intScoreUnits[card];
  }
}

/// The units staked, or with Show Score the hand's totals, the winner's first.
std::string fncCaption(std::int64_t card, const Hand& hand) {
  const std::optional<Integer>& units = varHandUnits[card];
  if (!blnShowScore) {
    return units ? std::to_string(std::abs(int{*units})) : std::string();
  }
  const Integer& shoe = intMarkCardShoe[card];
  const std::string player = std::to_string(int{intPlayerTotal[shoe]});
  const std::string banker = std::to_string(int{intBankerTotal[shoe]});
  if (hand.Banker) {
    return banker + player;
  }
  return hand.Player ? player + banker : player;
}

/// A column holds one run; ties stand in it and push what follows down.
void prcPlaceInRun(std::int64_t card, const Hand& hand, Mark& mark) {
  if (blnMarkStarted[card]) {
    prcMoveRun(card, hand);
  } else {
    prcBeginRun(card, hand);
  }
  mark.Column = intColumn[card];
  if (mark.Column == 0) {
    intLastTotalColumn[card] = 0;
  }
  if ((hand.Banker || hand.Player) && !blnMarkStarted[card]) {
    blnMarkStarted[card] = true;
    mark.Heading = hand.Banker ? "B" : "P";
  }
  prcScore(card, mark);
  mark.Row = std::abs(int{intRun[card]}) + intTieRun[card];
  if (varHandUnits[card]) {
    mark.Lost = *varHandUnits[card] < 0;
  }
  mark.Caption = fncCaption(card, hand);
}

/// The marks fill columns of a given depth, whatever the side; no headings, texts or scores.
void prcPlaceInLimit(std::int64_t card, const Hand& hand, Mark& mark) {
  if (hand.Banker || hand.Player) {
    blnMarkStarted[card] = true;
  }
  if (!hand.Ignored) {
    intRun[card] += 1;
  }
  if (intRun[card] > intMarkVerticalLimit[card]) {
    intRun[card] = 1;
    intColumn[card] += 1;
  }
  mark.Row = intRun[card];
  mark.Column = intColumn[card];
}

Colour fncBorder(std::int64_t card, const Hand& hand) {
  if (!hand.Banker && !hand.Player) {
    return clrTieGreen;
  }
  return hand.Banker == blnShoePlayerBlue[card] ? clrDarkRed : clrDarkBlue;
}

}  // namespace

Mark fncPlaceMark(const Integer& card) {
  const Hand hand = fncHand(card);
  Mark mark;
  if (intMarkVerticalLimit[card] == 0) {
    prcPlaceInRun(card, hand, mark);
  } else {
    prcPlaceInLimit(card, hand, mark);
  }
  const Integer& shoe = intMarkCardShoe[card];
  mark.Border = fncBorder(card, hand);
  mark.Spoken = hand.Banker ? "Banker" : hand.Player ? "Player" : "Tie";
  mark.Oval = (blnPlayerNatural[shoe] || blnBankerNatural[shoe]) && blnShowNaturals &&
              !blnMarkIgnoreTies[card];
  mark.TieLine = hand.Ignored;
  mark.AboveCard = hand.Ignored && !blnMarkStarted[card];
  return mark;
}

void prcResetMarkState() {
  for (Table<Integer, intShoes>* values : {&intMarkVerticalLimit, &intRun, &intColumn, &intTieRun,
                                           &intScoreUnits, &intLastTotalColumn}) {
    values->fill(0);
  }
  for (Table<bool, intShoes>* flags : {&blnMarkIgnoreTies, &blnMarkStarted, &blnScoreStarted}) {
    flags->fill(false);
  }
  intMarkShapeHeight = intMarkShapeTop = intMarkCardBase = intMarkCardNumber = 0;
  intAutoDealDelay = 0;
  blnMarkShapeCaptured = blnAutoDeal = false;
}
