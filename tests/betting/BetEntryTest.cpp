#include <gtest/gtest.h>

#include "betting/BetEntry.h"
#include "betting/Funds.h"
#include "betting/TableLimits.h"
#include "platform/Texts.h"
#include "tests/Game.h"

namespace {

class BetEntry : public Game {
 protected:
  void SetUp() override {
    Game::SetUp();
    Start();
    Shuffle();
  }

  static Control& ChipOf(BetSide side, int seat, int chips) {
    const int place = chips == 0 ? 0 : chips == 5 ? 3 : chips;
    return *fncChips(seat).at(static_cast<std::size_t>(side * 4 + place));
  }

  /// The three forms of every bet agree, and no money is lost or made.
  static void ExpectSound(const std::string& where) {
    for (int seat = 0; seat < intSeats; ++seat) {
      double onTable = 0;
      for (const BetSide side : betSides) {
        const BetControls bet = fncBet(side, seat);
        EXPECT_EQ(bet.Money, fncBetChips(side, seat) * fncUnitValue()) << where;
        if (bet.Money != 0) {
          EXPECT_EQ(bet.Value.Text, fncCurrency(bet.Money)) << where;
        }
        EXPECT_EQ(bet.Value.Visible, bet.Money != 0) << where;
        onTable += bet.Money;
      }
      EXPECT_DOUBLE_EQ(dblPlayerTotal[seat] + onTable, 1000 + dblPlayerWin[seat]) << where;
      EXPECT_EQ(BaccTable.lblPlayerTotal[seat].Text, fncCurrency(dblPlayerTotal[seat])) << where;
    }
  }
};

TEST_F(BetEntry, ChipsAddAndTakeByMouseButton) {
  struct Case {
    BetSide Side;
    int Chips, Button;
    const char* Box;
    const char* Message;
  };
  for (const Case& click : {Case{betBanker, 5, intLeftButton, "5", ""},
                            {betBanker, 2, intMiddleButton, "7", ""},
                            {betBanker, 1, intRightButton, "6", ""},
                            {betBanker, 5, intRightButton, "1", ""},
                            {betBanker, 2, intRightButton, "1", "Bet must be 0 to 100"},
                            {betTie, 2, intLeftButton, "2", ""},
                            {betTie, 5, intRightButton, "2", "Tie bet must be 0 to 50"},
                            {betPlayer, 1, intLeftButton, "1", ""},
                            {betPlayer, 0, intRightButton, "0", ""}}) {
    headless::ForgetBoxes();
    headless::Click(ChipOf(click.Side, 1, click.Chips), click.Button);
    EXPECT_EQ(fncBet(click.Side, 1).Box.Text, click.Box);
    EXPECT_EQ(LastBox(), click.Message);
    EXPECT_EQ(BaccTable.Form.ActiveControl, &fncBet(click.Side, 1).Box);
    ExpectSound(click.Box);
  }
  EXPECT_EQ(BaccTable.txtBankerBet[1].Text, "0") << "a Player chip takes the Banker bet off";
  EXPECT_EQ(BaccTable.txtTieBet[1].Text, "2") << "the Tie bet stands beside either";
}

TEST_F(BetEntry, LimitsOfChipsAndTypingDifferInWords) {
  struct Case {
    BetSide Side;
    const char *Full, *Over, *Chip, *Typed;
  };
  Setting("Player1Stats", "Stake", " 1000000");
  for (const Case& limit :
       {Case{betTie, "50", "51", "Tie bet must be 0 to 50", "Tie bet must be 0 to 50"},
        {betBanker, "100", "101", "Bet must be 0 to 100", "Banker bet must be 0 to 100"},
        {betPlayer, "100", "101", "Bet must be 0 to 100", "Player bet must be 0 to 100"}}) {
    headless::ForgetBoxes();
    Control& box = fncBet(limit.Side, 0).Box;
    ASSERT_TRUE(Bet(limit.Side, 0, limit.Full)) << "the seat owns just enough for 100 chips";
    ASSERT_TRUE(Bet(limit.Side, 0, "9"));
    ASSERT_TRUE(Bet(limit.Side, 1, limit.Full == std::string("50") ? "48" : "98"));
    headless::Click(ChipOf(limit.Side, 1, 5));
    EXPECT_NE(LastBox(), "");
    headless::ForgetBoxes();
    EXPECT_FALSE(Bet(limit.Side, 0, limit.Over));
    EXPECT_EQ(LastBox(), limit.Typed);
    EXPECT_EQ(headless::Boxes().back().Icon, platform::Icon::None);
    EXPECT_EQ(headless::Boxes().back().Title, "");
    EXPECT_EQ(box.Text, limit.Over) << "a wrong number stands for correction";
    EXPECT_EQ(BaccTable.Form.ActiveControl, &box);
    ASSERT_TRUE(Bet(limit.Side, 0, "0"));
    ASSERT_TRUE(Bet(limit.Side, 1, "0"));
    ExpectSound(limit.Typed);
  }
}

TEST_F(BetEntry, TypingReplacesTheOtherSideOnlyByARealBet) {
  ASSERT_TRUE(Bet(betPlayer, 0, "5"));
  ASSERT_TRUE(Bet(betBanker, 0, "0"));
  EXPECT_EQ(BaccTable.txtPlayerBet[0].Text, "5");
  ExpectSound("typed 0 keeps the Player bet");
  ASSERT_TRUE(Bet(betBanker, 0, "3"));
  EXPECT_EQ(BaccTable.txtPlayerBet[0].Text, "0");
  ExpectSound("typed 3 takes it off");
  ASSERT_TRUE(Bet(betPlayer, 0, "5"));
  headless::Click(BaccTable.lblBBetInc0[0]);
  EXPECT_EQ(BaccTable.txtPlayerBet[0].Text, "0");
  ExpectSound("a clear click takes the other side off");
  headless::Click(BaccTable.lblBBetInc1[0]);
  ASSERT_TRUE(Bet(betTie, 0, "4"));
  EXPECT_DOUBLE_EQ(dblPlayerTotal[0], 950);
  ExpectSound("Banker and Tie");
}

TEST_F(BetEntry, AChipOnABoxJustTypedInBooksTheTypedBetFirst) {
  ASSERT_TRUE(headless::Type(BaccTable.txtBankerBet[0], "50"));
  headless::Click(BaccTable.lblBBetInc1[0]);
  EXPECT_EQ(BaccTable.txtBankerBet[0].Text, "51");
  ExpectSound("51 chips are paid, not 1");
}

TEST_F(BetEntry, ABoxThatRefusesVoidsTheClick) {
  ASSERT_TRUE(headless::Type(BaccTable.txtBankerBet[0], "101"));
  EXPECT_FALSE(headless::Click(BaccTable.lblPBetInc5[1]));
  EXPECT_FALSE(headless::Click(BaccTable.duokkortos[0]));
  EXPECT_EQ(intHandsDealt[0], 0);
  EXPECT_EQ(BaccTable.txtPlayerBet[1].Text, "0");
  EXPECT_EQ(BaccTable.Form.ActiveControl, &BaccTable.txtBankerBet[0]);
  EXPECT_EQ(headless::Boxes().size(), 2U);

  ASSERT_TRUE(headless::Type(BaccTable.txtBankerBet[0], ""));
  EXPECT_FALSE(headless::Tab(BaccTable.Form));
  EXPECT_EQ(LastBox(), "Banker bet must be 0 to 100");
  EXPECT_EQ(BaccTable.txtBankerBet[0].Text, "0");
  EXPECT_TRUE(headless::Tab(BaccTable.Form));
  ExpectSound("after an empty box");
}

TEST_F(BetEntry, MoneyThatIsNotThereIsRefused) {
  ASSERT_TRUE(Bet(betPlayer, 0, "60"));
  ASSERT_TRUE(Bet(betTie, 0, "40"));
  EXPECT_DOUBLE_EQ(dblPlayerTotal[0], 0) << "a total of exactly the cost is enough";
  EXPECT_FALSE(Bet(betTie, 0, "41"));
  EXPECT_EQ(BaccTable.txtTieBet[0].Text, "40") << "the box goes back to the chips on the table";
  headless::ForgetBoxes();
  headless::Click(BaccTable.lblTBetInc1[0]);
  EXPECT_TRUE(LastBox().starts_with("Sorry, not enough money"));
  ASSERT_TRUE(Bet(betBanker, 0, "60")) << "the Player bet it replaces pays for it";
  ExpectSound("full");
}

TEST_F(BetEntry, ANewBetClearsTheLastHand) {
  DealResult("P");
  EXPECT_TRUE(BaccTable.pctCardFace[0].Visible && BaccTable.WinP.Visible);
  ASSERT_TRUE(Bet(betTie, 0, "0"));
  EXPECT_TRUE(BaccTable.pctCardFace[0].Visible) << "an unchanged box clears nothing";
  headless::Click(BaccTable.lblTBetInc5[0], intRightButton);
  EXPECT_FALSE(BaccTable.pctCardFace[0].Visible) << "a chip click clears before its checks";
  EXPECT_FALSE(BaccTable.WinP.Visible);
}

TEST_F(BetEntry, BetsAreClosedWithoutAChipValue) {
  for (const char* unit : {"0", "", "5", "15", "9995", "10.5"}) {
    prcFreshGame(Folder());
    Setting("Misc", "UnitValue", unit);
    Start();
    Shuffle();
    headless::Type(BaccTable.txtBankerBet[0], "7");
    EXPECT_FALSE(LastBox().empty()) << unit;
    EXPECT_EQ(BaccTable.Form.ActiveControl, &BaccTable.txtUnitValue) << unit;
    headless::ForgetBoxes();
    headless::Click(BaccTable.lblPBetInc5[0]);
    EXPECT_FALSE(LastBox().empty()) << unit;
    EXPECT_DOUBLE_EQ(dblPlayerTotal[0], 1000);
    EXPECT_EQ(fncBetChips(betPlayer, 0), 0);
  }
}

TEST_F(BetEntry, APaidBetComesBackWhenItsBoxIsLeftWithoutAChipValue) {
  headless::Click(BaccTable.lblTBetInc5[0]);
  EXPECT_DOUBLE_EQ(dblPlayerTotal[0], 950);
  BaccTable.txtUnitValue.Text = "";
  headless::Click(BaccTable.lblTBetInc1[0]);
  headless::Tab(BaccTable.Form);
  EXPECT_EQ(fncBetChips(betTie, 0), 0);
  EXPECT_EQ(lngTieBet[0], 0);
  EXPECT_DOUBLE_EQ(dblPlayerTotal[0], 1000);
  EXPECT_EQ(BaccTable.lblPlayerTotal[0].Text, "$1,000");
}

TEST_F(BetEntry, ChipValueChecks) {
  struct Case {
    const char *Typed, *Message;
  };
  for (const Case& value : {Case{"10", ""},
                            {"9990", ""},
                            {"5", "Must be between $10 and $9990"},
                            {"9995", "Must be between $10 and $9990"},
                            {"15", "Must be in multiples of $10"},
                            {"", "Must be between $10 and $9990"}}) {
    headless::ForgetBoxes();
    ASSERT_TRUE(headless::Type(BaccTable.txtUnitValue, value.Typed));
    EXPECT_EQ(headless::Tab(BaccTable.Form), value.Message[0] == '\0') << value.Typed;
    EXPECT_EQ(LastBox(), value.Message);
    EXPECT_EQ(BaccTable.txtUnitValue.Text, value.Typed);
    if (value.Message[0] == '\0') {
      EXPECT_EQ(Stored("Misc", "UnitValue"), value.Typed);
    }
  }
}

TEST_F(BetEntry, HandsBoxComparesAsText) {
  struct Case {
    const char *Typed, *Left, *Message;
  };
  for (const Case& value : {Case{"5", "5", ""},
                            {"90", "90", ""},
                            {"", "1", ""},
                            {"1", "1", ""},
                            {"91", "91", "Hands At a Time must be 1 to 90"},
                            {"0", "0", "Hands At a Time must be 1 to 90"},
                            {"00", "00", "Hands At a Time must be 1 to 90"}}) {
    headless::ForgetBoxes();
    ASSERT_TRUE(headless::Type(BaccTable.mskHandsAtaTime, value.Typed));
    EXPECT_EQ(headless::Tab(BaccTable.Form), value.Message[0] == '\0') << value.Typed;
    EXPECT_EQ(LastBox(), value.Message);
    EXPECT_EQ(BaccTable.mskHandsAtaTime.Text, value.Left);
  }
}

TEST_F(BetEntry, ReturnedBetsArePaidAtThePresentChipValue) {
  ASSERT_TRUE(Bet(betTie, 0, "4"));
  ASSERT_TRUE(Bet(betBanker, 0, "6"));
  prcReturnBets();
  EXPECT_DOUBLE_EQ(dblPlayerTotal[0], 1000);
  EXPECT_EQ(BaccTable.txtTieBet[0].Text + BaccTable.txtBankerBet[0].Text, "00");
  BaccTable.txtPlayerBet[1].Text = "3";
  BaccTable.txtUnitValue.Text = "100";
  prcReturnBets();
  EXPECT_DOUBLE_EQ(dblPlayerTotal[1], 1300);
}

}  // namespace
