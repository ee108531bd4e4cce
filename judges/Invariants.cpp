#include "judges/Invariants.h"

#include <algorithm>
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
#include "shell/Switches.h"
#include "shell/ToolButtons.h"
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

std::string fncListed(Integer slot) {
  return fncCardValueName(slot % 13 + 1) + " " + CardSuite(slot);
}

bool fncShuffling() { return blnBusy && BaccTable.lblShuffleInProgress[0].Visible; }

}  // namespace

void Watch::Must(bool blnHolds, std::string_view what, std::string_view details) {
  if (!blnHolds && strFault_.empty()) {
    strFault_ = what;
    strFault_ += details;
  }
}

void Watch::MustBe(double have, double want, const char* what, int of) {
  if (!fncSame(have, want)) {
    Must(false, std::string(what) + (of < 0 ? "" : " " + std::to_string(of)) + ": " +
                    std::to_string(have) + ", not " + std::to_string(want));
  }
}

void Watch::prcStart() {
  const std::int64_t hands = lngHandsSeen_, shoes = lngShoesSeen_;
  *this = Watch{};
  lngHandsSeen_ = hands;
  lngShoesSeen_ = shoes;
  prcReadFile();
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

void Watch::prcLookAtMoney(int seat) {
  Seat& state = seats_[static_cast<std::size_t>(seat)];
  const double own = dblStake_[static_cast<std::size_t>(seat)] + dblPlayerWin[seat];
  double have = dblPlayerTotal[seat];
  std::vector<double> nobodys{0};
  for (const BetSide side : betSides) {
    const double money = fncBet(side, seat).Money;
    have += money;
    // Between its settlement and the close of its round a hand's lost bets lie on the table as
    // nobody's money; in a run they are paid for anew one after the other.
    if (blnBusy && fncLoses(side, strResult[intShoeNumber])) {
      const std::vector<double> others = nobodys;
      std::ranges::transform(others, std::back_inserter(nobodys),
                             [money](double other) { return other + money; });
    }
  }
  if (fncSame(have, own)) {
    state.Offset = 0;  // Also where the user has set the statistics to zero.
  } else if (std::ranges::none_of(nobodys, [&](double money) {
               return fncSame(have - money, own + state.Offset);
             })) {
    if (!state.blnTouched) {
      MustBe(have, own + state.Offset, "total and bets of seat", seat);
    }
    state.Offset = have - own;
  }
}

/// Box, money field and value label of a bet say the same, but for the box that is being typed in.
void Watch::prcLookAtBets(int seat) {
  for (const BetSide side : betSides) {
    const BetControls bet = fncBet(side, seat);
    const bool blnRevalued =
        seats_[static_cast<std::size_t>(seat)].blnRevalued[static_cast<std::size_t>(side)];
    if (BaccTable.Form.ActiveControl != &bet.Box && !blnRevalued) {
      MustBe(bet.Money, fncAtUnit(side, seat), "money of a bet of seat", seat);
    }
    Must(bet.Money == 0 ||
             ((bet.Value.Visible || blnBusy) && bet.Value.Text == fncCurrency(bet.Money)),
         "value label: ", bet.Value.Text);
  }
  const std::string& shown = BaccTable.lblPlayerTotal[seat].Text;
  Must(shown == fncCurrency(dblPlayerTotal[seat]), "total shown: ", shown);
}

void Watch::prcLookAtButtons() {
  if (!blnBusy) {
    return;
  }
  for (const Control& button : BaccTable.duokkortos) {
    Must(!fncSeen(button) || !fncUsable(button),
         "a Deal button is open in the middle of a hand or shuffle");
  }
  // At the end of a shoe the next shuffle may cut the last flash short.
  const bool blnMayShuffle = blnEndOfShoe[intShoeNumber] && !fncShuffling();
  Must(blnMayShuffle || !fncSeen(BaccTable.maisyk) || !fncUsable(BaccTable.maisyk),
       "the Shuffle button is open in the middle of a hand or shuffle");
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
  const int more = std::max(dealt - intHandsBefore_, 0);
  dblHands_ += more;
  lngHandsSeen_ += more;
  intHandsBefore_ = dealt;
  lngShoesSeen_ += blnEndOfShoe[intShoeNumber] && !blnEndBefore_ ? 1 : 0;
  blnEndBefore_ = blnEndOfShoe[intShoeNumber];
}

std::string Watch::fncLookAtSwitches() {
  static const std::array rows{&swtLearn,          &swtCardFaceUp,          &swtShowCardValues,
                               &swtShowCardsDealt, &swtShowCardsDealtCount, &swtShowScore,
                               &swtShowNaturals,   &swtPlayerBlue,          &swtDelay,
                               &swtAnimation};
  strFault_.clear();
  if (user::Ended()) {
    return "";
  }
  prcReadFile();
  std::string chosen = strContents_ + std::to_string(intDecks[0]);
  for (const Switch* row : rows) {
    chosen += (row->Flag != nullptr ? *row->Flag : row->Entry.Value == 1) ? '1' : '0';
  }
  if (chosen == strChosen_) {
    return "";
  }
  strChosen_ = chosen;
  for (const Switch* row : rows) {
    const bool blnOn = row->Entry.Value == 1;
    Must((row->Flag == nullptr || *row->Flag == blnOn) &&
             fncToolButton(row->Button).Value == row->Entry.Value &&
             fncSwitchedOn(row->Section, row->Key) == blnOn,
         "the faces of a switch differ: ", row->Key);
  }
  MustBe(fncGetSetting("Shoe Size", "Decks"), int{intDecks[0]}, "decks in the file");
  return strFault_;
}

void Watch::prcReadFile() {
  const std::string contents = fncContents();
  if (contents == strContents_) {
    return;
  }
  strContents_ = contents;
  for (int i = 0; i < intSeats; ++i) {
    const auto seat = static_cast<std::size_t>(i);
    dblStake_[seat] = std::nearbyint(fncGetSetting(fncSeatSection(i), "Stake"));
    dblFileWin_[seat] = fncGetSetting(fncSeatSection(i), "Win");
  }
  const double hands = fncGetSetting("ShoesHandsPlayed", "Hands");
  if (hands < dblFileHands_) {
    Must(hands == 0, "hands in the file fell");
    // The user has set the statistics to zero; a hand on the table will still be counted.
    dblHands_ -= dblFileHands_;
  }
  dblFileHands_ = hands;
}

void Watch::prcLookAtFile() {
  for (int i = 0; i < intSeats; ++i) {
    MustBe(dblFileWin_[static_cast<std::size_t>(i)], dblPlayerWin[i], "win in the file of seat", i);
  }
  // A hand in view is dealt at once and booked at its end.
  const bool blnInView = blnBusy && dblFileHands_ == dblHands_ - 1;
  MustBe(dblFileHands_, blnInView ? dblFileHands_ : dblHands_, "hands in the file");
}

void Watch::prcLookAtCards() {
  const int last = intLastCard[0];
  const bool blnEnded = intNextCard[0] == last && blnEndOfShoe[0];
  // The round that ends a shoe lists the rest when it closes.
  const bool blnClosing = blnEndOfShoe[0] && blnBusy && !blnEnded;
  if (fncShuffling() || !blnShuffled[intShoeNumber] || blnClosing) {
    return;
  }
  const std::vector<std::string>& rows = frmCardsDealt.lstCardsDealt.List;
  const std::size_t gone = static_cast<std::size_t>(blnEnded ? last + 1 : int{intNextCard[0]});
  MustBe(static_cast<double>(rows.size()), static_cast<double>(gone), "cards listed");
  std::vector<bool> blnSeen(static_cast<std::size_t>(last) + 1);
  for (std::size_t p = 0; p < blnSeen.size() && strFault_.empty(); ++p) {
    const Integer slot = intShoeCards[0][static_cast<std::int64_t>(p)];
    auto seen = blnSeen[static_cast<std::size_t>(int{slot})];
    Must(!seen, "a slot stands twice in the shoe");
    seen = true;
    if (p < gone) {
      Must(rows[p].starts_with(fncListed(slot)), "a row lists ", rows[p]);
    }
  }
  Long counted = 0;
  for (const CardsDealtRow& row : varCardsDealtCount) {
    counted += row.Suit[1] + row.Suit[2] + row.Suit[3] + row.Suit[4];
  }
  MustBe(static_cast<double>(std::int64_t{counted}), static_cast<double>(gone), "cards counted");
}

void Watch::prcLookAtBoxes() {
  for (const user::Box& box : user::Boxes()) {
    Must(!box.Text.starts_with("Serious"), box.Text);
  }
  user::ForgetBoxes();
}

std::string Watch::fncLook() {
  strFault_.clear();
  prcLookAtBoxes();  // Before anything else: a fault ends the program.
  if (!strFault_.empty() || user::Ended()) {
    return strFault_;
  }
  prcNoteShoe();
  prcCountHands();
  prcReadFile();
  prcLookAtFile();
  prcNoteUnit();
  for (int i = 0; i < intSeats; ++i) {
    prcLookAtBets(i);
    prcLookAtMoney(i);
  }
  prcLookAtButtons();
  prcLookAtCards();
  return strFault_;
}
