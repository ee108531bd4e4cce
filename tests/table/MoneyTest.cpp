#include <gtest/gtest.h>

#include <algorithm>

#include "betting/Funds.h"
#include "platform/Texts.h"
#include "shell/CardsDealt.h"
#include "table/DealCommand.h"
#include "tests/Game.h"

// The money of whole hands: what leaves a seat when a bet is placed, what a hand books, what is
// stored.

namespace {

class Money : public Game {
 protected:
  void SetUp() override {
    Game::SetUp();
    Start();
    Shuffle();
  }

  static void ExpectSeat(int seat, double total, double win, const char* where) {
    EXPECT_DOUBLE_EQ(dblPlayerTotal[seat], total) << where;
    EXPECT_DOUBLE_EQ(dblPlayerWin[seat], win) << where;
  }
};

TEST_F(Money, AHandPaysEachBet) {
  struct Case {
    const char* What;
    BetSide Side;
    const char* Chips;
    const char* Result;
    double Total, Win;
    const char* Left;
  };
  for (const Case& hand : {Case{"Banker wins 0.95", betBanker, "5", "B", 997.5, 47.5, "5"},
                           {"Banker loses", betBanker, "5", "P", 950, -50, "0"},
                           {"Banker stands off", betBanker, "5", "T", 950, 0, "5"},
                           {"Player wins even", betPlayer, "7", "P", 1000, 70, "7"},
                           {"Player loses", betPlayer, "7", "B", 930, -70, "0"},
                           {"Player stands off", betPlayer, "7", "T", 930, 0, "7"},
                           {"Tie pays 8", betTie, "2", "T", 1140, 160, "2"},
                           {"Tie loses to Banker", betTie, "2", "B", 980, -20, "0"},
                           {"Tie loses to Player", betTie, "2", "P", 980, -20, "0"}}) {
    for (int seat = 0; seat < intSeats; ++seat) {
      prcFreshGame(Folder());
      Start();
      Shuffle();
      const double before = dblPlayerTotal[seat], won = dblPlayerWin[seat];
      ASSERT_TRUE(Bet(hand.Side, seat, hand.Chips));
      DealResult(hand.Result);
      EXPECT_DOUBLE_EQ(dblPlayerTotal[seat] - before, hand.Total - 1000) << hand.What;
      EXPECT_DOUBLE_EQ(dblPlayerWin[seat] - won, hand.Win) << hand.What;
      EXPECT_EQ(fncBet(hand.Side, seat).Box.Text, hand.Left) << hand.What;
      EXPECT_EQ(fncBet(hand.Side, seat).Money, fncVal(hand.Left) * 10) << hand.What;
      EXPECT_DOUBLE_EQ(fncVal(Stored(fncSeatSection(seat), "Win")), dblPlayerWin[seat]);
    }
  }
}

TEST_F(Money, FractionsStayInTheBooksAndOnlyLabelsRound) {
  ASSERT_TRUE(Bet(betBanker, 0, "5"));
  EXPECT_EQ(BaccTable.lblPlayerTotal[0].Text, "$950");
  DealResult("B");
  ExpectSeat(0, 997.5, 47.5, "won");
  EXPECT_EQ(BaccTable.lblPlayerTotal[0].Text, "$998");
  EXPECT_EQ(BaccTable.lblPlayerWinnings[0].Text, "$48");
  EXPECT_EQ(Stored("Player1Stats", "Win"), "47.5");
  DealResult("P");
  ExpectSeat(0, 997.5, -2.5, "then lost");
  EXPECT_EQ(Stored("Player1Stats", "Win"), "-2.5");
  EXPECT_EQ(Stored("Player1Stats", "Turnover"), "100");
}

TEST_F(Money, BothLinesOfASeatAreBookedInOneHand) {
  ASSERT_TRUE(Bet(betBanker, 0, "3"));
  ASSERT_TRUE(Bet(betTie, 0, "1"));
  ASSERT_TRUE(Bet(betPlayer, 1, "4"));
  DealResult("B");
  ExpectSeat(0, 1000 - 40 + 28.5, 28.5 - 10, "seat 0");
  ExpectSeat(1, 1000 - 40, -40, "seat 1");
  EXPECT_EQ(varHandUnits[0], Integer(2));
  EXPECT_EQ(BaccTable.txtTieBet[0].Text, "0");
  EXPECT_EQ(BaccTable.txtBankerBet[0].Text, "3");
}

TEST_F(Money, TurnoverCountsEveryStandingBetAndHandsCountHands) {
  ASSERT_TRUE(Bet(betPlayer, 1, "10"));
  for (const char* result : {"T", "T", "P"}) {
    DealResult(result);
  }
  EXPECT_EQ(Stored("Player2Stats", "Turnover"), "300");
  EXPECT_EQ(Stored("Player1Stats", "Turnover"), "0");
  EXPECT_EQ(Stored("ShoesHandsPlayed", "Hands"), "3");
  EXPECT_EQ(Stored("Player1Stats", "Win"), "0") << "a seat without bets is settled all the same";
}

TEST_F(Money, AMultiHandRunRenewsWhatItLoses) {
  // 96 chips lost on the first hand leave $40: the renewal fails, is told, and the run goes on
  // without the bet.
  ASSERT_TRUE(Bet(betPlayer, 0, "96"));
  ASSERT_TRUE(Bet(betBanker, 1, "1"));
  NextCards({13, 13, 7, 9, 13, 13, 7, 9, 13, 13, 7, 9});
  Deal(3);
  ExpectSeat(0, 40, -960, "lost once, not renewed");
  ExpectSeat(1, 1000 - 10 + 28.5, 28.5, "won three times with one stake");
  EXPECT_EQ(BaccTable.txtPlayerBet[0].Text, "0");
  ASSERT_EQ(headless::Boxes().size(), 2U);
  EXPECT_EQ(headless::Boxes().front().Text,
            "Sorry, not enough money for the bet placed.\r\nYou must add more stake money using "
            "the Statistics "
            "screen.");
  EXPECT_EQ(LastBox(), "3 hands have just been dealt");
  EXPECT_EQ(headless::Boxes().back().Icon, platform::Icon::Information);

  ASSERT_TRUE(Bet(betPlayer, 1, "2"));
  NextCards({13, 13, 7, 9, 13, 13, 7, 9});
  Deal(2);
  ExpectSeat(1, 1028.5 - 40, 28.5 - 40, "the Banker bet came back, two Player bets of 20 went");
  EXPECT_EQ(BaccTable.txtPlayerBet[1].Text, "0") << "the last loss is cleared, not renewed";
}

TEST_F(Money, TheEndOfAShoeReturnsWhatStands) {
  struct Case {
    const char* Result;
    double Total;
    int Hands;
  };
  for (const Case& last : {Case{"B", 1000 + 95, 1},
                           {"P", 900, 1},
                           {"T", 1000, 1},
                           {"B", 1000 + 95, 2},
                           {"P", 900, 2}}) {
    prcFreshGame(Folder());
    for (const char* key : {"Win", "Turnover"}) {
      Setting("Player1Stats", key, " 0");
    }
    Start();
    Shuffle();
    ASSERT_TRUE(Bet(betBanker, 0, "10"));
    NextResult(last.Result);
    blnLastHand[0] = true;
    const Integer left = intLastCard[0] - intNextCard[0] - 3;
    const std::string shoes = Stored("ShoesHandsPlayed", "Decks 8");
    Deal(last.Hands);
    headless::Wait(5000);
    EXPECT_DOUBLE_EQ(dblPlayerTotal[0], last.Total) << last.Result << last.Hands;
    EXPECT_EQ(BaccTable.txtBankerBet[0].Text, "0");
    EXPECT_EQ(lngBankerBet[0], 0);
    EXPECT_TRUE(BaccTable.FormEndofShoe.Visible);
    EXPECT_FALSE(BaccTable.FormLastHand.Visible);
    EXPECT_FALSE(BaccTable.duokkortos[0].Visible);
    EXPECT_TRUE(BaccTable.maisyk.Visible && BaccTable.maisyk.Enabled &&
                BaccTable.txtUnitValue.Enabled);
    EXPECT_FALSE(blnBusy);
    EXPECT_EQ(fncVal(Stored("ShoesHandsPlayed", "Decks 8")), fncVal(shoes) + 1);
    const auto& rows = frmCardsDealt.lstCardsDealt.List;
    EXPECT_EQ(
        std::ranges::count_if(rows, [](const auto& row) { return row.substr(14) == "<-End  "; }),
        left);
    EXPECT_EQ(rows.size(), 416U) << "every card is burnt, dealt or left";
    EXPECT_EQ(intNextCard[0], intLastCard[0]);
    EXPECT_EQ(BaccTable.prgShoe.Value, 415);
    if (last.Hands > 1) {
      EXPECT_EQ(LastBox(), "1 hands have just been dealt");
    }
    for (const CardsDealtRow& row : varCardsDealtCount) {
      for (int suit = 1; suit <= 4; ++suit) {
        EXPECT_EQ(row.Suit[suit], 8);
      }
    }
  }
}

TEST_F(Money, WholeShoesKeepTheBooks) {
  for (std::uint64_t seed = 1; seed <= 3; ++seed) {
    Shuffle(seed);
    while (!blnEndOfShoe[0]) {
      Bet(betBanker, 0, "3");
      Bet(betTie, 0, "1");
      Bet(betPlayer, 1, "2");
      Deal(seed == 1 ? 90 : 7);
      for (int seat = 0; seat < intSeats; ++seat) {
        const double onTable = lngBankerBet[seat] + (lngPlayerBet[seat] + (lngTieBet[seat] + 0.0));
        ASSERT_NEAR(dblPlayerTotal[seat] + onTable, 1000 + dblPlayerWin[seat], 1e-6);
      }
      headless::ForgetBoxes();
    }
  }
  EXPECT_EQ(Stored("ShoesHandsPlayed", "Decks 8"), "3");
}

TEST_F(Money, ATurnoverPastALongIsToldOnceAndEndsTheProgram) {
  Setting("Player1Stats", "Turnover", " 2147483600");
  ASSERT_TRUE(Bet(betBanker, 0, "5"));
  NextResult("B");
  headless::Click(BaccTable.duokkortos[0]);
  headless::Wait(10'000);
  ASSERT_EQ(headless::Boxes().size(), 1U);
  EXPECT_EQ(LastBox(),
            "Serious Error Occurred - Line 90 Error - 6-Overflow\r\n'Baccarat table "
            "duokkortos_Click'\r\nPLEASE "
            "RECORD ERROR MESSAGE");
  EXPECT_EQ(headless::Boxes().back().Icon, platform::Icon::Stop);
  EXPECT_EQ(headless::Boxes().back().Title, "Velmora");
  EXPECT_TRUE(headless::Ended());
  EXPECT_EQ(Stored("Player1Stats", "Turnover"), "2147483600");
}

}  // namespace
