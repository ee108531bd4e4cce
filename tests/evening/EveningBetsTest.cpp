#include <algorithm>
#include <string_view>

#include "betting/frmStatistics.h"
#include "tests/Game.h"

namespace {

class EveningBets : public Game {
 protected:
  void SetUp() override {
    Game::SetUp();
    Start();
    Shuffle();
  }

  /// Picks an entry of the menu.
  static void Pick(std::string_view entry) {
    const std::vector<Control*>& all = MDIForm1.Form.Controls;
    user::Click(**std::ranges::find(all, entry, [](const Control* c) { return c->Name; }));
  }
  static void Repeat() { Pick("mnuRepeatBets"); }
  static void TakeBack() { Pick("mnuTakeBack"); }
  static void Double() { Pick("mnuDoubleBets"); }
  static void All() {
    Repeat();
    TakeBack();
    Double();
  }

  /// The chips of both seats as "Tie/Banker/Player", with the money off the table behind.
  static std::string Table() {
    std::string text;
    for (int i = 0; i < intSeats; ++i) {
      for (const BetSide side : betSides) {
        text += fncBet(side, i).Box.Text + (side == betPlayer ? " " : "/");
      }
      text += BaccTable.lblPlayerTotal[i].Text + (i == 0 ? ", " : "");
    }
    return text;
  }

  /// The bets while they are taken back, until nothing moves.
  using Steps = std::vector<std::string>;
  static Steps AllTakenBack() {
    Steps steps;
    for (std::string last; last != Table(); TakeBack()) {
      last = Table();
      steps.push_back(last);
    }
    return steps;
  }
};

TEST_F(EveningBets, AreRepeatedAsOfTheLastHand) {
  Repeat();
  EXPECT_EQ(Table(), "0/0/0 $1,000, 0/0/0 $1,000") << "nothing was bet yet";
  Bet(betBanker, 0, "5");
  Bet(betTie, 0, "2");
  Bet(betPlayer, 1, "3");
  DealResult("P");
  EXPECT_EQ(Table(), "0/0/0 $930, 0/0/3 $1,000");
  Bet(betPlayer, 0, "93");  // All of the money, which the bets of the last hand need.
  Repeat();
  EXPECT_EQ(AllTakenBack(), (Steps{"2/5/0 $860, 0/0/3 $1,000", "0/0/93 $0, 0/0/3 $1,000",
                                   "0/0/0 $930, 0/0/3 $1,000"}));
  Deal();  // Seat 0 sits out.
  Repeat();
  EXPECT_EQ(Table(), "0/0/0 $930, 0/0/3 $970") << "and so it does in the repetition";
  EXPECT_TRUE(user::Boxes().empty());
}

TEST_F(EveningBets, AreTakenBackStepByStepToTheOpeningOfTheTable) {
  for (Control* chip : {&BaccTable.lblBBetInc5[0], &BaccTable.lblBBetInc2[0],
                        &BaccTable.lblTBetInc1[1], &BaccTable.lblPBetInc1[0]}) {
    user::Click(*chip);
  }
  user::Type(BaccTable.txtTieBet[0], "9");  // Not left yet: booked, then taken back.
  TakeBack();
  EXPECT_EQ(AllTakenBack(),
            (Steps{"0/0/1 $990, 1/0/0 $990", "0/7/0 $930, 1/0/0 $990", "0/7/0 $930, 0/0/0 $1,000",
                   "0/5/0 $950, 0/0/0 $1,000", "0/0/0 $1,000, 0/0/0 $1,000"}));
  Bet(betBanker, 0, "5");
  DealResult("B");
  Bet(betBanker, 0, "5");  // Left as it is: no step.
  user::Click(BaccTable.lblBBetInc0[0]);
  EXPECT_EQ(AllTakenBack(), (Steps{"0/0/0 $1,048, 0/0/0 $1,000", "0/5/0 $998, 0/0/0 $1,000"}));
}

TEST_F(EveningBets, AreDoubledAsOneStepAndRefusedAsAClickIs) {
  Bet(betBanker, 0, "30");
  Bet(betTie, 0, "2");
  Double();
  EXPECT_EQ(Table(), "4/60/0 $360, 0/0/0 $1,000");
  Double();
  EXPECT_EQ(LastBox().substr(0, 33), "Sorry, not enough money for the b");
  dblPlayerTotal[0] = 5000;
  Double();
  EXPECT_EQ(LastBox(), "Bet must be 0 to 100");
  EXPECT_EQ(user::Boxes().size(), 2U);
  EXPECT_EQ(AllTakenBack(), (Steps{"16/60/0 $4,920, 0/0/0 $1,000", "8/60/0 $5,000, 0/0/0 $1,000",
                                   "4/60/0 $5,040, 0/0/0 $1,000", "2/30/0 $5,360, 0/0/0 $1,000",
                                   "0/30/0 $5,380, 0/0/0 $1,000", "0/0/0 $5,680, 0/0/0 $1,000"}));
}

TEST_F(EveningBets, ThatCannotComeBackDoNotBlockThoseBefore) {
  Bet(betBanker, 0, "90");
  Bet(betBanker, 0, "5");
  dblPlayerTotal[0] = 100;
  TakeBack();
  EXPECT_EQ(LastBox().substr(0, 33), "Sorry, not enough money for the b");
  TakeBack();
  EXPECT_EQ(Table(), "0/0/0 $150, 0/0/0 $1,000");
}

TEST_F(EveningBets, ThatAreRefusedLeaveTheOneOnTheOtherSide) {
  Bet(betPlayer, 0, "60");
  DealResult("B");
  Bet(betBanker, 0, "5");
  Repeat();
  EXPECT_EQ(LastBox().substr(0, 33), "Sorry, not enough money for the b");
  EXPECT_EQ(Table(), "0/5/0 $350, 0/0/0 $1,000");
}

TEST_F(EveningBets, ThatStoodAtAnotherChipValueAreNotBroughtBack) {
  Bet(betBanker, 0, "5");
  user::Type(BaccTable.txtUnitValue, "20");
  user::Tab(BaccTable.Form);
  Bet(betPlayer, 1, "3");
  Bet(betBanker, 0, "7");
  EXPECT_EQ(AllTakenBack().back(), "0/7/0 $860, 0/0/3 $940");
}

TEST_F(EveningBets, StayWhereChipsCannotBeClickedOrABoxRefusesToBeLeft) {
  Bet(betBanker, 0, "5");
  DealResult("P");
  user::Type(BaccTable.txtBankerBet[0], "200");
  Repeat();
  EXPECT_EQ(LastBox(), "Banker bet must be 0 to 100");
  EXPECT_EQ(lngBankerBet[0], 0);
  Bet(betBanker, 0, "4");
  user::After(1000, [] {
    All();
    EXPECT_EQ(Table(), "0/4/0 $910, 0/0/0 $1,000") << "in the middle of a hand";
  });
  Deal();
}

TEST_F(EveningBets, LeaveTheFocusWhereItIsWhenNothingIsToBeDone) {
  ASSERT_TRUE(user::Click(BaccTable.txtUnitValue));
  const std::uint32_t given = BaccTable.Form.FocusGiven;
  All();
  EXPECT_EQ(std::uint32_t{BaccTable.Form.FocusGiven}, given) << "nor given anew";
}

TEST_F(EveningBets, OfBeforeAResetAreNotBroughtBack) {
  Bet(betBanker, 0, "5");
  Bet(betBanker, 0, "8");
  user::WhileModal([] {
    user::Answer(platform::Answer::Ok);
    user::Click(frmStatistics.cmdResetStats);
    user::Close(frmStatistics.Form);
  });
  user::Click(MDIForm1.mnuStatistics);
  TakeBack();
  EXPECT_EQ(Table(), "0/0/0 $1,000, 0/0/0 $1,000");
}

}  // namespace
