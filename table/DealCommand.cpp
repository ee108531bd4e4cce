#include "table/DealCommand.h"

#include <algorithm>

#include "betting/Funds.h"
#include "betting/frmStatistics.h"
#include "learn/CardNeed.h"
#include "marking/MarkCard.h"
#include "platform/Procedure.h"
#include "platform/Texts.h"
#include "platform/platform.h"
#include "shell/MDIForm1.h"
#include "table/Bets.h"
#include "table/EndOfShoe.h"
#include "table/HandDealing.h"
#include "table/HandPresentation.h"
#include "table/HandSettlement.h"
#include "table/TableStatus.h"

namespace {

/// The checks before a run; each refusal is told and changes nothing.
bool fncMayDeal() {
  if (blnEndOfShoe[intShoeNumber] && blnShuffled[intShoeNumber]) {
    return false;  // An ended shoe deals nothing, and its last hand must not be settled again.
  }
  if (!blnShuffled[intShoeNumber]) {
    platform::MsgBox("Shoe is not yet shuffled", platform::Icon::Stop, "Velmora");
    return false;
  }
  for (int i = 0; i < intSeats; ++i) {
    if (fncBetStands(betBanker, i) && fncBetStands(betPlayer, i)) {
      platform::MsgBox("Player " + std::to_string(i + 1) + "must bet only on Banker OR Player",
                       platform::Icon::Exclamation, "Velmora");
      return false;
    }
  }
  return true;
}

/// Hands asked for by a Deal button: the hands box for the first, its own caption for the others.
Integer fncHandsAsked(Integer Index) {
  const std::string& text =
      Index == 0 ? BaccTable.mskHandsAtaTime.Text : BaccTable.duokkortos[Index].Text;
  return fncInteger(std::max(fncVal(text), 1.0));
}

void prcShowCardAreas() {
  BaccTable.Label1.Visible = BaccTable.Label2.Visible = true;
  BaccTable.shpCardDealBG[1].Visible = BaccTable.shpCardDealBG[0].Visible = true;
}

void prcLockSeat(Integer i) {
  for (const BetSide side : betSides) {
    const BetControls bet = fncBet(side, i);
    bet.Win.Visible = bet.Lose.Visible = false;
    if (!fncBetStands(side, i)) {
      bet.Value.Visible = false;
    }
    bet.Box.Enabled = false;
  }
  for (Control* chip : fncChips(i)) {
    chip->Visible = chip->Enabled = false;
  }
}

void prcLockTable() {
  BaccTableWindow& table = BaccTable;
  fncSetFocus(table.txtsetfocus);
  for (Control& button : table.duokkortos) {
    button.Visible = false;
  }
  table.mskHandsAtaTime.Visible = table.mskHandsAtaTime.Enabled = false;
  table.maisyk.Visible = table.maisyk.Enabled = false;
  table.txtUnitValue.Enabled = false;
  for (int i = 0; i < intSeats; ++i) {
    prcLockSeat(i);
  }
}

void prcRenewLostBets() {
  prcForLostBets([](const BetControls& bet, Integer i) {
    if (!prcSufficientFunds(bet.Money, i)) {
      prcTakeOff(bet);
      return;
    }
    dblPlayerTotal[i] -= bet.Money;
    prcShowMoney(BaccTable.lblPlayerTotal[i], dblPlayerTotal[i]);
  });
}

/// Deals the hands of a run; a multi-hand run settles each at once. Returns how many were dealt.
Integer fncDealHands() {
  const bool blnMany = intHandsAtaTime > 1;
  Integer dealt = 0;
  for (Integer hand = 1; !blnEndOfShoe[intShoeNumber] && hand <= intHandsAtaTime;) {
    ZNEW_DealHand(intShoeNumber);
    ++intHandsDealt[intShoeNumber];
    if (blnMany) {
      prcSettleHand();
    }
    ++hand;
    ++dealt;
    if (!blnMany) {
      continue;
    }
    if (!blnEndOfShoe[intShoeNumber] && hand <= intHandsAtaTime) {
      prcRenewLostBets();
    } else {
      prcClearLostBets();
    }
  }
  return dealt;
}

void prcCloseRun(Integer dealt) {
  if (intHandsAtaTime > 1) {
    platform::MsgBox(std::to_string(dealt) + " hands have just been dealt",
                     platform::Icon::Information, "Velmora");
    blnBusy = false;
    return;
  }
  prcPresentHand();
  prcSettleHand();
  BaccTable.intFlashCount = 0;
  BaccTable.Timer1.Enabled = true;
}

void prcReopenAfterMany() {
  if (intHandsAtaTime > 1 && !blnEndOfShoe[intShoeNumber]) {
    prcBettingEnableDisable(true);
    prcOpenDealControls();
    fncSetFocus(BaccTable.duokkortos[0]);
  }
}

void prcOpenRun() {
  BaccTable.blnCardsPlaced = false;
  blnBusy = true;
  prcMarkCardTimers();
  CardsInvisible();
  ResultsInvisible();
}

}  // namespace

void duokkortos_Click(Integer Index) {
  const Procedure running("Baccarat table duokkortos_Click");
  if (!fncMayDeal()) {
    return;
  }
  running.Step(3);
  prcOpenRun();
  running.Step(4);
  intHandsAtaTime = fncHandsAsked(Index);
  running.Step(5);
  if (intHandsAtaTime == 1) {
    prcShowCardAreas();
  }
  running.Step(6);
  prcLockTable();
  running.Step(7);
  if (intHandsAtaTime > 1 || blnCardFaceUp) {
    prcHideLearnPanels();
  }
  running.Step(8);
  const Integer dealt = fncDealHands();
  running.Step(9);
  prcCloseRun(dealt);
  running.Step(10);
  prcReopenAfterMany();
  running.Step(11);
  BaccTable.mskHandsAtaTime.Text = "1";
  running.Step(12);
  if (blnLastHand[intShoeNumber]) {
    BaccTable.FormLastHand.Visible = true;
  }
  running.Step(13);
  if (blnEndOfShoe[intShoeNumber]) {
    prcEndOfShoe();
    if (intHandsAtaTime > 1) {
      prcFocusNextStep();  // A single hand is still being told: its last flash does.
    }
  }
  running.Step(14);
  if (MDIForm1.mnuStatistics.Value == 1) {
    prcStatisticsRefresh();
  }
}
