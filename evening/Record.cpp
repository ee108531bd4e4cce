#include "evening/Record.h"

#include <algorithm>

#include "shell/SettingsStore.h"
#include "table/Bets.h"
#include "table/Cards.h"
#include "table/DrawRules.h"
#include "table/Positions.h"

std::deque<EveningHand> colEveningHands;

namespace {

constexpr std::size_t lngCardsOfSide = 3;

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

std::span<const std::uint8_t> fncCardsOf(const EveningHand& hand, Side side) {
  const std::size_t first = side == Side::Player ? 0 : lngCardsOfSide;
  const std::size_t last = first + lngCardsOfSide - 1;
  return std::span(hand.Cards).subspan(first, lngCardsOfSide - (hand.Cards.at(last) == 0 ? 1 : 0));
}

int fncTotalOf(std::span<const std::uint8_t> cards) {
  Integer total = 0;
  for (const std::uint8_t card : cards) {
    total = fncTotal(total, fncCardPoint(fncFaceValue(card)));
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

double fncNet(const EveningHand& hand, Integer intSeat, BetSide side, char result) {
  const std::int16_t chips = hand.Chips.at(fncAt(intSeat)).at(fncAt(side));
  const std::string letter(1, result);
  if (chips == 0) {
    return 0;
  }
  return fncWins(side, letter)    ? chips * hand.ChipValue * fncPays(side)
         : fncLoses(side, letter) ? -fncBetMoney(hand, intSeat, side)
                                  : 0;
}

double fncNet(const EveningHand& hand, Integer intSeat, char result) {
  double net = 0;
  for (const BetSide side : betSides) {
    net += fncNet(hand, intSeat, side, result);
  }
  return net;
}

int fncEveningShoes() { return colEveningHands.empty() ? 0 : colEveningHands.back().Shoe; }

Reach fncReach(int shoe) {
  if (shoe == 0) {
    return {0, static_cast<int>(colEveningHands.size())};
  }
  const auto shoeOf = [](const EveningHand& hand) { return int{hand.Shoe}; };
  const auto from = std::ranges::lower_bound(colEveningHands, shoe, {}, shoeOf);
  const auto to = std::ranges::upper_bound(colEveningHands, shoe, {}, shoeOf);
  return {static_cast<int>(from - colEveningHands.begin()),
          static_cast<int>(to - colEveningHands.begin())};
}

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

void prcNoteReset() { blnResetSince = blnBusy || !colEveningHands.empty(); }

void prcForgetHands() {
  colEveningHands.clear();
  blnResetSince = false;
}
