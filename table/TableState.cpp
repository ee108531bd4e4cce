#include "table/TableState.h"

Table<SlotRow, intShoes> intShoeCards;
Table<SlotRow, intShoes> intCardValue;
Table<Integer, intShoes> intDecks;
Table<Integer, intShoes> intDecksInPlay;
Table<Integer, intShoes> intLastCard;
Table<Integer, intShoes> intNextCard;
Table<Integer, intShoes> intHandsDealt;
Table<bool, intShoes> blnShuffled;
Table<bool, intShoes> blnLastHand;
Table<bool, intShoes> blnEndOfShoe;
Table<bool, intShoes> blnShoePlayerBlue;

Table<Integer, intShoes> intPlayerCard1, intPlayerCard2, intPlayerCard3;
Table<Integer, intShoes> intBankerCard1, intBankerCard2, intBankerCard3;
Table<Integer, intShoes> intPlayerValue1, intPlayerValue2, intPlayerValue3;
Table<Integer, intShoes> intBankerValue1, intBankerValue2, intBankerValue3;
Table<bool, intShoes> blnPlayerThird, blnBankerThird;
Table<Integer, intShoes> intPlayerTotal2, intBankerTotal2;
Table<Integer, intShoes> intPlayerTotal, intBankerTotal;
Table<bool, intShoes> blnPlayerNatural, blnBankerNatural;
Table<std::string, intShoes> strResult;
Table<std::optional<Integer>, intShoes> varHandUnits;  // prcResetTableState makes each a plain 0.

Table<Integer, intShoes> intMarkCardShoe;
Table<Long, intShoes> lngMarkCardHwnd;

Integer intShoeNumber;
bool blnBusy = false;
Integer intHandsAtaTime;
Table<bool, intPositions> blnCardClickable;

Table<CardsDealtRow, 13> varCardsDealtCount;
Integer intSuitRow;
double dblHandWin = 0, dblHandLoss = 0;

Table<double, intSeats> dblPlayerWin;
Table<double, intSeats> dblPlayerTotal;
Table<Long, intSeats> lngBankerBet, lngPlayerBet, lngTieBet;

bool blnLearn = false, blnCardFaceUp = false, blnShowCardValues = false,
     blnShowCardsDealtCount = false;
bool blnShowScore = false, blnShowNaturals = false, blnPlayerBlue = false;
bool blnDealDelay = false, blnDealAnimation = false;
bool blnTableLoaded = false, blnMarkCardLoaded = false;

namespace {

void prcResetShoes() {
  intShoeCards = {};
  intCardValue = {};
  for (auto* numbers :
       {&intDecks,        &intDecksInPlay,  &intLastCard,     &intNextCard,     &intHandsDealt,
        &intPlayerCard1,  &intPlayerCard2,  &intPlayerCard3,  &intBankerCard1,  &intBankerCard2,
        &intBankerCard3,  &intPlayerValue1, &intPlayerValue2, &intPlayerValue3, &intBankerValue1,
        &intBankerValue2, &intBankerValue3, &intPlayerTotal2, &intBankerTotal2, &intPlayerTotal,
        &intBankerTotal,  &intMarkCardShoe}) {
    *numbers = {};
  }
  for (auto* flags : {&blnShuffled, &blnLastHand, &blnEndOfShoe, &blnShoePlayerBlue,
                      &blnPlayerThird, &blnBankerThird, &blnPlayerNatural, &blnBankerNatural}) {
    *flags = {};
  }
  strResult = {};
  varHandUnits.fill(Integer(0));
  lngMarkCardHwnd = {};
}

}  // namespace

void prcResetTableState() {
  prcResetShoes();
  intShoeNumber = 0;
  intHandsAtaTime = 0;
  blnCardClickable = {};
  varCardsDealtCount = {};
  intSuitRow = 0;
  dblHandWin = dblHandLoss = 0;
  dblPlayerWin = dblPlayerTotal = {};
  lngBankerBet = lngPlayerBet = lngTieBet = {};
  for (bool* flag : {&blnBusy, &blnLearn, &blnCardFaceUp, &blnShowCardValues,
                     &blnShowCardsDealtCount, &blnShowScore, &blnShowNaturals, &blnPlayerBlue,
                     &blnDealDelay, &blnDealAnimation, &blnTableLoaded, &blnMarkCardLoaded}) {
    *flag = false;
  }
}
