#include "judges/Invariants.h"

#include <cmath>
#include <fstream>
#include <iterator>
#include <vector>

#include "judges/Adapter.h"
#include "platform/ProfileFile.h"
#include "platform/Texts.h"
#include "platform/UserInput.h"
#include "shell/CardsDealt.h"
#include "shell/SettingsStore.h"
#include "table/Bets.h"
#include "table/Cards.h"

namespace {

/// Doubles that went different ways to the same amount of money.
bool fncSame(double one, double other) {
  return std::abs(one - other) <= 1e-6 * (1 + std::abs(one) + std::abs(other));
}

std::string fncContents() {
  std::ifstream file(strIniFile, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

double fncAtUnit(BetSide side, int seat) { return fncBetChips(side, seat) * fncUnitValue(); }

std::string fncOf(const char* what, int seat, double have, double want) {
  return std::string(what) + " of seat " + std::to_string(seat) + ": " + std::to_string(have) +
         ", not " + std::to_string(want);
}

std::string fncListed(Integer slot) {
  const Integer face = slot % 13 + 1;
  return fncCardValueName(face) + " " + CardSuite(slot);
}

bool fncShuffling() { return blnBusy && BaccTable.lblShuffleInProgress[0].Visible; }

}  // namespace

void Watch::prcStart() {
  const std::int64_t hands = lngHandsSeen_, shoes = lngShoesSeen_;
  *this = Watch{};
  lngHandsSeen_ = hands;
  lngShoesSeen_ = shoes;
  fncFile();
  dblHands_ = dblFileHands_;
  dblUnit_ = fncUnitValue();
}

/// A bet whose chip value has changed is worth something else from then on, and makes or takes
/// money as it goes: it is known, and wanted (docs/kept-on-purpose.md). The watch takes up the new
/// sum for as long as such a bet stands, and once more when the last one has gone.
void Watch::prcNoteUnit() {
  const bool blnChanged = fncUnitValue() != dblUnit_;
  dblUnit_ = fncUnitValue();
  for (int i = 0; i < intSeats; ++i) {
    Seat& state = seats_[static_cast<std::size_t>(i)];
    state.blnTouched = false;
    for (const BetSide side : betSides) {
      bool& blnRevalued = state.blnRevalued[static_cast<std::size_t>(side)];
      state.blnTouched = state.blnTouched || blnRevalued;
      const bool blnAgrees = fncSame(fncBet(side, i).Money, fncAtUnit(side, i));
      blnRevalued = !blnAgrees && (blnRevalued || (blnChanged && fncBet(side, i).Money != 0));
      state.blnTouched = state.blnTouched || blnRevalued;
    }
  }
}

std::string Watch::fncMoney(int seat) {
  Seat& state = seats_[static_cast<std::size_t>(seat)];
  const double own = dblStake_[static_cast<std::size_t>(seat)] + dblPlayerWin[seat];
  double have = dblPlayerTotal[seat];
  std::vector<double> lost;
  for (const BetSide side : betSides) {
    const double money = fncBet(side, seat).Money;
    have += money;
    if (money != 0 && fncLoses(side, strResult[intShoeNumber])) {
      lost.push_back(money);
    }
  }
  if (fncSame(have, own)) {
    state.Offset = 0;  // Also where the user has set the statistics to zero.
    return "";
  }
  // Between its settlement and the close of its round a hand's lost bets lie on the table as
  // nobody's money; in a run they are paid for anew one after the other.
  for (std::size_t chosen = 0; chosen < (blnBusy ? std::size_t{1} << lost.size() : 1); ++chosen) {
    double gone = 0;
    for (std::size_t at = 0; at < lost.size(); ++at) {
      gone += (chosen >> at & 1) != 0 ? lost[at] : 0;
    }
    if (fncSame(have - gone, own + state.Offset)) {
      return "";
    }
  }
  if (state.blnTouched) {
    state.Offset = have - own;
    return "";
  }
  return fncOf("total and bets", seat, have, own + state.Offset);
}

/// Box, money field and value label of a bet say the same, but for the box that is being typed in.
std::string Watch::fncForms(int seat) {
  for (const BetSide side : betSides) {
    const BetControls bet = fncBet(side, seat);
    const bool blnTyping = BaccTable.Form.ActiveControl == &bet.Box;
    const bool blnRevalued =
        seats_[static_cast<std::size_t>(seat)].blnRevalued[static_cast<std::size_t>(side)];
    if (!blnTyping && !blnRevalued && !fncSame(bet.Money, fncAtUnit(side, seat))) {
      return fncOf("money of a bet", seat, bet.Money, fncAtUnit(side, seat));
    }
    const bool blnHidden = !bet.Value.Visible && !blnBusy;
    if (bet.Money != 0 && (blnHidden || bet.Value.Text != fncCurrency(bet.Money))) {
      return "value label of seat " + std::to_string(seat) + ": " + bet.Value.Text;
    }
  }
  if (BaccTable.lblPlayerTotal[seat].Text != fncCurrency(dblPlayerTotal[seat])) {
    return fncOf("total shown", seat, fncVal(BaccTable.lblPlayerTotal[seat].Text.substr(1)),
                 dblPlayerTotal[seat]);
  }
  return "";
}

std::string Watch::fncClosed() const {
  if (!blnBusy) {
    return "";
  }
  for (const Control& button : BaccTable.duokkortos) {
    if (fncSeen(button) && fncUsable(button)) {
      return "a Deal button is open in the middle of a hand or shuffle";
    }
  }
  // At the end of a shoe the next shuffle may cut the last flash short.
  const bool blnMayShuffle = blnEndOfShoe[intShoeNumber] && !fncShuffling();
  if (!blnMayShuffle && fncSeen(BaccTable.maisyk) && fncUsable(BaccTable.maisyk)) {
    return "the Shuffle button is open in the middle of a hand or shuffle";
  }
  return "";
}

/// Where hands do not wait, a whole shuffle and its first hands may pass between two looks: another
/// order of the cards tells.
void Watch::prcNoteShoe() {
  if (!blnShuffled[intShoeNumber]) {
    return;
  }
  std::array<int, 8> first{};
  for (std::size_t at = 0; at < first.size(); ++at) {
    first[at] = intShoeCards[intShoeNumber][static_cast<std::int64_t>(at)];
  }
  if (first != slotsFirst_) {
    slotsFirst_ = first;
    intHandsBefore_ = 0;
  }
}

void Watch::prcCountHands() {
  const int dealt = intHandsDealt[intShoeNumber];
  if (dealt > intHandsBefore_) {
    dblHands_ += dealt - intHandsBefore_;
    lngHandsSeen_ += dealt - intHandsBefore_;
  }
  intHandsBefore_ = dealt;
  if (blnEndOfShoe[intShoeNumber] && !blnEndBefore_) {
    ++lngShoesSeen_;
  }
  blnEndBefore_ = blnEndOfShoe[intShoeNumber];
}

std::string Watch::fncLookAtSwitches() {
  if (user::Ended()) {
    return "";
  }
  struct Row {
    const char* Section;
    const char* Key;
    const bool& blnFlag;
  };
  static const std::array<Row, 8> rows{{{"File", "Learn", blnLearn},
                                        {"Card Options", "Show Card Values", blnShowCardValues},
                                        {"Card Options", "Card Face Up", blnCardFaceUp},
                                        {"Marking Options", "Show Score", blnShowScore},
                                        {"Marking Options", "Show Naturals", blnShowNaturals},
                                        {"Player Blue", "PlayerBlue", blnPlayerBlue},
                                        {"Deal", "Delay", blnDealDelay},
                                        {"Deal", "Animation", blnDealAnimation}}};
  std::string chosen = strContents_ + std::to_string(intDecks[0]);
  for (const Row& row : rows) {
    chosen += row.blnFlag ? '1' : '0';
  }
  if (chosen == strChosen_) {
    return "";
  }
  strChosen_ = chosen;  // The file is read only when either has changed.
  for (const Row& row : rows) {
    if (fncSwitchedOn(row.Section, row.Key) != row.blnFlag) {
      return std::string("in the file and in memory differs: ") + row.Key;
    }
  }
  return fncGetSetting("Shoe Size", "Decks") == intDecks[0] ? "" : "decks in the file differ";
}

std::string Watch::fncFile() {
  const std::string contents = fncContents();
  if (contents != strContents_) {
    strContents_ = contents;
    for (int i = 0; i < intSeats; ++i) {
      const auto seat = static_cast<std::size_t>(i);
      dblStake_[seat] = std::nearbyint(fncGetSetting(fncSeatSection(i), "Stake"));
      dblFileWin_[seat] = fncGetSetting(fncSeatSection(i), "Win");
    }
    const double hands = fncGetSetting("ShoesHandsPlayed", "Hands");
    if (hands < dblFileHands_) {
      if (hands != 0) {
        return "hands in the file fell to " + std::to_string(hands);
      }
      // The user has set the statistics to zero; a hand on the table will still be counted.
      dblHands_ -= dblFileHands_ - hands;
    }
    dblFileHands_ = hands;
  }
  for (int i = 0; i < intSeats; ++i) {
    const double file = dblFileWin_[static_cast<std::size_t>(i)];
    if (!fncSame(file, dblPlayerWin[i])) {
      return fncOf("win in the file", i, file, dblPlayerWin[i]);
    }
  }
  // A hand in view is dealt at once and booked at its end.
  const bool blnInView = blnBusy && dblFileHands_ == dblHands_ - 1;
  return dblFileHands_ == dblHands_ || blnInView
             ? ""
             : "hands in the file: " + std::to_string(dblFileHands_) + ", not " +
                   std::to_string(dblHands_);
}

std::string Watch::fncCards() {
  if (fncShuffling() || !blnShuffled[intShoeNumber]) {
    return "";
  }
  const std::vector<std::string>& rows = frmCardsDealt.lstCardsDealt.List;
  const int last = intLastCard[0];
  const bool blnEnded = intNextCard[0] == last && blnEndOfShoe[0];
  const std::size_t gone = static_cast<std::size_t>(blnEnded ? last + 1 : int{intNextCard[0]});
  // The round that ends a shoe lists the rest when it closes.
  if (blnEndOfShoe[0] && blnBusy && !blnEnded) {
    return "";
  }
  if (rows.size() != gone) {
    return "cards listed: " + std::to_string(rows.size()) + ", not " + std::to_string(gone);
  }
  std::vector<bool> blnSeen(static_cast<std::size_t>(last) + 1);
  int counted = 0;
  for (int p = 0; p <= last; ++p) {
    const Integer slot = intShoeCards[0][p];
    if (blnSeen[static_cast<std::size_t>(int{slot})]) {
      return "slot " + std::to_string(int{slot}) + " stands twice in the shoe";
    }
    blnSeen[static_cast<std::size_t>(int{slot})] = true;
    if (static_cast<std::size_t>(p) < gone &&
        !rows[static_cast<std::size_t>(p)].starts_with(fncListed(slot))) {
      return "row " + std::to_string(p) + " lists " + rows[static_cast<std::size_t>(p)];
    }
  }
  for (const CardsDealtRow& row : varCardsDealtCount) {
    counted += static_cast<int>(row.Suit[1] + row.Suit[2] + row.Suit[3] + row.Suit[4]);
  }
  return counted == static_cast<int>(gone)
             ? ""
             : "cards counted: " + std::to_string(counted) + ", not " + std::to_string(gone);
}

std::string Watch::fncLook() {
  // Before anything else: a fault ends the program.
  for (const user::Box& box : user::Boxes()) {
    if (box.Text.starts_with("Serious")) {
      return box.Text;
    }
  }
  user::ForgetBoxes();
  if (user::Ended()) {
    return "";
  }
  prcNoteShoe();
  prcCountHands();
  std::string fault = fncFile();
  prcNoteUnit();
  for (int i = 0; fault.empty() && i < intSeats; ++i) {
    fault = fncForms(i);
    if (fault.empty()) {
      fault = fncMoney(i);
    }
  }
  if (fault.empty()) {
    fault = fncClosed();
  }
  return fault.empty() ? fncCards() : fault;
}
