#include "table/Bets.h"

#include "platform/Texts.h"

BetControls fncBet(BetSide side, Integer intSeat) {
  BaccTableWindow& table = BaccTable;
  switch (side) {
    case betTie:
      return {table.txtTieBet[intSeat], table.txtTieBetValue[intSeat], table.shpTStack[intSeat],
              table.lblTWin[intSeat],   table.lblTLose[intSeat],       lngTieBet[intSeat]};
    case betBanker:
      return {table.txtBankerBet[intSeat], table.txtBankerBetValue[intSeat],
              table.shpBStack[intSeat],    table.lblBWin[intSeat],
              table.lblBLose[intSeat],     lngBankerBet[intSeat]};
    default:
      return {table.txtPlayerBet[intSeat], table.txtPlayerBetValue[intSeat],
              table.shpPStack[intSeat],    table.lblPWin[intSeat],
              table.lblPLose[intSeat],     lngPlayerBet[intSeat]};
  }
}

std::array<Control*, 12> fncChips(Integer intSeat) {
  BaccTableWindow& table = BaccTable;
  return {&table.lblTBetInc0[intSeat], &table.lblTBetInc1[intSeat], &table.lblTBetInc2[intSeat],
          &table.lblTBetInc5[intSeat], &table.lblBBetInc0[intSeat], &table.lblBBetInc1[intSeat],
          &table.lblBBetInc2[intSeat], &table.lblBBetInc5[intSeat], &table.lblPBetInc0[intSeat],
          &table.lblPBetInc1[intSeat], &table.lblPBetInc2[intSeat], &table.lblPBetInc5[intSeat]};
}

double fncBetChips(BetSide side, Integer intSeat) { return fncVal(fncBet(side, intSeat).Box.Text); }

double fncUnitValue() { return fncVal(BaccTable.txtUnitValue.Text); }

bool fncWins(BetSide side, const std::string& result) {
  return result == (side == betTie ? "T" : side == betBanker ? "B" : "P");
}

bool fncLoses(BetSide side, const std::string& result) {
  return side == betTie ? result != "T" : result == (side == betBanker ? "P" : "B");
}

double fncPays(BetSide side) { return side == betTie ? 8 : side == betBanker ? 0.95 : 1; }

void prcShowMoney(Control& label, double money) {
  label.Text = fncCurrency(money);
  if (label.Dress == Look::Money) {
    label.Value = money;
  }
}

void prcForLostBets(const std::function<void(const BetControls& bet, Integer intSeat)>& action) {
  for (int i = 0; i < intSeats; ++i) {
    for (const BetSide side : betSides) {
      if (fncBetStands(side, i) && fncLoses(side, strResult[intShoeNumber])) {
        action(fncBet(side, i), i);
      }
    }
  }
}

void prcTakeOff(const BetControls& bet) {
  bet.Box.Text = "0";
  bet.Money = 0;
}

void prcHideValue(const BetControls& bet, const std::string& strText) {
  bet.Value.Text = strText;
  bet.Value.Visible = false;
}

void prcClearLostBets() {
  prcForLostBets([](const BetControls& bet, Integer) { prcTakeOff(bet); });
}
