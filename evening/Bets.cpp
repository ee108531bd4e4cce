#include "evening/Bets.h"

#include <optional>
#include <vector>

#include "betting/BetEntry.h"
#include "platform/UserInput.h"

namespace {

/// The chips of both seats, by seat and BetSide.
using Bets = std::array<std::array<int, 3>, intSeats>;

std::vector<Bets> colBefore;    ///< The bets before each change, since the last hand.
double dblChipValue = 0;        ///< At which these stood.
std::optional<Bets> betPlayed;  ///< Those of the last hand.
bool blnPlacing = false;        ///< The changes under way are one, noted already.

int& fncChipsOf(Bets& bets, int seat, BetSide side) {
  return bets.at(static_cast<std::size_t>(seat)).at(static_cast<std::size_t>(side));
}

Bets fncBetsNow() {
  Bets bets{};
  for (int i = 0; i < intSeats; ++i) {
    for (const BetSide side : betSides) {
      fncChipsOf(bets, i, side) = fncInteger(fncBetChips(side, i));
    }
  }
  return bets;
}

/// Bets that stood at another chip value cannot be brought back as they were.
void prcForgetOtherChips() {
  if (dblChipValue != fncUnitValue()) {
    prcForgetBetChanges();
    dblChipValue = fncUnitValue();
  }
}

void prcNoteBefore(const Bets& bets) {
  prcForgetOtherChips();
  if (!blnPlacing && (colBefore.empty() || colBefore.back() != bets)) {
    colBefore.push_back(bets);
  }
}

/// Whether chips can be clicked. A bet that is being typed is checked and booked first, as by a
/// click elsewhere; a refusal leaves all as it is. The focus stays.
bool fncTableOpen() {
  const Control& chip = BaccTable.lblBBetInc1[0];
  return fncSeen(chip) && fncUsable(chip) && fncCheckFocus(BaccTable.Form) && fncSeen(chip) &&
         fncUsable(chip);
}

/// While it lives, changes of bets are not noted one by one.
struct Placing {
  Placing() { blnPlacing = true; }
  ~Placing() { blnPlacing = false; }
  Placing(const Placing&) = delete;
  Placing& operator=(const Placing&) = delete;
};

/// The chips that are missing to those of bets; below 0 where there are too many.
std::int64_t fncMissing(Bets bets, Integer intSeat, BetSide side) {
  return fncChipsOf(bets, intSeat, side) - fncInteger(fncBetChips(side, intSeat));
}

/// Banker or Player, where the bet on the other one goes up: that takes it off by itself, with its
/// money, and leaves it where it is refused.
bool fncGivesWay(const Bets& bets, Integer intSeat, BetSide side) {
  return side != betTie && fncMissing(bets, intSeat, side == betBanker ? betPlayer : betBanker) > 0;
}

/// Clicks chips until the bets are these, as far as the tests let them. What goes down goes first:
/// its money may be needed for what goes up; and for the tie that of a side that gives way.
void prcPlace(const Bets& bets) {
  const Placing placing;
  if (bets == fncBetsNow() || !fncSetFocus(BaccTable.txtsetfocus)) {
    return;
  }
  for (const bool blnDown : {true, false}) {
    for (int i = 0; i < intSeats; ++i) {
      for (const BetSide side : {betBanker, betPlayer, betTie}) {
        const std::int64_t more = fncMissing(bets, i, side);
        if (blnDown ? more < 0 && !fncGivesWay(bets, i, side) : more > 0) {
          prcBetInc(side, i, more);
        }
      }
    }
  }
}

/// The same as one step that can be taken back.
void prcChangeTo(const Bets& bets) {
  prcNoteBefore(fncBetsNow());
  prcPlace(bets);
}

}  // namespace

void prcNoteBetChange(BetSide side, Integer intSeat, double dblChips) {
  Bets bets = fncBetsNow();
  fncChipsOf(bets, intSeat, side) = fncInteger(dblChips);
  prcNoteBefore(bets);
  if (fncBet(side, intSeat).Money != dblChips * fncUnitValue()) {
    prcForgetBetChanges();  // This one was paid at another chip value.
  }
}

void prcNoteBetsPlayed() {
  betPlayed = fncBetsNow();
  prcForgetBetChanges();
}

void prcForgetBetChanges() { colBefore.clear(); }

void prcForgetBets() {
  prcForgetBetChanges();
  betPlayed.reset();
  blnPlacing = false;
}

void prcRepeatBets() {
  if (betPlayed && fncTableOpen()) {
    prcChangeTo(*betPlayed);
  }
}

void prcTakeBack() {
  if (!fncTableOpen()) {
    return;
  }
  prcForgetOtherChips();
  // What was booked without a change leaves nothing to take back.
  while (!colBefore.empty() && colBefore.back() == fncBetsNow()) {
    colBefore.pop_back();
  }
  if (colBefore.empty()) {
    return;
  }
  // What is refused is gone, too: the next step leads to the bets before it.
  const Bets before = colBefore.back();
  colBefore.pop_back();
  prcPlace(before);
}

void prcDoubleBets() {
  if (!fncTableOpen()) {
    return;
  }
  Bets bets = fncBetsNow();
  for (auto& seat : bets) {
    for (int& chips : seat) {
      chips *= 2;
    }
  }
  prcChangeTo(bets);
}
