#include <gtest/gtest.h>

#include <array>
#include <string_view>

#include "table/HandDealing.h"
#include "tests/Game.h"

namespace {

/// A shoe that is not on the table, so that nothing is listed, in play and with any cards a test
/// lays at its front.
constexpr int intShoe = 3;

void prcLay(const std::array<int, 6>& values, int first = 0) {
  prcResetTableState();
  intLastCard[intShoe] = intMostSlots - 1;
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

int fncPoint(int value) { return value >= 10 ? 0 : value; }

/// The tableau as casinos print it: a row for the Banker's total 0..7, a column for the Player's
/// third card as a point 0..9, and last the Player's standing. D draws, S stands.
constexpr std::array<std::string_view, 8> strTableau{"DDDDDDDDDD D", "DDDDDDDDDD D", "DDDDDDDDDD D",
                                                     "DDDDDDDDSD D", "SSDDDDDDSS D", "SSSSDDDDSS D",
                                                     "SSSSSSDDSS S", "SSSSSSSSSS S"};

struct Expected {
  int PlayerTotal, BankerTotal, Cards;
  bool PlayerThird, BankerThird;
};

Expected fncExpected(const std::array<int, 6>& v) {
  const int player = (fncPoint(v[0]) + fncPoint(v[2])) % 10;
  const int banker = (fncPoint(v[1]) + fncPoint(v[3])) % 10;
  if (player >= 8 || banker >= 8) {
    return {player, banker, 4, false, false};
  }
  const bool playerDraws = player <= 5;
  const std::string_view row = strTableau.at(static_cast<std::size_t>(banker));
  const bool bankerDraws = row[playerDraws ? static_cast<std::size_t>(fncPoint(v[4])) : 11] == 'D';
  const int bankerThird = fncPoint(v[playerDraws ? 5 : 4]);
  return {playerDraws ? (player + fncPoint(v[4])) % 10 : player,
          bankerDraws ? (banker + bankerThird) % 10 : banker, 4 + playerDraws + bankerDraws,
          playerDraws, bankerDraws};
}

TEST(HandDealing, EveryHandFollowsTheTableau) {
  int hands = 0;
  for (int p1 = 1; p1 <= 13; ++p1) {
    for (int p2 = 1; p2 <= 13; ++p2) {
      for (int b = 1; b <= 10; ++b) {
        for (int third = 1; third <= 13; ++third, ++hands) {
          // The Banker's second card and the sixth card vary with the others, so that all values
          // stand everywhere.
          const std::array<int, 6> v{p1, b, p2, (third + p2) % 13 + 1, third, (p1 + b) % 13 + 1};
          prcLay(v);
          ZNEW_DealHand(intShoe);
          const Expected want = fncExpected(v);
          ASSERT_EQ(intPlayerTotal[intShoe], want.PlayerTotal)
              << p1 << ' ' << p2 << ' ' << b << ' ' << third;
          ASSERT_EQ(intBankerTotal[intShoe], want.BankerTotal)
              << p1 << ' ' << p2 << ' ' << b << ' ' << third;
          ASSERT_EQ(blnPlayerThird[intShoe], want.PlayerThird);
          ASSERT_EQ(blnBankerThird[intShoe], want.BankerThird);
          ASSERT_EQ(intNextCard[intShoe], want.Cards);
          const char* result = want.PlayerTotal == want.BankerTotal  ? "T"
                               : want.PlayerTotal > want.BankerTotal ? "P"
                                                                     : "B";
          ASSERT_EQ(strResult[intShoe], result);
        }
      }
    }
  }
  EXPECT_EQ(hands, 13 * 13 * 10 * 13);
}

TEST(HandDealing, OneMoreHandBehindTheMarkThenTheShoeIsEnded) {
  struct Case {
    int Decks, Mark;
  };
  for (const Case& size : {Case{1, 39}, {2, 91}, {4, 195}, {6, 299}, {8, 403}}) {
    // Four cards end a hand of naturals one before the mark, and the next on it or behind it.
    prcLay({13, 13, 9, 8, 1, 1}, size.Mark - 5);
    intLastCard[intShoe] = size.Decks * 52 - 1;
    ZNEW_DealHand(intShoe);
    EXPECT_EQ(intNextCard[intShoe], size.Mark - 1);
    EXPECT_FALSE(blnLastHand[intShoe]) << size.Decks;

    prcLay({13, 13, 9, 8, 1, 1}, size.Mark - 4);
    intLastCard[intShoe] = size.Decks * 52 - 1;
    ZNEW_DealHand(intShoe);
    EXPECT_TRUE(blnLastHand[intShoe]) << size.Decks;
    EXPECT_FALSE(blnEndOfShoe[intShoe]);
    ZNEW_DealHand(intShoe);
    EXPECT_TRUE(blnEndOfShoe[intShoe]);

    const Integer next = intNextCard[intShoe];
    blnPlayerThird[intShoe] = true;
    ZNEW_DealHand(intShoe);
    EXPECT_EQ(intNextCard[intShoe], next);
    EXPECT_TRUE(blnPlayerThird[intShoe]) << "an ended shoe changes nothing";
  }
}

}  // namespace
