#include "betting/BetEntry.h"

#include <array>

#include "betting/Funds.h"
#include "betting/TableLimits.h"
#include "marking/MarkCard.h"
#include "platform/Procedure.h"
#include "platform/Texts.h"
#include "platform/platform.h"
#include "table/Hooks.h"
#include "table/TableStatus.h"

namespace {

/// What the three bets of a seat differ in. Both texts of a limit are kept: chips and typing tell
/// it differently.
struct BetRules {
  /// The side that cannot stand beside this one; the Tie has none and names itself.
  BetSide Other;
  int Most;  ///< Chips.
  int SelLength;
  const char* IncLabel;
  const char* GotFocusLabel;
  const char* ValidateLabel;
  const char* ChipLimit;
  const char* TypedLimit;
};

const BetRules& fncRules(BetSide side) {
  static constexpr std::array<BetRules, 3> rules{{
      {betTie, 50, 2, "Baccarat table TBetInc", "Baccarat table txtTieBet_GotFocus",
       "Baccarat table txtTieBet_Validate", "Tie bet must be 0 to 50", "Tie bet must be 0 to 50"},
      {betPlayer, 100, 3, "Baccarat table BBetInc", "Baccarat table txtBankerBet_GotFocus",
       "Baccarat table txtBankerBet_Validate", "Bet must be 0 to 100",
       "Banker bet must be 0 to 100"},
      {betBanker, 100, 3, "Baccarat table PBetInc", "Baccarat table txtPlayerBet_GotFocus",
       "Baccarat table txtPlayerBet_Validate", "Bet must be 0 to 100",
       "Player bet must be 0 to 100"},
  }};
  return rules.at(static_cast<std::size_t>(side));
}

bool fncHasOther(BetSide side) { return fncRules(side).Other != side; }

/// Money that stands on the side this bet replaces.
Long fncOtherMoney(BetSide side, Integer Index) {
  return fncHasOther(side) ? fncBet(fncRules(side).Other, Index).Money : Long(0);
}

/// Takes the other side's bet off the table. Its money goes back to the seat only where blnRefund
/// says so: a typed bet has given it back already.
void prcTakeOtherOff(BetSide side, Integer Index, bool blnRefund) {
  if (!fncHasOther(side)) {
    return;
  }
  const BetControls other = fncBet(fncRules(side).Other, Index);
  if (blnRefund) {
    dblPlayerTotal[Index] += other.Money;
  }
  prcTakeOff(other);
  prcHideValue(other, fncCurrency(0));
}

void prcShowTotal(Integer Index) {
  prcShowMoney(BaccTable.lblPlayerTotal[Index], dblPlayerTotal[Index]);
}

/// Books what the box of a bet holds as its money and shows it.
void prcBookMoney(BetSide side, Integer Index) {
  const BetControls bet = fncBet(side, Index);
  bet.Money = fncLong(fncBetChips(side, Index) * fncUnitValue());
  prcShowMoney(bet.Value, bet.Money);
}

void prcInc(BetSide side, Integer Index, Integer intMultiple) {
  const BetRules& rules = fncRules(side);
  const Procedure running(rules.IncLabel);
  const BetControls bet = fncBet(side, Index);
  prcMarkCardTimers();
  running.Step(2);
  // A box that is left may refuse, and a bet box is closed without a chip value: then the click
  // does nothing more.
  if (!fncSetFocus(bet.Box) || !fncUnitValueStands()) {
    return;
  }
  running.Step(3);
  CardsInvisible();
  ResultsInvisible();
  running.Step(4);
  const Long NewBet = fncLong(fncUnitValue() * intMultiple) - fncOtherMoney(side, Index);
  if (!prcSufficientFunds(NewBet, Index)) {
    return;
  }
  running.Step(5);
  const double chips = fncBetChips(side, Index) + intMultiple;
  if (chips < 0 || chips > rules.Most) {
    platform::MsgBox(rules.ChipLimit, platform::Icon::Exclamation, "Velmora");
    return;
  }
  running.Step(6);
  hooks.BetChanging(side, Index, fncBetChips(side, Index));
  bet.Box.Text = fncPlainNumberText(chips);
  bet.Box.SelLength = rules.SelLength;  // What is typed next replaces it, as in a box just reached.
  running.Step(7);
  prcTakeOtherOff(side, Index, true);
  running.Step(8);
  prcBookMoney(side, Index);
  running.Step(9);
  bet.Value.Visible = bet.Money != 0;
  running.Step(10);
  dblPlayerTotal[Index] -= fncUnitValue() * intMultiple;
  prcShowTotal(Index);
}

void prcGotFocus(BetSide side, Integer Index) {
  const BetRules& rules = fncRules(side);
  const Procedure running(rules.GotFocusLabel);
  prcMarkCardTimers();
  running.Step(2);
  fncBet(side, Index).Box.SelLength = rules.SelLength;
  if (!fncUnitValueStands()) {
    // No bet can be reckoned yet: the chip value box tells why, and takes the focus where it may.
    txtUnitValue_LostFocus();
  }
}

/// Chips that a bet held before something was typed into its box.
Integer fncOldChips(BetSide side, Integer Index) {
  return fncInteger(fncBet(side, Index).Money / fncUnitValue());
}

void prcRefuse(Control& box, const char* text, bool& Cancel) {
  if (text != nullptr) {
    platform::MsgBox(text);
  }
  fncSetFocus(box);
  Cancel = true;
}

/// The checks of a typed bet, each with its message. Returns whether the bet may be booked.
bool fncTypedBetGood(BetSide side, Integer Index, bool& Cancel) {
  const BetRules& rules = fncRules(side);
  const BetControls bet = fncBet(side, Index);
  if (!fncIsNumeric(bet.Box.Text)) {
    prcRefuse(bet.Box, rules.TypedLimit, Cancel);
    bet.Box.Text = "0";
    return false;
  }
  const double chips = fncBetChips(side, Index);
  if (chips < 0 || chips > rules.Most) {
    prcRefuse(bet.Box, rules.TypedLimit, Cancel);
    return false;
  }
  const double unit = fncUnitValue();
  const Integer old = fncOldChips(side, Index);
  const Long NewBet = fncLong((chips - old) * unit - fncOtherMoney(side, Index));
  if (!prcSufficientFunds(NewBet, Index)) {
    bet.Box.Text = std::to_string(old);
    prcRefuse(bet.Box, nullptr, Cancel);
    return false;
  }
  return true;
}

void prcBookTypedBet(BetSide side, Integer Index) {
  const BetControls bet = fncBet(side, Index);
  dblPlayerTotal[Index] += bet.Money;
  if (fncBetStands(side, Index)) {
    dblPlayerTotal[Index] += fncOtherMoney(side, Index);
  }
  prcBookMoney(side, Index);
  dblPlayerTotal[Index] -= bet.Money;
  prcShowTotal(Index);
  if (bet.Money == 0) {
    bet.Value.Visible = false;
    return;
  }
  bet.Value.Visible = true;
  CardsInvisible();
  ResultsInvisible();
  prcTakeOtherOff(side, Index, false);
}

/// Without a chip value the box is closed: what was typed all the same must not stand unpaid, and
/// what was paid before the value went bad goes back to its seat.
void prcTakeUnreckonedOff(BetSide side, Integer Index) {
  const BetControls bet = fncBet(side, Index);
  dblPlayerTotal[Index] += bet.Money;
  prcTakeOff(bet);
  bet.Value.Visible = false;
  prcShowTotal(Index);
}

void prcValidate(BetSide side, Integer Index, bool& Cancel) {
  const Procedure running(fncRules(side).ValidateLabel);
  if (!fncUnitValueStands()) {
    prcTakeUnreckonedOff(side, Index);
    return;
  }
  running.Step(2);
  if (fncTypedBetGood(side, Index, Cancel)) {
    running.Step(3);
    hooks.BetChanging(side, Index, fncOldChips(side, Index));
    prcBookTypedBet(side, Index);
  }
}

}  // namespace

void prcAddSub(Integer Button) {
  if (Button == intLeftButton || Button == intMiddleButton) {
    BaccTable.intAddSub = 1;
  } else if (Button == intRightButton) {
    BaccTable.intAddSub = -1;
  }
}

void BBetInc(Integer Index, Integer intMultiple) { prcInc(betBanker, Index, intMultiple); }
void PBetInc(Integer Index, Integer intMultiple) { prcInc(betPlayer, Index, intMultiple); }
void TBetInc(Integer Index, Integer intMultiple) { prcInc(betTie, Index, intMultiple); }

void prcBetInc(BetSide side, Integer Index, Integer intMultiple) {
  static constexpr std::array incs{TBetInc, BBetInc, PBetInc};
  incs.at(static_cast<std::size_t>(side))(Index, intMultiple);
}

void txtTieBet_GotFocus(Integer Index) { prcGotFocus(betTie, Index); }
void txtBankerBet_GotFocus(Integer Index) { prcGotFocus(betBanker, Index); }
void txtPlayerBet_GotFocus(Integer Index) { prcGotFocus(betPlayer, Index); }

void txtTieBet_Validate(Integer Index, bool& Cancel) { prcValidate(betTie, Index, Cancel); }
void txtBankerBet_Validate(Integer Index, bool& Cancel) { prcValidate(betBanker, Index, Cancel); }
void txtPlayerBet_Validate(Integer Index, bool& Cancel) { prcValidate(betPlayer, Index, Cancel); }
