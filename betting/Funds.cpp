#include "betting/Funds.h"

#include <string>

#include "platform/Procedure.h"
#include "platform/Texts.h"
#include "platform/platform.h"
#include "table/Bets.h"

namespace {

void prcReturnBet(BetSide side, Integer i) {
  const BetControls bet = fncBet(side, i);
  dblPlayerTotal[i] += fncBetChips(side, i) * fncUnitValue();
  bet.Box.Text = "0";
  bet.Money = 0;
}

}  // namespace

bool prcSufficientFunds(Long NewBet, Integer Index) {
  return Guarded("Baccarat table prcSufficientFunds", [&] {
    At(10);
    if (dblPlayerTotal[Index] - NewBet < 0) {
      platform::MsgBox(std::string("Sorry, not enough money for the bet placed.") + strLineBreak +
                           "You must add more stake money using the Statistics screen.",
                       platform::Icon::Exclamation, "Velmora");
      return false;
    }
    return true;
  });
}

void prcReturnBets() {
  Guarded("prcReturnBets", [] {
    for (int i = 0; i < intSeats; ++i) {
      At(10);
      prcReturnBet(betTie, i);
      At(20);
      prcReturnBet(betPlayer, i);
      At(30);
      prcReturnBet(betBanker, i);
      At(40);
      prcShowMoney(BaccTable.lblPlayerTotal[i], dblPlayerTotal[i]);
    }
  });
}
