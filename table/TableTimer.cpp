#include "table/TableTimer.h"

#include "platform/Procedure.h"
#include "table/Bets.h"
#include "table/SeatResults.h"
#include "table/TableStatus.h"

namespace {

constexpr int intFlashTicks = 4;

/// The flashing is for the eye alone: the ear has heard the result.
void prcTurn(Control& label) {
  label.Announce = false;
  label.Visible = !label.Visible;
}

void prcFlash() {
  for (Control* label : fncSideResults()) {
    prcTurn(*label);
  }
  for (int i = 0; i < intSeats; ++i) {
    for (const SeatResult& result : fncSeatResults(i)) {
      prcTurn(*result.Label);
    }
  }
  ++BaccTable.intFlashCount;
}

void prcReopenSeat(Integer i) {
  for (const BetSide side : betSides) {
    fncBet(side, i).Box.Enabled = true;
  }
  for (Control* chip : fncChips(i)) {
    chip->Visible = chip->Enabled = true;
  }
}

void prcCloseRound() {
  const bool blnOpen = !blnEndOfShoe[intShoeNumber];
  for (Control* label : fncSideResults()) {
    label->Announce = label->Visible = true;
  }
  for (int i = 0; i < intSeats; ++i) {
    for (const SeatResult& result : fncSeatResults(i)) {
      result.Label->Announce = result.Label->Visible = true;
      if (!result.Won) {
        const BetControls bet = fncBet(result.Side, i);
        bet.Box.Text = "0";
        bet.Money = 0;
      }
    }
    if (blnOpen) {
      prcReopenSeat(i);
    }
  }
  if (blnOpen) {
    prcOpenDealControls();
  }
  BaccTable.Timer1.Enabled = false;
  blnBusy = false;
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
