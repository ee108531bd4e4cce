#include "table/TableStatus.h"

#include "platform/Procedure.h"
#include "platform/Texts.h"
#include "table/Bets.h"
#include "table/SeatResults.h"

namespace {

constexpr Colour clrRed{255, 64, 64};
constexpr Colour clrBlue{0, 0, 255};

void prcOpen(Control& control, bool blnShow) {
  control.Visible = blnShow;
  control.Enabled = blnShow;
}

void prcShowDealButtons(bool blnShow) {
  for (Control& button : BaccTable.duokkortos) {
    button.Visible = blnShow;
  }
  prcOpen(BaccTable.mskHandsAtaTime, blnShow);
}

/// A bet whose box is 0 or no number loses its money field and its value label.
void prcMendBet(BetSide side, Integer intSeat) {
  const BetControls bet = fncBet(side, intSeat);
  if (!fncIsNumeric(bet.Box.Text)) {
    bet.Box.Text = "0";
  }
  if (!fncBetStands(side, intSeat)) {
    bet.Money = 0;
    prcHideValue(bet, "0");
  }
}

}  // namespace

void prcTableStatus(const Integer& shoe) {
  const Procedure running("EH_prcTableStatus");
  BaccTableWindow& table = BaccTable;
  prcSetCardBG(shoe);
  running.Step(2);
  table.fraShoeNumber.Visible = true;
  prcOpen(table.maisyk, true);
  running.Step(3);
  table.prgShoe.Value = intNextCard[shoe];
  table.prgShoe.Visible = true;
  running.Step(4);
  table.FormLastHand.Visible = blnLastHand[shoe];
  running.Step(5);
  prcBettingEnableDisable(!blnEndOfShoe[shoe]);
  prcShowDealButtons(!blnEndOfShoe[shoe]);
  table.FormEndofShoe.Visible = blnEndOfShoe[shoe];
  if (blnEndOfShoe[shoe]) {
    table.FormLastHand.Visible = false;
    table.prgShoe.Value = table.prgShoe.Max;
  }
}

void prcBettingEnableDisable(const bool& enable) {
  const Procedure running("prcBettingEnableDisable");
  for (int i = 0; i < intSeats; ++i) {
    for (const BetSide side : betSides) {
      fncBet(side, i).Box.Enabled = enable;
      fncBet(side, i).Box.Visible = enable;
    }
    running.Step(2);
    for (Control* chip : fncChips(i)) {
      chip->Visible = chip->Enabled = enable;
    }
    running.Step(3);
    for (const BetSide side : betSides) {
      const BetControls bet = fncBet(side, i);
      if (!enable) {
        bet.Value.Visible = false;
      } else if (bet.Money != 0) {
        bet.Value.Visible = true;
      }
    }
  }
}

void CardsInvisible() {
  const Procedure running("Baccarat table CardsInvisible");
  BaccTableWindow& table = BaccTable;
  for (int n = 0; n < intPositions; ++n) {
    table.pctCardFace[n].Visible = false;
    table.pctCardFace[n].Spoken.clear();
    running.Step(2);
    blnCardClickable[n] = false;
    running.Step(3);
    for (auto* controls :
         {&table.pctCardBack, &table.lblCardBottom, &table.lblCardRight, &table.pctCardTopRight,
          &table.pctCardBottomLeft, &table.pctCardTopLeft, &table.pctCardBottomRight,
          &table.pctCardTopRightWide, &table.pctCardBottomLeftWide, &table.pctCardTopLeftWide,
          &table.pctCardBottomRightWide, &table.shpCardShadow}) {
      (*controls)[n].Visible = false;
    }
  }
}

void ResultsInvisible() {
  const Procedure running("Baccarat table ResultsInvisible");
  BaccTableWindow& table = BaccTable;
  table.Timer1.Enabled = false;
  running.Step(2);
  for (Control* label :
       {&table.PTotal, &table.BTotal, &table.TieResultP, &table.TieResultB, &table.WinP,
        &table.WinB, &table.lblNaturalP, &table.lblNaturalB, &table.Label1, &table.Label2}) {
    label->Visible = false;
  }
  running.Step(3);
  table.shpCardDealBG[1].Visible = table.shpCardDealBG[0].Visible = false;
  running.Step(4);
  prcHideSeatResults();
  for (int i = 0; i < intSeats; ++i) {
    for (const BetSide side : betSides) {
      prcMendBet(side, i);
    }
  }
}

void prcSetCardBG(const Integer& shoe) {
  const Procedure running("prcSetCardBG");
  const bool blnBlue = blnShoePlayerBlue[shoe];
  BaccTableWindow& table = BaccTable;
  table.Label1.ForeColor = table.PTotal.ForeColor = blnBlue ? clrWhite : clrRed;
  running.Step(2);
  table.shpCardDealBG[0].FillColor = blnBlue ? clrBlue : clrRed;
  running.Step(3);
  table.Label2.ForeColor = table.BTotal.ForeColor = blnBlue ? clrRed : clrWhite;
  running.Step(4);
  table.shpCardDealBG[1].FillColor = blnBlue ? clrRed : clrBlue;
}

void prcOpenDealControls() {
  prcOpen(BaccTable.maisyk, true);
  prcShowDealButtons(true);
}

void prcFocusNextStep() {
  const Control* active = BaccTable.Form.ActiveControl;
  if (active == nullptr || active == &BaccTable.txtsetfocus || !fncTakesFocus(*active)) {
    fncSetFocus(blnEndOfShoe[intShoeNumber] ? BaccTable.maisyk : BaccTable.duokkortos[0]);
  }
}
