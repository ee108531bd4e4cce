#include "table/HandSettlement.h"

#include "marking/ManualShoe.h"
#include "marking/MarkCard.h"
#include "shell/SettingsStore.h"
#include "table/Bets.h"
#include "table/Hooks.h"

namespace {

void prcSettleSeat(Integer i) {
  const std::string section = fncSeatSection(i);
  ManualShoe(fncBetChips(betPlayer, i), fncBetChips(betBanker, i), fncBetChips(betTie, i), i + 1);
  dblPlayerWin[i] = dblHandWin + dblPlayerWin[i] - dblHandLoss;
  prcShowMoney(BaccTable.lblPlayerWinnings[i], dblPlayerWin[i]);
  dblPlayerTotal[i] = dblHandWin + dblPlayerTotal[i];
  prcShowMoney(BaccTable.lblPlayerTotal[i], dblPlayerTotal[i]);
  prcWriteSetting(section, keyWin, dblPlayerWin[i]);
  const Long turnover = fncLong(fncGetSetting(section, keyTurnover));
  const Long played = turnover + lngTieBet[i] + lngBankerBet[i] + lngPlayerBet[i];
  prcWriteSetting(section, keyTurnover, played);
}

}  // namespace

void prcSettleHand() {
  prcWriteTogether([] {
    for (int i = 0; i < intSeats; ++i) {
      prcSettleSeat(i);
    }
    prcWriteSetting(secPlayed, keyHands, fncLong(fncGetSetting(secPlayed, keyHands) + 1));
  });
  for (int k = 0; k < intShoes; ++k) {
    if (intMarkCardShoe[k] == intShoeNumber && k != intShoeNumber) {
      SetCardView(k);
    }
  }
  hooks.HandSettled();
}
