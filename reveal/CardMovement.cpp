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
  if (blnDealDelay) {
    prcWaitSeconds(Index == 0 || Index == 3 ? 0.5 : 0.7);
  }
  prcShowInnerPatches(frm, value, Index, true);
  prcUncover(frm, Index, blnDealDelay);
  if (blnDealDelay) {
    prcWaitSeconds(0.7);
  }
}

void prcOfferToUser(BaccTableWindow& frm, Integer value, Integer Index) {
  frm.lblCardBottom[Index].Visible = true;
  frm.lblCardRight[Index].Visible = true;
  prcShowOuterPatches(frm, value, Index, true);
  if (!blnShowCardValues) {
    prcShowInnerPatches(frm, value, Index, true);
  }
}

}  // namespace

void prcMoveCard(BaccTableWindow& frm, const Integer& Index) {
  const Procedure running("prcMoveCard");
  Control& card = frm.pctCardBackMove;
  card.Visible = true;
  running.Step(2);
  const std::int64_t startTop = fncRound(card.Top);
  const std::int64_t startLeft = fncRound(card.Left);
  running.Step(3);
  const std::int64_t dy = fncRound(frm.pctCardBack[Index].Top) - startTop;
  const std::int64_t dx = fncRound(frm.pctCardBack[Index].Left) - startLeft;
  running.Step(4);
  const std::int64_t steps = fncDivide(dx, intFlightStep);
  running.Step(5);
  const int sign = steps < 0 ? -1 : 1;
  running.Step(6);
  const std::int64_t stepTop = fncDivide(dy, std::abs(steps));
  running.Step(7);
  for (std::int64_t i = 1; i <= std::abs(steps); ++i) {
    card.Left = static_cast<double>(startLeft + i * intFlightStep * sign);
    card.Top = static_cast<double>(startTop + stepTop * i);
    prcWaitSeconds(dblFlightPause);
  }
  running.Step(8);
  card.Visible = false;
  card.Left = static_cast<double>(startLeft);
  card.Top = static_cast<double>(startTop);
}

void RevealCards(const Integer& value, const Integer& Index, BaccTableWindow& frm) {
  const Procedure running("RevealCards");
  if (blnCardFaceUp) {
    prcTurnByItself(frm, value, Index);
  } else {
    prcOfferToUser(frm, value, Index);
  }
}
