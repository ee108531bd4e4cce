#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string_view>
#include <tuple>

#include "table/HandDealing.h"
#include "tests/Game.h"

namespace {

/// A shoe that is not on the table, so that nothing is listed, in play and with any cards a test
/// lays at its front.
constexpr int intShoe = 3;

void prcLay(const std::array<int, 6>& values, int first = 0, int decks = 8) {
  prcResetTableState();
  intLastCard[intShoe] = decks * intSlotsOfDeck - 1;
  intCardValue[intShoe].prcBound(intMostSlots - 1);
  intShoeCards[intShoe].prcBound(intMostSlots - 1);
  for (int slot = 0; slot < intMostSlots; ++slot) {
    intCardValue[intShoe][slot] = slot % 13 + 1;
  }
  int position = first;
  for (const int value : values) {
    intShoeCards[intShoe][position++] = value - 1;
  }
  intNextCard[intShoe] = first;
}

/// The tableau as casinos print it: a row for the Banker's total 0..7, a column for the Player's
/// third card as a point 0..9, and last the Player's standing. D draws, S stands.
constexpr std::array<std::string_view, 8> strTableau{"DDDDDDDDDD D", "DDDDDDDDDD D", "DDDDDDDDDD D",
                                                     "DDDDDDDDSD D", "SSDDDDDDSS D", "SSSSDDDDSS D",
                                                     "SSSSSSDDSS S", "SSSSSSSSSS S"};

/// Both totals, whether Player and Banker have drawn, the cards dealt, and the result.
using Hand = std::tuple<int, int, bool, bool, int, std::string>;

Hand fncExpected(const std::array<int, 6>& values) {
  std::array<int, 6> v{};
  std::ranges::transform(values, v.begin(), [](int value) { return value >= 10 ? 0 : value; });
  const int player = (v[0] + v[2]) % 10, banker = (v[1] + v[3]) % 10;
  const bool blnOver = player >= 8 || banker >= 8;
  const bool blnPlayer = !blnOver && player <= 5;
  const std::size_t column = blnPlayer ? static_cast<std::size_t>(v[4]) : 11;
  const bool blnBanker =
      !blnOver && strTableau.at(static_cast<std::size_t>(banker)).at(column) == 'D';
  const int playerEnd = blnPlayer ? (player + v[4]) % 10 : player;
  const int bankerEnd = blnBanker ? (banker + v[blnPlayer ? 5 : 4]) % 10 : banker;
  const char* result = playerEnd == bankerEnd ? "T" : playerEnd > bankerEnd ? "P" : "B";
  return {playerEnd, bankerEnd, blnPlayer, blnBanker, 4 + blnPlayer + blnBanker, result};
}

TEST(HandDealing, EveryHandFollowsTheTableau) {
  for (int number = 0; number < 13 * 13 * 10 * 13; ++number) {
    const int p1 = number % 13 + 1, p2 = number / 13 % 13 + 1, b = number / 169 % 10 + 1;
    const int third = number / 1690 + 1;
    // The Banker's second card and the sixth card vary with the others, so that all values stand
    // everywhere.
    const std::array<int, 6> v{p1, b, p2, (third + p2) % 13 + 1, third, (p1 + b) % 13 + 1};
    prcLay(v);
    ZNEW_DealHand(intShoe);
    const Hand dealt{intPlayerTotal[intShoe], intBankerTotal[intShoe], blnPlayerThird[intShoe],
                     blnBankerThird[intShoe], intNextCard[intShoe],    strResult[intShoe]};
    ASSERT_EQ(dealt, fncExpected(v)) << testing::PrintToString(v);
  }
}

TEST(HandDealing, OneMoreHandBehindTheMarkThenTheShoeIsEnded) {
  for (const int decks : intShoeSizes) {
    // Four cards end a hand of naturals one before the mark, 13 from the end, or on it.
    const int mark = decks * intSlotsOfDeck - 13;
    prcLay({13, 13, 9, 8, 1, 1}, mark - 5, decks);
    ZNEW_DealHand(intShoe);
    EXPECT_FALSE(blnLastHand[intShoe]) << decks;
    prcLay({13, 13, 9, 8, 1, 1}, mark - 4, decks);
    ZNEW_DealHand(intShoe);
    EXPECT_TRUE(blnLastHand[intShoe]) << decks;
    EXPECT_FALSE(blnEndOfShoe[intShoe]);
    ZNEW_DealHand(intShoe);
    EXPECT_TRUE(blnEndOfShoe[intShoe]);
    const Integer next = intNextCard[intShoe];
    ZNEW_DealHand(intShoe);
    EXPECT_EQ(intNextCard[intShoe], next) << "an ended shoe changes nothing";
  }
}

}  // namespace
