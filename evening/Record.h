#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <span>

#include "table/Bets.h"

// Every hand settled since the program started. It lives in memory alone: the end of the program
// forgets it. A hand is small, so that an evening of ten thousand costs less than a megabyte.

/// One settled hand. Seats are 0..1.
struct EveningHand {
  std::array<double, intSeats>
      Money{};  ///< All that a seat owns behind it, bets that stay included.
  std::array<double, intSeats> Stake{};  ///< The seat's stake in money, the curve's base line.
  double ChipValue = 0;                  ///< Money per chip.
  std::array<std::array<std::int32_t, 3>, intSeats> Paid{};   ///< In money, by seat and BetSide.
  std::array<std::array<std::int16_t, 3>, intSeats> Chips{};  ///< By seat and BetSide.
  std::array<std::uint8_t, intPositions> Cards{};  ///< 1..52 by table position; 0 where none lay.
  std::int16_t Shoe = 0;   ///< The evening's shoes that dealt a hand, from 1.
  std::uint8_t Decks = 0;  ///< 1, 2, 4, 6 or 8.
  char Result = 'T';       ///< 'B', 'P' or 'T'.
  bool Reset = false;  ///< The statistics were set to zero between the hand before and this one.
};

/// The hands, oldest first: hand number n stands at n - 1.
extern std::deque<EveningHand> colEveningHands;
inline const EveningHand& fncEveningHand(int number) {
  return colEveningHands.at(static_cast<std::size_t>(number) - 1);
}

/// The side cards are the Player's at positions 0..2 and the Banker's at 3..5.
enum class Side : std::uint8_t { Player, Banker };

/// A side's two or three cards.
std::span<const std::uint8_t> fncCardsOf(const EveningHand& hand, Side side);

/// The total 0..9 of cards 1..52.
int fncTotalOf(std::span<const std::uint8_t> cards);
inline int fncTotalOf(const EveningHand& hand, Side side) {
  return fncTotalOf(fncCardsOf(hand, side));
}

/// What a bet of a seat was paid with, in money; what its three bets were paid with.
double fncBetMoney(const EveningHand& hand, Integer intSeat, BetSide side);
double fncStaked(const EveningHand& hand, Integer intSeat);

/// What a bet of a seat wins on a result 'B', 'P' or 'T', or loses, below 0, in money. It wins by
/// its chips, and loses what was paid for it; the two differ where the chip value changed in
/// between.
double fncNet(const EveningHand& hand, Integer intSeat, BetSide side, char result);

/// The same of its three bets, on a result or as the hand came out.
double fncNet(const EveningHand& hand, Integer intSeat, char result);
inline double fncNet(const EveningHand& hand, Integer intSeat) {
  return fncNet(hand, intSeat, hand.Result);
}

/// What a seat owned before the hand.
inline double fncMoneyBefore(const EveningHand& hand, Integer intSeat) {
  return hand.Money.at(static_cast<std::size_t>(intSeat)) - fncNet(hand, intSeat);
}

/// Number of shoes that have dealt a hand.
int fncEveningShoes();

/// The hands of a shoe from 1, or of all for 0: from the one behind which it begins to its last.
struct Reach {
  int From = 0, To = 0;
};
Reach fncReach(int shoe);

/// Adds the hand just settled on the table to the record. Reads tables, boxes and the stakes in the
/// settings file.
void prcNoteHand();

/// The next hand, or the one that is being played, begins anew behind a reset of the statistics.
/// One before all hands is none of the evening.
void prcNoteReset();

/// Whether the statistics were reset since the last hand.
bool fncResetSince();

/// The stake of a seat as of now, in money.
double fncStakeNow(Integer intSeat);

/// Forgets all hands, as at the start of the program.
void prcForgetHands();
