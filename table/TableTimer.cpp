#include "table/TableTimer.h"

#include "platform/Procedure.h"
#include "table/Bets.h"
#include "table/SeatResults.h"
#include "table/TableStatus.h"

namespace {

constexpr int intFlashTicks = 4;

void prcFlash() {
  for (Control* label : fncResultLabels()) {
    label->Announce = false;  // The flashing is for the eye alone: the ear has heard the result.
    label->Visible = !label->Visible;
  }
  ++BaccTable.intFlashCount;
}

void prcReopenSeats() {
  for (int i = 0; i < intSeats; ++i) {
    for (const BetSide side : betSides) {
      fncBet(side, i).Box.Enabled = true;
    }
    for (Control* chip : fncChips(i)) {
      chip->Visible = chip->Enabled = true;
    }
  }
}

void prcCloseRound() {
  const bool blnOpen = !blnEndOfShoe[intShoeNumber];
  prcShowResults();
  prcClearLostBets();
  if (blnOpen) {
    prcReopenSeats();
    prcOpenDealControls();
  }
  BaccTable.Timer1.Enabled = false;
  blnBusy = false;
  prcFocusNextStep();
}

}  // namespace

void Timer1_Timer() {
  const Procedure running("Baccarat table Timer1_Timer");
  if (BaccTable.intFlashCount < intFlashTicks) {
    prcFlash();
  } else {
    running.Step(2);
    prcCloseRound();
  }
}
