#include "reveal/CardMovement.h"

#include <cstdint>
#include <cstdlib>

#include "platform/Procedure.h"
#include "reveal/CardReveal.h"
#include "table/TableState.h"
#include "table/Waits.h"

namespace {

/// How far across a card moves at a time, twips, and how long it then stands there.
constexpr int intFlightStep = 180;
constexpr double dblFlightPause = 0.005;

void prcTurnByItself(BaccTableWindow& frm, Integer value, Integer Index) {
  At(10);
  if (blnDealDelay) {
    prcWaitSeconds(Index == 0 || Index == 3 ? 0.5 : 0.7);
  }
  At(20);
  prcShowInnerPatches(frm, value, Index, true);
  At(30);
  prcUncover(Index);
  At(40);
  if (blnDealDelay) {
    prcWaitSeconds(0.7);
  }
}

void prcOfferToUser(BaccTableWindow& frm, Integer value, Integer Index) {
  At(50);
  frm.lblCardBottom[Index].Visible = true;
  frm.lblCardRight[Index].Visible = true;
  At(60);
  prcShowOuterPatches(frm, value, Index, true);
  At(70);
  if (!blnShowCardValues) {
    prcShowInnerPatches(frm, value, Index, true);
  }
}

}  // namespace

void prcMoveCard(BaccTableWindow& frm, const Integer& Index) {
  Guarded("prcMoveCard", [&] {
    Control& card = frm.pctCardBackMove;
    At(10);
    card.Visible = true;
    At(20);
    const std::int64_t startTop = fncRound(card.Top);
    const std::int64_t startLeft = fncRound(card.Left);
    At(30);
    const std::int64_t dy = fncRound(frm.pctCardBack[Index].Top) - startTop;
    const std::int64_t dx = fncRound(frm.pctCardBack[Index].Left) - startLeft;
    At(40);
    const std::int64_t steps = fncDivide(dx, intFlightStep);
    At(50);
    const int sign = steps < 0 ? -1 : 1;
    At(60);
    const std::int64_t stepTop = fncDivide(dy, std::abs(steps));
    At(70);
    for (std::int64_t i = 1; i <= std::abs(steps); ++i) {
      card.Left = static_cast<double>(startLeft + i * intFlightStep * sign);
      card.Top = static_cast<double>(startTop + stepTop * i);
      prcWaitSeconds(dblFlightPause);
    }
    At(80);
    card.Visible = false;
    card.Left = static_cast<double>(startLeft);
    card.Top = static_cast<double>(startTop);
  });
}

void RevealCards(const Integer& value, const Integer& Index, BaccTableWindow& frm) {
  Guarded("RevealCards", [&] {
    if (blnCardFaceUp) {
      prcTurnByItself(frm, value, Index);
    } else {
      prcOfferToUser(frm, value, Index);
    }
  });
}
