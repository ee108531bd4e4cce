#include "betting/Funds.h"

#include <string>

#include "platform/Procedure.h"
#include "platform/Texts.h"
#include "platform/platform.h"
#include "table/Bets.h"

namespace {

void prcReturnBet(BetSide side, Integer i) {
  dblPlayerTotal[i] += fncBetChips(side, i) * fncUnitValue();
  prcTakeOff(fncBet(side, i));
}

}  // namespace

bool prcSufficientFunds(Long NewBet, Integer Index) {
  const Procedure running("Baccarat table prcSufficientFunds");
  if (dblPlayerTotal[Index] - NewBet < 0) {
    platform::MsgBox(std::string("Sorry, not enough money for the bet placed.") + strLineBreak +
                         "You must add more stake money using the Statistics screen.",
                     platform::Icon::Exclamation, "Velmora");
    return false;
  }
  return true;
}

void prcReturnBets() {
  const Procedure running("prcReturnBets");
  for (int i = 0; i < intSeats; ++i) {
    prcReturnBet(betTie, i);
    running.Step(2);
    prcReturnBet(betPlayer, i);
    running.Step(3);
    prcReturnBet(betBanker, i);
    running.Step(4);
    prcShowMoney(BaccTable.lblPlayerTotal[i], dblPlayerTotal[i]);
  }
}
