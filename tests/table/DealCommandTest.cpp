#include <gtest/gtest.h>

#include "platform/Texts.h"
#include "table/DealCommand.h"
#include "tests/Game.h"

namespace {

using DealCommand = Game;

TEST_F(DealCommand, RefusalsChangeNothing) {
  Start();
  duokkortos_Click(0);
  ASSERT_EQ(LastBox(), "Shoe is not yet shuffled");
  EXPECT_EQ(headless::Boxes().back().Icon, platform::Icon::Stop);
  EXPECT_FALSE(blnBusy);

  Shuffle();
  DealResult("P");
  for (int seat = 0; seat < intSeats; ++seat) {
    headless::ForgetBoxes();
    BaccTable.txtBankerBet[seat].Text = BaccTable.txtPlayerBet[seat].Text = "1";
    const Integer hands = intHandsDealt[0];
    headless::Click(BaccTable.duokkortos[0]);
    EXPECT_EQ(LastBox(), seat == 0 ? "Player 1must bet only on Banker OR Player"
                                   : "Player 2must bet only on Banker OR Player");
    EXPECT_EQ(intHandsDealt[0], hands);
    EXPECT_TRUE(BaccTable.pctCardFace[0].Visible) << "the last hand stays on the table";
    EXPECT_FALSE(blnBusy);
    BaccTable.txtBankerBet[seat].Text = BaccTable.txtPlayerBet[seat].Text = "0";
  }
}

TEST_F(DealCommand, TheButtonsDealTheirCounts) {
  Start();
  Shuffle();
  struct Case {
    int Button, Hands;
  };
  for (const Case& button : {Case{1, 5}, {2, 10}, {3, 20}}) {
    EXPECT_EQ(fncVal(BaccTable.duokkortos[button.Button].Text), button.Hands);
    const Integer before = intHandsDealt[0];
    headless::Click(BaccTable.duokkortos[button.Button]);
    EXPECT_EQ(intHandsDealt[0] - before, button.Hands);
    EXPECT_EQ(BaccTable.mskHandsAtaTime.Text, "1");
    EXPECT_FALSE(BaccTable.Label1.Visible) << "a run of many shows no card areas";
    EXPECT_FALSE(BaccTable.Timer1.Enabled);
    EXPECT_TRUE(BaccTable.duokkortos[0].Visible && BaccTable.txtTieBet[0].Enabled);
    EXPECT_FALSE(BaccTable.txtUnitValue.Enabled)
        << "the chip value stays locked until the shoe ends";
    EXPECT_EQ(BaccTable.Form.ActiveControl, &BaccTable.duokkortos[0]);
  }
}

TEST_F(DealCommand, ARunStopsWithTheShoeAndSaysWhatItDealt) {
  Start();
  intDecks[0] = 1;
  Shuffle();
  Deal(90);
  EXPECT_TRUE(blnEndOfShoe[0]);
  EXPECT_EQ(LastBox(), std::to_string(intHandsDealt[0]) + " hands have just been dealt");
  EXPECT_LT(intHandsDealt[0], 13);
}

TEST_F(DealCommand, TheTableIsLockedInARun) {
  Start();
  Shuffle();
  ASSERT_TRUE(Bet(betPlayer, 0, "2"));
  headless::WhileModal([] {
    EXPECT_TRUE(blnBusy);
    for (Control* hidden :
         {&BaccTable.maisyk, &BaccTable.duokkortos[0], &BaccTable.duokkortos[3],
          &BaccTable.mskHandsAtaTime, &BaccTable.lblTBetInc0[0], &BaccTable.lblPBetInc5[1]}) {
      EXPECT_FALSE(hidden->Visible) << hidden->Name;
    }
    EXPECT_TRUE(BaccTable.txtPlayerBet[0].Visible);
    EXPECT_FALSE(BaccTable.txtPlayerBet[0].Enabled);
    EXPECT_EQ(BaccTable.Form.ActiveControl, &BaccTable.txtsetfocus);
  });
  NextCards({13, 13, 7, 7, 13, 13, 7, 7});
  Deal(2);
  EXPECT_TRUE(BaccTable.txtPlayerBetValue[0].Visible) << "the bet of a tie stands in view";
}

TEST_F(DealCommand, TheLastHandIsAnnounced) {
  Start();
  Shuffle();
  intNextCard[0] = intLastCard[0] - 13 - 3;
  EXPECT_FALSE(BaccTable.FormLastHand.Visible);
  Deal();
  EXPECT_TRUE(blnLastHand[0]);
  EXPECT_TRUE(BaccTable.FormLastHand.Visible);
}

TEST_F(DealCommand, ClosingInTheMessageOfARunBooksNothingTwice) {
  Start();
  Shuffle();
  ASSERT_TRUE(Bet(betPlayer, 0, "2"));
  NextCards({13, 13, 9, 7, 13, 13, 9, 7});
  headless::WhileModal([] { prcCloseFrame(); });
  Deal(2);
  EXPECT_TRUE(headless::Ended());
  EXPECT_EQ(Stored("Player1Stats", "Win"), "40");
  EXPECT_EQ(Stored("ShoesHandsPlayed", "Hands"), "2");
  EXPECT_DOUBLE_EQ(dblPlayerTotal[0], 1040) << "the standing bet went back";
}

}  // namespace
