#include "judges/Invariants.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>
#include <utility>
#include <vector>

#include "judges/Adapter.h"
#include "platform/Texts.h"
#include "platform/UserInput.h"
#include "shell/CardsDealt.h"
#include "shell/SettingsStore.h"
#include "shell/Switches.h"
#include "shell/ToolButtons.h"
#include "table/Bets.h"
#include "table/Cards.h"

std::int64_t lngHandsSeen = 0, lngShoesSeen = 0;

namespace {

struct SeenSeat {
  double Offset = 0;         ///< Money that changes of the chip value have made or taken.
  bool blnRevalued = false;  ///< The chip value has changed under one of its bets.
  bool blnTouched = false;   ///< Such a bet stands, or has just gone.
};

/// The game as the watch saw it last.
struct Seen {
  Table<SeenSeat, intSeats> Seats{};
  double Unit = 0, FileHands = 0;
  double Hands = 0;  ///< What the file should say.
  int HandsOfShoe = 0;
  bool blnEndOfShoe = true;
  std::string Entries{};  ///< Of the switches, and the decks.
};
Seen seen;
std::string strFault;

/// Notes what does not hold, unless something else has been found before.
void prcMust(bool blnHolds, std::string_view what, std::string_view details = {}) {
  if (!blnHolds && strFault.empty()) {
    strFault = what;
    strFault += details;
  }
}

/// Doubles that went different ways to the same amount of money.
bool fncSame(double one, double other) {
  return std::abs(one - other) <= 1e-6 * (1 + std::abs(one) + std::abs(other));
}

void prcMustBe(double have, double want, const char* what) {
  if (!fncSame(have, want)) {
    prcMust(false, what, ": " + std::to_string(have) + ", not " + std::to_string(want));
  }
}

double fncAtUnit(BetSide side, int seat) { return fncBetChips(side, seat) * fncUnitValue(); }

bool fncOpen(const Control& control) { return fncSeen(control) && fncUsable(control); }

bool fncShuffling() { return blnBusy && BaccTable.lblShuffleInProgress[0].Visible; }

/// Every hand that a shoe has dealt is counted in the file; one in view at its end. A new shoe
/// shows by fewer hands than before: a look comes before it has dealt as many.
void prcLookAtHands() {
  const int dealt = intHandsDealt[0];
  const int more = dealt - (dealt < seen.HandsOfShoe ? 0 : seen.HandsOfShoe);
  seen.HandsOfShoe = dealt;
  seen.Hands += more;
  lngHandsSeen += more;
  lngShoesSeen += blnEndOfShoe[0] && !seen.blnEndOfShoe ? 1 : 0;
  seen.blnEndOfShoe = blnEndOfShoe[0];
  const double hands = fncGetSetting(secPlayed, keyHands);
  if (hands < seen.FileHands) {
    prcMust(hands == 0, "hands in the file fell");
    // The user has set the statistics to zero; a hand on the table will still be counted.
    seen.Hands -= seen.FileHands;
  }
  seen.FileHands = hands;
  const bool blnInView = blnBusy && hands == seen.Hands - 1;
  prcMustBe(hands, blnInView ? hands : seen.Hands, "hands in the file");
}

/// A bet whose chip value has changed is worth something else from then on, and makes or takes
/// money as it goes: it is known, and wanted (docs/kept-on-purpose.md). The watch takes up the new
/// sum for as long as such a bet stands, and once more when the last one has gone.
void prcNoteUnit(int seat, bool blnChanged) {
  SeenSeat& state = seen.Seats[seat];
  const bool blnAgree = std::ranges::all_of(betSides, [seat](BetSide side) {
    return fncSame(fncBet(side, seat).Money, fncAtUnit(side, seat));
  });
  const bool blnBefore =
      std::exchange(state.blnRevalued, !blnAgree && (state.blnRevalued || blnChanged));
  state.blnTouched = blnBefore || state.blnRevalued;
}

/// Box, money field and value label of a bet say the same, but for the box that is being typed in.
void prcLookAtBets(int seat) {
  for (const BetSide side : betSides) {
    const BetControls bet = fncBet(side, seat);
    if (BaccTable.Form.ActiveControl != &bet.Box && !seen.Seats[seat].blnRevalued) {
      prcMustBe(bet.Money, fncAtUnit(side, seat), "money of a bet");
    }
    const bool blnShown = bet.Value.Visible || blnBusy;
    prcMust(bet.Money == 0 || (blnShown && bet.Value.Text == fncCurrency(bet.Money)),
            "value label: ", bet.Value.Text);
  }
  const std::string& shown = BaccTable.lblPlayerTotal[seat].Text;
  prcMust(shown == fncCurrency(dblPlayerTotal[seat]), "total shown: ", shown);
}

void prcLookAtMoney(int seat) {
  const std::string section = fncSeatSection(seat);
  prcMustBe(fncGetSetting(section, keyWin), dblPlayerWin[seat], "win in the file");
  double& offset = seen.Seats[seat].Offset;
  const double own = std::nearbyint(fncGetSetting(section, keyStake)) + dblPlayerWin[seat];
  double have = dblPlayerTotal[seat], lost = 0;
  for (const BetSide side : betSides) {
    const double money = fncBet(side, seat).Money;
    have += money;
    // Between its settlement and the close of its round a hand's lost bets lie on the table as
    // nobody's money; in a run they are paid for anew one after the other.
    lost += blnBusy && fncLoses(side, strResult[0]) ? money : 0;
  }
  if (fncSame(have, own)) {
    offset = 0;  // Also where the user has set the statistics to zero.
  } else if (!fncSame(have, std::clamp(have, own + offset, own + offset + lost))) {
    if (!seen.Seats[seat].blnTouched) {
      prcMustBe(have, own + offset, "total and bets of a seat");
    }
    offset = have - own;
  }
}

void prcLookAtButtons() {
  prcMust(!blnBusy || std::ranges::none_of(BaccTable.duokkortos, fncOpen),
          "a Deal button is open in the middle of a hand or shuffle");
  // At the end of a shoe the next shuffle may cut the last flash short.
  const bool blnMayShuffle = !blnBusy || (blnEndOfShoe[0] && !fncShuffling());
  prcMust(blnMayShuffle || !fncOpen(BaccTable.maisyk),
          "the Shuffle button is open in the middle of a hand or shuffle");
}

/// What has left the shoe is listed and counted.
void prcLookAtCards() {
  const int last = intLastCard[0];
  const bool blnEnded = intNextCard[0] == last && blnEndOfShoe[0];
  // The round that ends a shoe lists the rest when it closes.
  const bool blnClosing = blnEndOfShoe[0] && blnBusy && !blnEnded;
  if (fncShuffling() || !blnShuffled[0] || blnClosing) {
    return;
  }
  const std::vector<std::string>& rows = frmCardsDealt.lstCardsDealt.List;
  const int gone = blnEnded ? last + 1 : int{intNextCard[0]};
  prcMustBe(static_cast<double>(rows.size()), gone, "cards listed");
  for (int p = 0; p < gone && strFault.empty(); ++p) {
    const Integer slot = intShoeCards[0][p];
    const std::string& row = rows[static_cast<std::size_t>(p)];
    const std::string name = fncCardValueName(slot % 13 + 1) + " " + CardSuite(slot);
    prcMust(row.starts_with(name), "a row lists ", row);
  }
  std::int64_t counted = 0;
  for (const CardsDealtRow& row : varCardsDealtCount) {
    counted += row.Suit[1] + row.Suit[2] + row.Suit[3] + row.Suit[4];
  }
  prcMustBe(static_cast<double>(counted), gone, "cards counted");
}

}  // namespace

void prcStartWatch() {
  const double hands = fncGetSetting(secPlayed, keyHands);
  seen = {.Unit = fncUnitValue(), .FileHands = hands, .Hands = hands};
}

std::string fncLook() {
  strFault.clear();
  for (const user::Box& box : user::Boxes()) {
    prcMust(!box.Text.starts_with("Serious"), box.Text);
  }
  user::ForgetBoxes();
  if (!strFault.empty() || user::Ended()) {
    return strFault;
  }
  prcLookAtHands();
  const bool blnNewUnit = fncUnitValue() != seen.Unit;
  seen.Unit = fncUnitValue();
  for (int seat = 0; seat < intSeats; ++seat) {
    prcNoteUnit(seat, blnNewUnit);
    prcLookAtBets(seat);
    prcLookAtMoney(seat);
  }
  prcLookAtButtons();
  prcLookAtCards();
  return strFault;
}

std::string fncLookAtSwitches() {
  static const std::array rows{&swtLearn,          &swtCardFaceUp,          &swtShowCardValues,
                               &swtShowCardsDealt, &swtShowCardsDealtCount, &swtShowScore,
                               &swtShowNaturals,   &swtPlayerBlue,          &swtDelay,
                               &swtAnimation};
  strFault.clear();
  if (user::Ended()) {
    return "";
  }
  std::string entries = std::to_string(intDecks[0]);
  for (const Switch* row : rows) {
    entries += row->Entry.Value == 1 ? '1' : '0';
  }
  const bool blnTurned = std::exchange(seen.Entries, entries) != entries;
  for (const Switch* row : rows) {
    const bool blnOn = row->Entry.Value == 1;
    prcMust((row->Flag == nullptr || *row->Flag == blnOn) &&
                fncToolButton(row->Button).Value == row->Entry.Value &&
                (!blnTurned || fncSwitchedOn(row->Section, row->Key) == blnOn),
            "the faces of a switch differ: ", row->Key);
  }
  if (blnTurned) {
    prcMustBe(fncGetSetting(secShoeSize, keyDecks), int{intDecks[0]}, "decks in the file");
  }
  return strFault;
}
