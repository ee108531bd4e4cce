#pragma once

#include <array>
#include <optional>
#include <string>

#include "platform/Numbers.h"

// The game state that every module reads and writes: plain tables, owned by no window. Shoe tables
// have nine rows, and intShoeNumber, the shoe on the table, is always 0. docs/glossary.md tells
// slot, position, card number, face value and point apart.

inline constexpr int intShoes = 9;
inline constexpr int intSeats = 2;
inline constexpr int intPositions = 6;
inline constexpr int intSlotsOfDeck = 52;
inline constexpr int intMostSlots = 8 * intSlotsOfDeck;

/// The five sizes that a shoe is shuffled in, in decks.
inline constexpr std::array<int, 5> intShoeSizes{1, 2, 4, 6, 8};

/// A shoe's row of slots or positions, 0..Last. Bounding it anew keeps what stood in it.
class SlotRow {
 public:
  /// Makes last the highest index; beyond 0..415 it is faultSubscript.
  void prcBound(std::int64_t last) {
    if (last < 0 || last >= intMostSlots) {
      throw faultSubscript;
    }
    last_ = last;
  }
  /// An index outside 0..last is faultSubscript, as is any before the row was first bounded.
  Integer& operator[](std::int64_t index) { return slots_[fncChecked(index)]; }
  const Integer& operator[](std::int64_t index) const { return slots_[fncChecked(index)]; }

 private:
  std::size_t fncChecked(std::int64_t index) const {
    if (index < 0 || index > last_) {
      throw faultSubscript;
    }
    return static_cast<std::size_t>(index);
  }

  std::array<Integer, intMostSlots> slots_{};
  std::int64_t last_ = -1;
};

// --- Shoes, by shoe 0..8 ---

/// The slot at a position of the shoe; position 0 comes out first.
extern Table<SlotRow, intShoes> intShoeCards;
extern Table<SlotRow, intShoes> intCardValue;  ///< Face value 1..13 of a slot.
extern Table<Integer, intShoes> intDecks;      ///< Decks of the next shuffle.
/// Decks of the shoe in play; names its statistics key.
extern Table<Integer, intShoes> intDecksInPlay;
extern Table<Integer, intShoes> intLastCard;    ///< Highest position and slot.
extern Table<Integer, intShoes> intNextCard;    ///< Position of the next card out.
extern Table<Integer, intShoes> intHandsDealt;  ///< Since the shuffle.
extern Table<bool, intShoes> blnShuffled;       ///< The shoe may be dealt.
extern Table<bool, intShoes> blnLastHand;       ///< The next hand is the last one.
extern Table<bool, intShoes> blnEndOfShoe;      ///< No more hands.
/// The colours of this shoe, fixed at its shuffle.
extern Table<bool, intShoes> blnShoePlayerBlue;

// --- The last hand of a shoe: card numbers 1..52, face values 1..13, totals 0..9 ---

extern Table<Integer, intShoes> intPlayerCard1, intPlayerCard2, intPlayerCard3;
extern Table<Integer, intShoes> intBankerCard1, intBankerCard2, intBankerCard3;
extern Table<Integer, intShoes> intPlayerValue1, intPlayerValue2, intPlayerValue3;
extern Table<Integer, intShoes> intBankerValue1, intBankerValue2, intBankerValue3;
extern Table<bool, intShoes> blnPlayerThird, blnBankerThird;
extern Table<Integer, intShoes> intPlayerTotal2, intBankerTotal2;  ///< Totals on two cards.
extern Table<Integer, intShoes> intPlayerTotal, intBankerTotal;
extern Table<bool, intShoes> blnPlayerNatural, blnBankerNatural;
extern Table<std::string, intShoes> strResult;  ///< "P", "B" or "T".

/// Net units of Player 1 in the last hand; nothing when that seat had no bet. Never written counts
/// as 0.
extern Table<std::optional<Integer>, intShoes> varHandUnits;

// --- Marking card links, by marking card 0..8 ---

extern Table<Integer, intShoes> intMarkCardShoe;  ///< The shoe that it shows.
extern Table<Long, intShoes> lngMarkCardHwnd;     ///< Window handle, 0 for none.

// --- Values of a run of the program ---

extern Integer intShoeNumber;    ///< The shoe on the table: 0 throughout.
extern bool blnBusy;             ///< A shuffle or a hand is running.
extern Integer intHandsAtaTime;  ///< Hands asked for by the last press of a Deal button.
extern Table<bool, intPositions> blnCardClickable;  ///< The card there may be turned by the user.

/// Counts of cards that have left the shoe: Name of a face value, and Suit 1..4 for Spade, Club,
/// Diamond, Heart.
struct CardsDealtRow {
  std::string Name;
  Table<Integer, 5> Suit;  ///< Element 0 is not used.
};
extern Table<CardsDealtRow, 13> varCardsDealtCount;  ///< By face value - 1.
extern Integer intSuitRow;                           ///< Suit 1..4 last named by CardSuite.
extern double dblHandWin, dblHandLoss;               ///< Money of the seat being settled.

// --- Seats 0..1, in money ---

extern Table<double, intSeats> dblPlayerWin;    ///< Running win.
extern Table<double, intSeats> dblPlayerTotal;  ///< Stake and win, less what stands on the table.
extern Table<Long, intSeats> lngBankerBet, lngPlayerBet, lngTieBet;

// --- Settings in force, as the menus show them, and which windows stand ---

extern bool blnLearn, blnCardFaceUp, blnShowCardValues, blnShowCardsDealtCount;
extern bool blnShowScore, blnShowNaturals, blnPlayerBlue, blnDealDelay, blnDealAnimation;
extern bool blnTableLoaded, blnMarkCardLoaded;

/// Puts every table and value back to how the program starts. Windows are not touched.
void prcResetTableState();
