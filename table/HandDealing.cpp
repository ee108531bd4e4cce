#include "table/HandDealing.h"

#include <array>

#include "platform/Procedure.h"
#include "shell/CardsDealt.h"
#include "table/BaccTable.h"
#include "table/Cards.h"
#include "table/DrawRules.h"
#include "table/Positions.h"

namespace {

/// Cards left at or below which one more hand is the last.
constexpr int intCardsBehindMark = 13;

// Below, due counts the cards of a shoe in the order in which they come out, as intNextCard does; a
// position is one of the table.

/// A card as it comes out of a shoe.
struct Drawn {
  Integer Number;  ///< 1..52.
  Integer Value;   ///< 1..13.
};

Drawn fncCardDue(const Integer& intShoe, int due) {
  const Integer slot = intShoeCards[intShoe][due];
  return {CardNumber1To52(slot), intCardValue[intShoe][slot]};
}

void prcListDue(const Integer& intShoe, int due) {
  if (intShoe == 0) {
    prcListCard(due, "");
  }
}

/// The positions of the first four cards out.
constexpr std::array<int, 4> intDealOrder{0, 3, 1, 4};

/// The total of a side's first two cards, the first of them at this position.
Integer fncTwoCards(const Integer& intShoe, int first) {
  return fncTotal(fncCardPoint(fncHandValue(intShoe, first)),
                  fncCardPoint(fncHandValue(intShoe, first + 1)));
}

void prcDealFirstFour(const Integer& intShoe) {
  const int due = intNextCard[intShoe];
  const std::array<Drawn, 4> drawn{fncCardDue(intShoe, due), fncCardDue(intShoe, due + 1),
                                   fncCardDue(intShoe, due + 2), fncCardDue(intShoe, due + 3)};
  for (std::size_t i = 0; i < drawn.size(); ++i) {
    fncHandCard(intShoe, intDealOrder[i]) = drawn[i].Number;
    fncHandValue(intShoe, intDealOrder[i]) = drawn[i].Value;
  }
  intPlayerTotal[intShoe] = fncTwoCards(intShoe, 0);
  intBankerTotal[intShoe] = fncTwoCards(intShoe, 3);
  intPlayerTotal2[intShoe] = intPlayerTotal[intShoe];
  intBankerTotal2[intShoe] = intBankerTotal[intShoe];
  for (int i = 0; i < 4; ++i) {
    prcListDue(intShoe, due + i);
  }
  intNextCard[intShoe] = due + 4;
}

/// Deals a third card to position 2 or 5, into the total and flag of that side. Returns its point.
Integer fncDrawThird(const Integer& intShoe, int position, Integer& total, bool& blnThird) {
  const Drawn third = fncCardDue(intShoe, intNextCard[intShoe]);
  const Integer point = fncCardPoint(third.Value);
  total = fncTotal(total, point);
  fncHandCard(intShoe, position) = third.Number;
  fncHandValue(intShoe, position) = third.Value;
  prcListDue(intShoe, intNextCard[intShoe]);
  ++intNextCard[intShoe];
  blnThird = true;
  return point;
}

void prcDrawThirdCards(const Integer& intShoe) {
  Integer& player = intPlayerTotal[intShoe];
  Integer& banker = intBankerTotal[intShoe];
  if (fncNatural(player) || fncNatural(banker)) {
    blnPlayerNatural[intShoe] = fncNatural(player);
    blnBankerNatural[intShoe] = fncNatural(banker);
    return;
  }
  Integer intCard3Point = 0;
  const bool blnPlayerStood = !fncPlayerDraws(player);
  if (!blnPlayerStood) {
    intCard3Point = fncDrawThird(intShoe, 2, player, blnPlayerThird[intShoe]);
  }
  if (fncBankerDraws(banker, blnPlayerStood, intCard3Point)) {
    fncDrawThird(intShoe, 5, banker, blnBankerThird[intShoe]);
  }
}

const char* fncResult(Integer player, Integer banker) {
  if (player == banker) {
    return "T";
  }
  return player > banker ? "P" : "B";
}

}  // namespace

void ZNEW_DealHand(const Integer& intShoe) {
  const Procedure running("ZNEW_DealHand");
  if (blnEndOfShoe[intShoe]) {
    return;
  }
  running.Step(2);
  blnPlayerThird[intShoe] = blnBankerThird[intShoe] = false;
  running.Step(3);
  prcDealFirstFour(intShoe);
  running.Step(4);
  blnPlayerNatural[intShoe] = blnBankerNatural[intShoe] = false;
  running.Step(5);
  prcDrawThirdCards(intShoe);
  running.Step(6);
  strResult[intShoe] = fncResult(intPlayerTotal[intShoe], intBankerTotal[intShoe]);
  running.Step(7);
  // In this order, so that one more hand is dealt behind the mark.
  if (blnLastHand[intShoe]) {
    blnEndOfShoe[intShoe] = true;
  }
  if (intNextCard[intShoe] > intLastCard[intShoe] - intCardsBehindMark) {
    blnLastHand[intShoe] = true;
  }
  running.Step(8);
  if (intShoe == 0 && blnShowCardsDealtCount) {
    LoadlstCardsDealtCount();
  }
  running.Step(9);
  if (intShoe == intShoeNumber) {
    BaccTable.prgShoe.Value = intNextCard[intShoe];
  }
}
