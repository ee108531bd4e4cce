#pragma once

#include <functional>

#include "table/BaccTable.h"

// The bets on the table. A bet of seat 0..1 is chips in a box, money in a field and text in a
// label, always together.

/// The bets of a seat. betSides goes in the order in which the game treats them: Tie, Banker,
/// Player.
enum BetSide : int { betTie, betBanker, betPlayer };
inline constexpr std::array<BetSide, 3> betSides{betTie, betBanker, betPlayer};

/// The controls of one bet of seat 0..1: its box, its value label with the chips beside it, its win
/// and lose labels and its money field.
struct BetControls {
  Control& Box;
  Control& Value;
  Control& Stack;
  Control& Win;
  Control& Lose;
  Long& Money;
};
BetControls fncBet(BetSide side, Integer intSeat);

/// The chips that a label gives or takes; 0 clears the bet.
inline constexpr std::array<int, 4> intChipSizes{0, 1, 2, 5};

/// The twelve chip labels of seat 0..1: Tie, Banker, Player, and in each those of intChipSizes.
std::array<Control*, 12> fncChips(Integer intSeat);

/// The numeric value of a bet's box; a bet stands while it is not 0.
double fncBetChips(BetSide side, Integer intSeat);
inline bool fncBetStands(BetSide side, Integer intSeat) { return fncBetChips(side, intSeat) != 0; }

/// The chip value in money per chip, as the box holds it; 0 until the user or the settings give
/// one.
double fncUnitValue();

/// Whether a result "P", "B" or "T" wins, or loses, a bet of this side; a Banker or Player bet does
/// neither on a tie.
bool fncWins(BetSide side, const std::string& result);
bool fncLoses(BetSide side, const std::string& result);

/// What a won bet of 1 pays; from a Banker's win the casino's five percent are taken off.
double fncPays(BetSide side);

/// Shows money in a label, as currency text without decimals; one dressed as money holds the
/// amount.
void prcShowMoney(Control& label, double money);

/// Does something to each bet that stands and that the hand just dealt has lost, seat by seat: Tie,
/// Banker, Player.
void prcForLostBets(const std::function<void(const BetControls& bet, Integer intSeat)>& action);

/// Takes a bet's chips and money off the table; no money moves to its seat, and its value label
/// keeps standing.
void prcTakeOff(const BetControls& bet);

/// Puts a bet's value label out of sight, with the text that it has from then on.
void prcHideValue(const BetControls& bet, const std::string& strText);

/// Takes the lost bets of the hand just dealt off the table. No money moves: they were paid for
/// when placed.
void prcClearLostBets();
