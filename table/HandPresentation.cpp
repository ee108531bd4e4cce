#include "table/HandPresentation.h"

#include "learn/CardNeed.h"
#include "platform/Texts.h"
#include "platform/platform.h"
#include "reveal/CardMovement.h"
#include "table/BaccTable.h"
#include "table/Positions.h"
#include "table/SeatResults.h"
#include "table/Waits.h"

namespace {

void prcLayBack(int n) {
  if (blnDealAnimation) {
    prcMoveCard(BaccTable, n);
  }
  BaccTable.pctCardBack[n].Announce = !blnCardFaceUp;
  BaccTable.pctCardBack[n].Visible = true;
  BaccTable.shpCardShadow[n].Visible = true;
}

template <class Test>
void prcPoll(Test done) {
  while (!done()) {
    prcWaitSeconds(1);
    platform::DoEvents();
  }
}

bool fncTurned(int n) { return !BaccTable.pctCardBack[n].Visible; }

void prcShowNumber(Control& label, Integer number) { label.Text = std::to_string(number); }

void prcLayFirstFour() {
  for (const int n : {0, 3, 1}) {
    prcLayBack(n);
    prcWaitSeconds(0.5);
  }
  prcLayBack(4);
}

void prcRevealPair(const HandSide& side) {
  for (const int n : {side.First, side.First + 1}) {
    BaccTable.pctCardFace[n].Picture = fncHandCard(intShoeNumber, n);
    BaccTable.pctCardFace[n].Visible = true;
    RevealCards(fncHandValue(intShoeNumber, n), n, BaccTable);
  }
  if (blnCardFaceUp) {
    prcShowNumber(side.TotalLabel, side.Total2);
    side.TotalLabel.Visible = true;
    if (side.blnNatural) {
      side.NaturalLabel.Visible = true;
    }
  }
}

void prcThirdCard(const HandSide& side) {
  if (!side.blnThird) {
    return;
  }
  const int n = side.First + 2;
  BaccTable.pctCardFace[n].Picture = fncHandCard(intShoeNumber, n);
  prcLayBack(n);
  BaccTable.pctCardFace[n].Visible = true;
  prcWaitSeconds(blnDealDelay ? 0.7 : 0.5);
  blnCardClickable[n] = true;
  RevealCards(fncHandValue(intShoeNumber, n), n, BaccTable);
  if (blnCardFaceUp) {
    prcShowNumber(side.TotalLabel, side.Total);
  }
}

/// Below this total the Banker draws whatever the Player's third card is, so nothing has to wait
/// for it.
constexpr double dblBankerDrawsAnyway = 2;

void prcHoldForPlayerThird() {
  if (blnPlayerThird[intShoeNumber] && !blnCardFaceUp &&
      fncVal(BaccTable.BTotal.Text) > dblBankerDrawsAnyway) {
    prcPoll([] { return fncTurned(2); });
  }
}

}  // namespace

void prcPresentHand() {
  if (blnLearn && !blnCardFaceUp) {
    BaccTable.shpCardNeedP.Visible = BaccTable.shpCardNeedB.Visible = true;
  }
  prcLayFirstFour();
  BaccTable.blnCardsPlaced = true;
  if (!blnDealDelay) {
    prcWaitSeconds(0.5);
  }
  prcRevealPair(fncHandSide(0));
  prcRevealPair(fncHandSide(3));
  for (const int n : {0, 1, 3, 4}) {
    blnCardClickable[n] = true;
  }
  if (!blnCardFaceUp) {
    prcPoll([] { return fncTurned(0) && fncTurned(1) && fncTurned(3) && fncTurned(4); });
  }
  prcThirdCard(fncHandSide(0));
  prcHoldForPlayerThird();
  prcThirdCard(fncHandSide(3));
  if (!blnCardFaceUp && (blnPlayerThird[intShoeNumber] || blnBankerThird[intShoeNumber])) {
    prcPoll([] { return fncTurned(2) && fncTurned(5); });
  }
  prcHideLearnPanels();
  prcShowResults();
}
