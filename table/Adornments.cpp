#include "table/Adornments.h"

#include <algorithm>

#include "table/Bets.h"

namespace {

constexpr Colour clrLit{236, 203, 120};
constexpr Colour clrUnlit{150, 166, 150};

/// The step of a first hand that comes next: 0 shuffles, 1 bets, 2 deals.
int fncNextStep() {
  if (!blnShuffled[intShoeNumber]) {
    return 0;
  }
  for (int i = 0; i < intSeats; ++i) {
    if (std::ranges::any_of(betSides, [i](BetSide side) { return fncBetStands(side, i); })) {
      return 2;
    }
  }
  return 1;
}

void prcLeadToFirstHand() {
  BaccTableWindow& table = BaccTable;
  table.blnHandSeen = table.blnHandSeen || intHandsDealt[intShoeNumber] > 0;
  for (int step = 0; step < table.lblStep.size(); ++step) {
    Control& word = table.lblStep[step];
    word.Visible = !table.blnHandSeen;
    word.Face.Bold = step == fncNextStep();
    word.ForeColor = word.Face.Bold ? clrLit : clrUnlit;
  }
}

void prcAdornCards() {
  BaccTableWindow& table = BaccTable;
  for (int n = 0; n < intPositions; ++n) {
    table.shpCardPlace[n].Visible = !table.lblShuffleInProgress[0].Visible;
    table.shpCardWaits[n].Visible = blnCardClickable[n] && table.lblCardBottom[n].Visible;
  }
}

/// The chips of a bet beside its money, not those that are just being typed into its box, whatever
/// chip value they were paid at: hollow while the hand that lost them is told. The money of a lost
/// bet is struck out as long as it stands there.
void prcAdornBet(BetSide side, int intSeat) {
  const BetControls bet = fncBet(side, intSeat);
  const bool blnStands = bet.Money != 0;
  const bool blnLost = BaccTable.Timer1.Enabled && fncLoses(side, strResult[intShoeNumber]);
  const double chips = fncBetChips(side, intSeat);
  if (BaccTable.Form.ActiveControl != &bet.Box || chips * fncUnitValue() == bet.Money) {
    bet.Stack.Value = chips;
  }
  bet.Stack.Visible = bet.Value.Visible && blnStands;
  bet.Stack.Enabled = !blnLost;
  bet.Value.Face.Struck = blnLost || !blnStands;
}

}  // namespace

void prcAdornTable() {
  BaccTable.maisyk.Dress = blnEndOfShoe[intShoeNumber] ? Look::Primary : Look::Plain;
  prcLeadToFirstHand();
  prcAdornCards();
  for (int i = 0; i < intSeats; ++i) {
    for (const BetSide side : betSides) {
      prcAdornBet(side, i);
    }
  }
}
