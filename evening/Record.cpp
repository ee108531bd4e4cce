#include "evening/Record.h"

#include <algorithm>

#include "shell/SettingsStore.h"
#include "table/Cards.h"
#include "table/DrawRules.h"
#include "table/Odds.h"
#include "table/Positions.h"

std::deque<EveningHand> colEveningHands;

namespace {

constexpr int intCardsOfSide = 3;

bool blnResetSince = false;  ///< The statistics were reset since the last hand.

std::size_t fncAt(int index) { return static_cast<std::size_t>(index); }

/// The face value 1..13 of a card number.
Integer fncFaceValue(std::uint8_t card) { return (card - 1) % 13 + 1; }

std::array<std::uint8_t, intPositions> fncCardsOnTable() {
  std::array<std::uint8_t, intPositions> numbers{};
  for (int n = 0; n < intPositions; ++n) {
    const HandSide side = fncHandSide(n);
    if (n < side.First + 2 || side.blnThird) {
      numbers.at(fncAt(n)) = static_cast<std::uint8_t>(fncHandCard(intShoeNumber, n));
    }
  }
  return numbers;
}

void prcNoteSeat(EveningHand& hand, Integer i) {
  double& money = hand.Money.at(fncAt(i));
  money = dblPlayerTotal[i];
  for (const BetSide side : betSides) {
    hand.Chips.at(fncAt(i)).at(fncAt(side)) = fncInteger(fncBetChips(side, i));
    hand.Paid.at(fncAt(i)).at(fncAt(side)) = fncBet(side, i).Money;
    if (!fncLoses(side, strResult[intShoeNumber])) {
      money += fncBet(side, i).Money;
    }
  }
  hand.Stake.at(fncAt(i)) = fncStakeNow(i);
}

}  // namespace

int fncCardsOf(const EveningHand& hand, Side side) {
  return hand.Cards.at(side == Side::Player ? 2 : 5) == 0 ? 2 : 3;
}

int fncTotalOf(const EveningHand& hand, Side side, int intCards) {
  const auto first = side == Side::Player ? 0U : intCardsOfSide;
  Integer total = 0;
  for (unsigned n = first; n < first + static_cast<unsigned>(intCards); ++n) {
    total = fncTotal(total, fncCardPoint(fncFaceValue(hand.Cards.at(n))));
  }
  return total;
}

double fncBetMoney(const EveningHand& hand, Integer intSeat, BetSide side) {
  return hand.Paid.at(fncAt(intSeat)).at(fncAt(side));
}

double fncStaked(const EveningHand& hand, Integer intSeat) {
  double staked = 0;
  for (const BetSide side : betSides) {
    staked += fncBetMoney(hand, intSeat, side);
  }
  return staked;
}

double fncNet(const EveningHand& hand, Integer intSeat, char result) {
  const std::string letter(1, result);
  double net = 0;
  for (const BetSide side : betSides) {
    if (fncWins(side, letter)) {
      net += hand.Chips.at(fncAt(intSeat)).at(fncAt(side)) * hand.ChipValue * fncPays(side);
    } else if (fncLoses(side, letter)) {
      net -= fncBetMoney(hand, intSeat, side);
    }
  }
  return net;
}

int fncEveningShoes() { return colEveningHands.empty() ? 0 : colEveningHands.back().Shoe; }

void prcNoteHand() {
  EveningHand hand;
  hand.Shoe = static_cast<std::int16_t>(fncEveningShoes());
  if (hand.Shoe == 0 || intHandsDealt[intShoeNumber] == 1) {
    ++hand.Shoe;
  }
  hand.Decks = static_cast<std::uint8_t>(intDecksInPlay[intShoeNumber]);
  hand.Cards = fncCardsOnTable();
  hand.ChipValue = fncUnitValue();
  hand.Result = strResult[intShoeNumber].front();
  for (int i = 0; i < intSeats; ++i) {
    prcNoteSeat(hand, i);
  }
  hand.Reset = blnResetSince;
  blnResetSince = false;
  colEveningHands.push_back(hand);
}

bool fncResetSince() { return blnResetSince; }

double fncStakeNow(Integer intSeat) { return fncGetSetting(fncSeatSection(intSeat), keyStake); }

void prcNoteReset() { blnResetSince = !colEveningHands.empty(); }

void prcForgetHands() {
  colEveningHands.clear();
  blnResetSince = false;
}
