#include <algorithm>
#include <tuple>

#include "betting/frmStatistics.h"
#include "evening/Course.h"
#include "evening/Curve.h"
#include "evening/Hands.h"
#include "evening/Luck.h"
#include "evening/Record.h"
#include "platform/Chart.h"
#include "platform/Grid.h"
#include "platform/headless/Headless.h"
#include "shell/Dialogs.h"
#include "tests/Game.h"

namespace {

using Lines = std::vector<std::string>;
using Points = std::vector<ChartPoint>;

class EveningWindows : public Game {
 protected:
  void SetUp() override {
    Game::SetUp();
    Start();
    Shuffle();
  }

  /// A hand, and the moment until open windows have followed it.
  static void Follow(const std::string& result) {
    DealResult(result);
    headless::Wait(300);
  }

  /// A won Banker bet of 10 chips, a lost one beside 5 chips of seat 1, and a tie without bets.
  static void PlayThree() {
    Bet(betBanker, 0, "10");
    DealResult("B");
    Bet(betPlayer, 1, "5");
    DealResult("P");
    Follow("T");
  }

  static void Open(void (*prcShowWindow)()) {
    prcShowWindow();
    headless::Wait(300);
  }

  static Lines Rows(const Control& grid) {
    Lines rows;
    for (const std::int32_t number : grid.Grid->Rows) {
      rows.emplace_back();
      for (int column = 0; column < std::ssize(grid.Grid->Columns); ++column) {
        rows.back() += grid.Grid->Cell(number, column) + "|";
      }
    }
    return rows;
  }

  /// What a seat owned in front of the first hand and behind each.
  static std::vector<double> Money(Integer seat) {
    std::vector<double> money;
    std::ranges::transform(fncCurve(seat), std::back_inserter(money), &CurvePoint::Money);
    return money;
  }

  static const ChartData& Chart() { return *frmCourse.crtMoney.Chart; }
};

TEST_F(EveningWindows, TheListShowsEachSettledHandAndFollowsThePlay) {
  Open(prcShowHands);
  EXPECT_EQ(frmHands.lblHand.Text, "No hand has been settled yet.");
  PlayThree();
  EXPECT_EQ(Rows(frmHands.grdHands),
            (Lines{"1|1|  K♣ 7♠|7|  K♣ 9♦|9|  Banker|  B $100|$1,095||$1,000|",
                   "2|1|  K♦ 9♥|9|  K♣ 7♣|7|  Player|  B $100|$995|  P $50|$1,050|",
                   "3|1|  K♣ 7♠|7|  K♣ 7♣|7|  Tie||$995|  P $50|$1,050|"}));
  EXPECT_EQ(frmHands.grdHands.ListIndex, 2) << "who looks at the last hand goes on to the new one";
  headless::Pick(frmHands.grdHands, 1);
  EXPECT_EQ(frmHands.lblHand.Text, "Hand 2, shoe 1: Player wins");
  EXPECT_EQ(frmHands.lblSide[0].Text + ", " + frmHands.lblSide[1].Text, "PLAYER  9, BANKER  7");
  EXPECT_EQ(int{frmHands.pctCard[0].Picture}, int{colEveningHands[1].Cards[0]});
  EXPECT_FALSE(frmHands.pctCard[2].Visible);
  Follow("B");
  EXPECT_EQ(frmHands.grdHands.ListIndex, 1) << "who looks at another stays there";
}

TEST_F(EveningWindows, TheReasonsFollowTheDrawRules) {
  const std::pair<std::vector<int>, const char*> rows[] = {
      {{9, 2, 13, 5}, "Player 9 is a natural|Banker 7 gets no card against a natural|"},
      {{4, 9, 4, 9}, "Player 8 is a natural|Banker 8 is a natural|"},
      {{2, 2, 5, 3, 7}, "Player 7 stands|Banker 5 draws|"},
      {{1, 2, 5, 4}, "Player 6 stands|Banker 6 stands|"},
      {{1, 1, 2, 2, 8}, "Player 3 draws|Banker 3 stands against 8|"},
      {{1, 1, 2, 3, 12}, "Player 3 draws|Banker 4 stands against 0|"},
      {{10, 10, 10, 6, 6, 9}, "Player 0 draws|Banker 6 draws against 6|"}};
  for (const auto& [cards, told] : rows) {
    NextCards(cards);
    Deal();
    Open(prcShowHands);
    EXPECT_EQ(fncPiped(frmHands.lblReasons.Text), told);
  }
}

TEST_F(EveningWindows, TheListIsFilteredByShoeAndResult) {
  PlayThree();
  Shuffle(2);
  Shuffle(3);  // The one before dealt no hand.
  DealResult("P");
  Open(prcShowHands);
  const auto shown = [] { return frmHands.grdHands.Grid->Rows; };
  headless::Click(frmHands.optResult[2]);
  EXPECT_EQ(shown(), (std::vector<std::int32_t>{2, 4}));
  prcSetValue(frmHands.Shoe.sldShoe, 2);
  EXPECT_EQ(shown(), (std::vector<std::int32_t>{4}));
  EXPECT_EQ(frmHands.Shoe.lblShoe.Text, "Shoe 2 of 2");
  headless::Click(frmHands.optResult[1]);
  EXPECT_TRUE(shown().empty());
  EXPECT_EQ(frmHands.lblHand.Text, "No such hand.");
  prcShowHand(3);
  EXPECT_EQ(frmHands.lblHand.Text, "Hand 3, shoe 1: a tie") << "shown though the filter hid it";
}

TEST_F(EveningWindows, WhatIsListedIsCopiedAndSavedAndAFailureIsTold) {
  Bet(betBanker, 0, "5");
  Bet(betTie, 0, "1");
  Bet(betPlayer, 1, "2");
  NextCards({3, 13, 2, 4, 6, 2});  // 5 draws 6 and has 1; 4 draws against it and has 6.
  Deal();
  Open(prcShowCourse);
  Open(prcShowHands);
  headless::Click(frmHands.cmdCopy);
  const std::string copied = headless::Copied().front();
  EXPECT_EQ(copied.substr(copied.find('\n')),
            "\n1,1,8,3S 2H 6D,KC 4D 2D,1,6,Banker,\"Player 5 draws, Banker 4 draws against 6\",10,"
            "50,0,10,1000,1037.5,1000,0,20,0,1000,980,1000,no\r\n");
  constexpr const char* strFailed = "The file could not be saved: Could not be written";
  const std::tuple<Control*, std::string, std::string> rows[] = {
      {&frmHands.cmdSave, Folder() + "/hands.csv", ""},
      {&frmHands.cmdSave, "", ""},  // The dialog is given up.
      {&frmHands.cmdSave, Folder() + "/missing/hands.csv", strFailed},
      {&frmCourse.cmdSave, Folder() + "/missing/course.png", strFailed}};
  for (const auto& [button, path, told] : rows) {
    user::ForgetBoxes();
    headless::SaveAs(path);
    headless::Click(*button);
    EXPECT_EQ(LastBox(), told) << path;
  }
  EXPECT_EQ(fncFile(Folder() + "/hands.csv"), copied);
}

TEST_F(EveningWindows, AHandThatWaitsForItsCardsIsNotThereAndWindowsMayCloseMeanwhile) {
  PlayThree();
  Open(prcShowHands);
  Open(prcShowCourse);
  headless::After(1500, [] {
    EXPECT_EQ(frmHands.grdHands.Grid->Rows.size(), 3U);
    headless::Close(frmHands.Form);
    headless::Click(frmCourse.cmdClose);
  });
  DealResult("B");
  EXPECT_EQ(std::int32_t{frmHands.Form.hWnd} + std::int32_t{frmCourse.Form.hWnd}, 0);
  EXPECT_NE(Stored("frmCourse", "Left"), "No");
  Open(prcShowHands);
  EXPECT_EQ(frmHands.grdHands.Grid->Rows.size(), 4U);
}

TEST_F(EveningWindows, TheCurveGoesOverTheHandsAndTellsThem) {
  Open(prcShowCourse);
  EXPECT_EQ(frmCourse.crtMoney.Spoken, "Course of the money: no hand has been settled yet.");
  headless::Click(frmCourse.crtMoney);
  PlayThree();
  EXPECT_EQ(Chart().Lines[0].Points, (Points{{0, 1000}, {1, 1095}, {2, 995}, {3, 995}}));
  EXPECT_EQ(Chart().Lines[1].Name, "Player 2");
  EXPECT_EQ(Chart().Ticks.size(), 1U);
  EXPECT_EQ(Chart().Bands.size(), 4U);
  headless::Pick(frmCourse.crtMoney, 2);
  EXPECT_EQ(frmCourse.lblPointed.Text,
            "Hand 2, shoe 1: Player to Banker 9 to 7.  Player 1: $995, lost $100.  Player 2: "
            "$1,050, won $50.");
  headless::Click(frmCourse.optSeat[0]);
  EXPECT_EQ(frmCourse.crtMoney.ListIndex, 2) << "the hand pointed at stays so";
  EXPECT_EQ(Chart().Lines[1].Name, "Stake");
  headless::Click(frmCourse.crtMoney);
  EXPECT_EQ(frmHands.lblHand.Text.substr(0, 14), frmCourse.lblPointed.Text.substr(0, 14));
}

TEST_F(EveningWindows, LuckIsThatOfTheEveningWorkedByHandOnTheHelpsPage) {
  Bet(betBanker, 0, "10");
  Bet(betTie, 1, "1");
  for (const char* result : {"B", "P", "B"}) {
    DealResult(result);
    Bet(betBanker, 0, "10");
  }
  Open(prcShowCourse);
  EXPECT_EQ(frmCourse.lblOutcome.Text, "Won $80") << "both seats";
  headless::Click(frmCourse.optSeat[0]);
  EXPECT_EQ(Rows(frmCourse.grdEdge), (Lines{" Banker|$300|1.06 %|$3|", " Player|$0||$0|",
                                            " Tie|$0||$0|", " All|$300|1.06 %|$3|"}));
  EXPECT_TRUE(frmCourse.lblOutcome.ForeColor == fncMoneyInk(90));
  EXPECT_EQ(fncPiped(frmCourse.lblLuck.Text),
            "Player 1, whole evening: 3 hands with a bet.|Staked $300; on average the house keeps "
            "$3 of that.|Good luck gave $93: 0.6 standard deviations of $161.|Of 100 players with "
            "the same bets 55 would have done worse, 17 better.|These shares are exact for full "
            "shoes.");
  EXPECT_NEAR(fncLuck({.Seat = 0}).Worse, 0.549505, 1e-6);
  EXPECT_NEAR(fncLuck({}).Worse, 0.548643, 1e-6);
  headless::Click(frmCourse.cmdPrint);
  EXPECT_EQ(headless::Printed(), Lines{"Course of the Money"});
}

TEST_F(EveningWindows, ALongEveningIsReckonedInPortionsWhileItsWindowIsOpen) {
  PlayThree();
  while (colEveningHands.size() < 4003) {
    const auto chips = static_cast<std::int16_t>(colEveningHands.size() % 17);
    EveningHand hand = colEveningHands[colEveningHands.size() % 3];
    hand.Chips[1] = {1, 0, chips};
    hand.Paid[1] = {10, 0, chips * 10};
    colEveningHands.push_back(hand);
  }
  prcShowCourse();
  const auto reckoned = [] { return Chart().Bands.front().Spans.back().X; };
  const auto drawn = [] { return Chart().Lines.front().Points.back().X; };
  EXPECT_LT(reckoned(), 4003);
  EXPECT_TRUE(frmCourse.lblLuck.Text.ends_with("is being reckoned..."));
  EXPECT_EQ(drawn(), 4003);
  headless::Wait(1000);
  EXPECT_EQ(reckoned(), 4003);
  EXPECT_TRUE(frmCourse.lblLuck.Text.ends_with(" percent."));
  EXPECT_FALSE(frmCourse.tmrFollow.Enabled);
  const EveningHand last = colEveningHands.back();
  colEveningHands.resize(4303, last);
  prcFollowCourse();
  headless::Wait(150);
  EXPECT_EQ(drawn(), 4303) << "the curve follows a run at once";
}

TEST_F(EveningWindows, AChangedStakeStepsTheBaseLineAndAResetIsMarkedAtOnce) {
  PlayThree();
  Open(prcShowCourse);
  headless::Click(frmCourse.optSeat[0]);
  headless::WhileModal([] {
    headless::Type(frmStatistics.mskSteak[0], "1500");
    headless::Click(frmStatistics.Command1);
  });
  prcStatistics();
  headless::Wait(300);
  EXPECT_EQ(Chart().Lines[1].Points, (Points{{0, 1000}, {3, 1000}, {3, 1500}}));
  Bet(betBanker, 0, "20");
  DealResult("P");
  ResetStatistics();
  headless::Wait(300);
  const auto reset = [] {
    const ChartMark& mark = Chart().Marks.back();
    return mark.Text == "Statistics reset" ? mark.At : ChartPoint{};
  };
  EXPECT_EQ(reset(), (ChartPoint{4, 1295}));
  Follow("P");
  EXPECT_EQ(reset(), (ChartPoint{4, 1295})) << "it stays where it was";
  const Points lines[] = {
      {{0, 1000}, {1, 1095}, {2, 995}, {3, 995}, {4, 1295}, {5, 1500}},
      {{0, 1000}, {3, 1000}, {3, 1500}, {5, 1500}},
      {{1, 1095}, {3, 895}},  // The fall ends where the stake changes and goes on from there,
      {{3, 1395}, {4, 1295}},
      {{1, 1095}, {2, 995}, {3, 995}},  // and so does the run.
      {{3, 1495}, {4, 1295}}};
  for (std::size_t n = 0; n < std::size(lines); ++n) {
    EXPECT_EQ(Chart().Lines.at(n).Points, lines[n]) << n;
  }
  const ChartSpan band = Chart().Bands[1].Spans.back();
  EXPECT_EQ((std::array{band.Low, band.High}), (std::array{1500.0, 1890.0}))
      << "the band goes with stake and reset";
}

TEST_F(EveningWindows, AShoeIsTakenAsAnEveningOfItsOwn) {
  Bet(betBanker, 0, "50");
  DealResult("P");
  Shuffle(2);
  Bet(betPlayer, 0, "10");
  NextResult("PBBTBPBTBP");
  Deal(10);
  Open(prcShowCourse);
  headless::Click(frmCourse.optSeat[0]);
  prcSetValue(frmCourse.Shoe.sldShoe, 1);
  prcSetValue(frmCourse.Shoe.sldShoe, 2);
  EXPECT_EQ(frmCourse.crtMoney.Spoken,
            "Course of the money over 10 hands. Player 1 came with $500 and has $300, had most, "
            "$600 behind hand 2, and least, $200 behind hand 10. The deepest fall was $400, from "
            "hand 2 to 10. Most losses in a row: 3.");
  headless::Pick(frmCourse.crtMoney, 0);
  EXPECT_EQ(frmCourse.lblPointed.Text, "Before the first hand of shoe 2");
  const auto& band = Chart().Bands.front().Spans;
  EXPECT_EQ(band.front().Low, band.front().High) << "nothing has been bet yet";
  EXPECT_EQ((std::array{band[2].Low, band[2].High}), (std::array{300.0, 700.0}));
}

TEST_F(EveningWindows, TheRecordLosesTheBetsOfAHandInWhichTheStatisticsAreReset) {
  Bet(betBanker, 0, "5");
  headless::After(1000, ResetStatistics);
  DealResult("P");
  EXPECT_EQ(Money(0), (std::vector<double>{1000, 1000})) << "the bet went without a refund";
  EXPECT_TRUE(colEveningHands[0].Reset);
}

TEST_F(EveningWindows, TheRecordGoesByWhatWasPaidWhereTheChipValueChangedSince) {
  Bet(betBanker, 0, "5");
  Bet(betPlayer, 1, "5");
  headless::Type(BaccTable.txtUnitValue, "20");
  user::Tab(BaccTable.Form);
  DealResult("B");
  EXPECT_EQ(Money(0), (std::vector<double>{1000, 1095})) << "$50 win $95";
  EXPECT_EQ(Money(1), (std::vector<double>{1000, 950})) << "$50 lose $50";
  EXPECT_EQ(Stored("Player1Stats", "Turnover"), "50");
  const Luck luck = fncLuck({.Seat = 0});
  EXPECT_EQ(luck.Staked[betBanker], 50);
  EXPECT_NEAR(luck.Cost[betBanker], 0.446247 * 50 - 0.458597 * 95, 0.001) << "as the words say";
}

TEST_F(EveningWindows, TheRecordOfOddSettingsDoesNotEndTheGame) {
  prcFreshGame(Folder());
  Setting("Player1Stats", "Stake", "3000000000");
  Setting("Misc", "UnitValue", "5000000000");
  Start();
  Shuffle();
  Deal();
  EXPECT_FALSE(headless::Ended());
  EXPECT_EQ(Money(0), (std::vector<double>{3000000000, 3000000000}));
  Setting("Player2Stats", "Stake", '1' + std::string(39, '0'));
  Deal();
  prcShowCourse();
  EXPECT_EQ(frmCourse.lblPointed.Text,
            "Course of the money: amounts beyond $1,000,000,000,000 are not drawn.");
}

}  // namespace
