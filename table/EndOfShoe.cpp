#include "table/EndOfShoe.h"

#include "betting/Funds.h"
#include "shell/CardsDealt.h"
#include "shell/SettingsStore.h"
#include "table/Bets.h"
#include "table/TableStatus.h"

namespace {

/// The cards left behind the last hand go into the list, and the bar runs with them to the end.
void prcListRest() {
  for (int p = intNextCard[0]; p <= intLastCard[0]; ++p) {
    prcListCard(p, "<-End");
    BaccTable.prgShoe.Value = p;
  }
  if (blnShowCardsDealtCount) {
    LoadlstCardsDealtCount();
  }
}

}  // namespace

void prcEndOfShoe() {
  if (intHandsAtaTime == 1) {
    prcClearLostBets();
  }
  prcReturnBets();
  prcTableStatus(intShoeNumber);
  BaccTable.txtUnitValue.Enabled = true;
  if (intShoeNumber == 0) {
    prcListRest();
  }
  intNextCard[intShoeNumber] = int{intLastCard[intShoeNumber]};
  const std::string key = fncDecksKey(intDecksInPlay[intShoeNumber]);
  prcWriteSetting(secPlayed, key, fncLong(fncGetSetting(secPlayed, key) + 1));
}
