#include "table/HandDealing.h"

#include <array>

#include "platform/Procedure.h"
#include "shell/CardsDealt.h"
#include "table/BaccTable.h"
#include "table/Cards.h"

namespace {

/// Cards left at or below which one more hand is the last.
constexpr int intCardsBehindMark = 13;

/// The lowest and highest point of the Player's third card on which the Banker draws, by the
/// Banker's total. Only 3 has a gap: it draws on all but 8.
struct DrawSpan {
  int Low, High;
};
constexpr Table<DrawSpan, 8> spnBankerDraws(
    {{{0, 9}, {0, 9}, {0, 9}, {0, 9}, {2, 7}, {4, 7}, {6, 7}, {10, 10}}});
constexpr int intPlayerStandsFrom = 6;
constexpr int intBankerStandsFrom = 6;  ///< When the Player has stood.

/// A card at a position of a shoe.
struct Drawn {
  Integer Number;  ///< 1..52.
  Integer Value;   ///< 1..13.
};

Drawn fncCardAt(const Integer& intShoe, int position) {
  const Integer slot = intShoeCards[intShoe][position];
  return {CardNumber1To52(slot), intCardValue[intShoe][slot]};
}

void prcListPosition(const Integer& intShoe, int position) {
  if (intShoe == 0) {
    const Integer slot = intShoeCards[intShoe][position];
    prcListCard(slot, intCardValue[intShoe][slot], "");
  }
}

void prcDealFirstFour(const Integer& intShoe) {
  const int p = intNextCard[intShoe];
  const Drawn player1 = fncCardAt(intShoe, p), banker1 = fncCardAt(intShoe, p + 1);
  const Drawn player2 = fncCardAt(intShoe, p + 2), banker2 = fncCardAt(intShoe, p + 3);
  intPlayerTotal[intShoe] = fncTotal(fncCardPoint(player1.Value), fncCardPoint(player2.Value));
  intBankerTotal[intShoe] = fncTotal(fncCardPoint(banker1.Value), fncCardPoint(banker2.Value));
  intPlayerCard1[intShoe] = player1.Number;
  intPlayerValue1[intShoe] = player1.Value;
  intPlayerCard2[intShoe] = player2.Number;
  intPlayerValue2[intShoe] = player2.Value;
  intPlayerTotal2[intShoe] = intPlayerTotal[intShoe];
  intBankerCard1[intShoe] = banker1.Number;
  intBankerValue1[intShoe] = banker1.Value;
  intBankerCard2[intShoe] = banker2.Number;
  intBankerValue2[intShoe] = banker2.Value;
  intBankerTotal2[intShoe] = intBankerTotal[intShoe];
  for (int i = 0; i < 4; ++i) {
    prcListPosition(intShoe, p + i);
  }
  intNextCard[intShoe] = p + 4;
}

/// Deals a third card to one side: total, card number, face value and flag of that side. Returns
/// its point.
Integer fncDrawThird(const Integer& intShoe, Integer& total, Integer& number, Integer& value,
                     bool& blnThird) {
  const Drawn third = fncCardAt(intShoe, intNextCard[intShoe]);
  const Integer point = fncCardPoint(third.Value);
  total = fncTotal(total, point);
  number = third.Number;
  value = third.Value;
  prcListPosition(intShoe, intNextCard[intShoe]);
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
    intCard3Point = fncDrawThird(intShoe, player, intPlayerCard3[intShoe], intPlayerValue3[intShoe],
                                 blnPlayerThird[intShoe]);
  }
  if (fncBankerDraws(banker, blnPlayerStood, intCard3Point)) {
    fncDrawThird(intShoe, banker, intBankerCard3[intShoe], intBankerValue3[intShoe],
                 blnBankerThird[intShoe]);
  }
}

const char* fncResult(Integer player, Integer banker) {
  if (player == banker) {
    return "T";
  }
  return player > banker ? "P" : "B";
}

}  // namespace

Integer fncTotal(Integer one, Integer other) {
  const int points = int{one} + int{other};
  return points > 9 ? points - 10 : points;
}

bool fncNatural(Integer total) { return total == 8 || total == 9; }

bool fncPlayerDraws(Integer intPlayer) { return intPlayer < intPlayerStandsFrom; }

bool fncBankerDraws(Integer intBanker, bool blnPlayerStood, Integer intCard3Point) {
  if (blnPlayerStood) {
    return intBanker < intBankerStandsFrom;
  }
  const DrawSpan span = spnBankerDraws[intBanker];
  return intCard3Point >= span.Low && intCard3Point <= span.High &&
         (intBanker != 3 || intCard3Point != 8);
}

void ZNEW_DealHand(const Integer& intShoe) {
  Guarded("ZNEW_DealHand", [&] {
    At(10);
    if (blnEndOfShoe[intShoe]) {
      return;
    }
    At(20);
    blnPlayerThird[intShoe] = blnBankerThird[intShoe] = false;
    At(30);
    prcDealFirstFour(intShoe);
    At(80);
    blnPlayerNatural[intShoe] = blnBankerNatural[intShoe] = false;
    At(90);
    prcDrawThirdCards(intShoe);
    At(130);
    strResult[intShoe] = fncResult(intPlayerTotal[intShoe], intBankerTotal[intShoe]);
    At(140);
    // In this order, so that one more hand is dealt behind the mark.
    if (blnLastHand[intShoe]) {
      blnEndOfShoe[intShoe] = true;
    }
    if (intNextCard[intShoe] > intLastCard[intShoe] - intCardsBehindMark) {
      blnLastHand[intShoe] = true;
    }
    At(150);
    if (intShoe == 0 && blnShowCardsDealtCount) {
      LoadlstCardsDealtCount();
    }
    At(160);
    if (intShoe == intShoeNumber) {
      BaccTable.prgShoe.Value = intNextCard[intShoe];
    }
  });
}
