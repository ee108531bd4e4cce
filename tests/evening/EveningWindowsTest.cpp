#include <algorithm>
#include <fstream>

#include "betting/frmStatistics.h"
#include "evening/Course.h"
#include "evening/Csv.h"
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

class EveningWindows : public Game {
 protected:
  void SetUp() override {
    Game::SetUp();
    Start();
    Shuffle();
  }

  /// A won Banker bet of 10 chips, a lost one beside 5 chips of seat 1, and a tie without bets.
  static void PlayThree() {
    Bet(betBanker, 0, "10");
    DealResult("B");
    Bet(betPlayer, 1, "5");
    DealResult("P");
    DealResult("T");
  }

  static void Open(void (*prcShowWindow)()) {
    prcShowWindow();
    headless::Wait(300);
  }

  /// The rows of a grid, columns separated by "|", as they are seen.
  static std::vector<std::string> Rows(const Control& grid) {
    std::vector<std::string> rows;
    for (const std::int32_t number : grid.Grid->Rows) {
      std::string row;
      for (int column = 0; column < std::ssize(grid.Grid->Columns); ++column) {
        const std::string cell = grid.Grid->Cell(number, column);
        row += cell.substr(std::min(cell.find_first_not_of(' '), cell.size())) + "|";
      }
      rows.push_back(row);
    }
    return rows;
  }

  /// What a seat owned in front of the first hand and behind each.
  static std::vector<double> Money(Integer seat) {
    std::vector<double> money;
    std::ranges::transform(fncCurve(seat), std::back_inserter(money), &CurvePoint::Money);
    return money;
  }

  static const ChartLine& Line(const std::string& name) {
    const auto& lines = frmCourse.crtMoney.Chart->Lines;
    const auto line = std::ranges::find(lines, name, &ChartLine::Name);
    return line == lines.end() ? throw std::logic_error("no line " + name) : *line;
  }
};

using Lines = std::vector<std::string>;

TEST_F(EveningWindows, TheListShowsEachSettledHandAndFollowsThePlay) {
  Open(prcShowHands);
  EXPECT_EQ(frmHands.lblHand.Text, "No hand has been settled yet.");
  PlayThree();
  headless::Wait(300);
  const Lines rows = Rows(frmHands.grdHands);
  EXPECT_TRUE(rows[0].starts_with("1|1|")) << rows[0];
  EXPECT_TRUE(rows[0].ends_with("|9|Banker|B $100|$1,095||$1,000|")) << rows[0];
  EXPECT_TRUE(rows[1].ends_with("|7|Player|B $100|$995|P $50|$1,050|")) << rows[1];
  EXPECT_TRUE(rows[2].ends_with("|7|Tie||$995|P $50|$1,050|")) << rows[2];
  EXPECT_EQ(frmHands.grdHands.ListIndex, 2) << "who looks at the last hand goes on to the new one";
  headless::Pick(frmHands.grdHands, 1);
  EXPECT_EQ(frmHands.lblHand.Text, "Hand 2, shoe 1: Player wins");
  EXPECT_EQ(frmHands.lblReasons.Text,
            "Player 9 is a natural\r\nBanker 7 gets no card against a natural\r\n");
  EXPECT_EQ(frmHands.lblSide[0].Text + ", " + frmHands.lblSide[1].Text, "PLAYER  9, BANKER  7");
  EXPECT_EQ(int{frmHands.pctCard[0].Picture}, int{colEveningHands[1].Cards[0]});
  EXPECT_FALSE(frmHands.pctCard[2].Visible);
  DealResult("B");
  headless::Wait(300);
  EXPECT_EQ(frmHands.grdHands.ListIndex, 1) << "who looks at another stays there";
}

TEST_F(EveningWindows, TheListIsFilteredByShoeAndResult) {
  PlayThree();
  headless::Answer(platform::Answer::Ok);
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

TEST_F(EveningWindows, WhatIsListedIsCopiedAndSavedAndAFailureLosesNothing) {
  PlayThree();
  Open(prcShowHands);
  headless::Click(frmHands.cmdCopy);
  headless::SaveAs(Folder() + "/hands.csv");
  headless::Click(frmHands.cmdSave);
  std::ifstream file(Folder() + "/hands.csv", std::ios::binary);
  const std::string saved{std::istreambuf_iterator<char>(file), {}};
  EXPECT_EQ(saved, headless::Copied().front());
  headless::Click(frmHands.cmdSave);
  EXPECT_TRUE(headless::Boxes().empty()) << "the dialog was given up";
  for (const auto& [button, path] : {std::pair{&frmHands.cmdSave, "/missing/hands.csv"},
                                     std::pair{&frmCourse.cmdSave, "/missing/course.png"}}) {
    Open(prcShowCourse);
    headless::SaveAs(Folder() + path);
    headless::Click(*button);
    EXPECT_EQ(LastBox(), "The file could not be saved: Could not be written");
  }
  EXPECT_EQ(Rows(frmHands.grdHands).size(), 3U);
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
  headless::Wait(300);
  EXPECT_EQ(Line("Player 1").Points,
            (std::vector<ChartPoint>{{0, 1000}, {1, 1095}, {2, 995}, {3, 995}}));
  EXPECT_EQ(frmCourse.crtMoney.Chart->Ticks.size(), 1U);
  EXPECT_EQ(frmCourse.crtMoney.Chart->Bands.size(), 4U);
  headless::Pick(frmCourse.crtMoney, 2);
  EXPECT_EQ(frmCourse.lblPointed.Text,
            "Hand 2, shoe 1: Player to Banker 9 to 7.  Player 1: $995, lost $100.  Player 2: "
            "$1,050, won $50.");
  headless::Click(frmCourse.optSeat[0]);
  EXPECT_EQ(frmCourse.crtMoney.ListIndex, 2) << "the hand pointed at stays so";
  EXPECT_THROW(Line("Player 2"), std::logic_error);
  EXPECT_EQ(frmCourse.crtMoney.Spoken,
            "Course of the money over 3 hands. Player 1 came with $1,000 and has $995, had most, "
            "$1,095 behind hand 1, and least, $995 behind hand 2. The deepest fall was $100, from "
            "hand 1 to 2. Most losses in a row: 1.");
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
  EXPECT_EQ(Rows(frmCourse.grdEdge), (Lines{"Banker|$300|1.06 %|$3|", "Player|$0||$0|",
                                            "Tie|$0||$0|", "All|$300|1.06 %|$3|"}));
  EXPECT_TRUE(frmCourse.lblOutcome.ForeColor == fncMoneyInk(90));
  EXPECT_EQ(fncPiped(frmCourse.lblLuck.Text),
            "Player 1, whole evening: 3 hands with a bet.|Staked $300; on average the house keeps "
            "$3 of that.|Good luck gave $93: 0.6 standard deviations of $161.|Of 100 players with "
            "the same bets 55 would have done worse, 17 better.|These shares are exact for full "
            "shoes.");
  EXPECT_NEAR(fncLuck({.Seat = 0}).Worse, 0.549505, 1e-6);
  EXPECT_NEAR(fncLuck({.Seat = 0}).Better, 0.168943, 1e-6);
  headless::Click(frmCourse.cmdPrint);
  EXPECT_EQ(headless::Printed(), Lines{"Course of the Money"});
}

TEST_F(EveningWindows, ALongEveningIsReckonedInPortionsWhileItsWindowIsOpen) {
  PlayThree();
  for (int n = 0; n < 4000; ++n) {
    EveningHand hand = fncEveningHand(n % 3 + 1);
    hand.Paid[1] = {10, 0, n % 17 * 10};
    hand.Chips[1] = {1, 0, static_cast<std::int16_t>(n % 17)};
    colEveningHands.push_back(hand);
  }
  prcShowCourse();
  const auto reckoned = [] { return frmCourse.crtMoney.Chart->Bands.front().Spans.back().X; };
  EXPECT_LT(reckoned(), 4003);
  EXPECT_TRUE(frmCourse.lblLuck.Text.ends_with("is being reckoned..."));
  EXPECT_EQ(Line("Player 1").Points.back().X, 4003);
  headless::Wait(1000);
  EXPECT_EQ(reckoned(), 4003);
  EXPECT_TRUE(frmCourse.lblLuck.Text.ends_with(" percent."));
  EXPECT_FALSE(frmCourse.tmrFollow.Enabled);
  for (int n = 0; n < 300; ++n) {
    colEveningHands.push_back(colEveningHands.back());
  }
  prcFollowCourse();
  headless::Wait(150);
  EXPECT_EQ(Line("Player 1").Points.back().X, 4303) << "the curve follows a run at once";
}

TEST_F(EveningWindows, AChangedStakeStepsTheBaseLineAndAResetIsMarkedAtOnce) {
  using Points = std::vector<ChartPoint>;
  PlayThree();
  Open(prcShowCourse);
  headless::Click(frmCourse.optSeat[0]);
  headless::WhileModal([] {
    headless::Type(frmStatistics.mskSteak[0], "1500");
    headless::Click(frmStatistics.Command1);
  });
  prcStatistics();
  headless::Wait(300);
  EXPECT_EQ(Line("Stake").Points, (Points{{0, 1000}, {3, 1000}, {3, 1500}}));
  Bet(betBanker, 0, "20");
  DealResult("P");
  headless::Wait(300);
  const auto& lines = frmCourse.crtMoney.Chart->Lines;
  EXPECT_EQ(lines[2].Points, (Points{{1, 1095}, {3, 895}, {3, 1395}, {4, 1295}}))
      << "the fall steps with the base line";
  EXPECT_EQ(lines[3].Points, (Points{{1, 1095}, {2, 995}, {3, 995}, {3, 1495}, {4, 1295}}))
      << "and so does the run";
  headless::Answer(platform::Answer::Ok);
  headless::WhileModal([] { headless::Click(frmStatistics.cmdResetStats); });
  prcStatistics();
  headless::Wait(300);
  const auto reset = [] {
    const ChartMark& mark = frmCourse.crtMoney.Chart->Marks.back();
    return mark.Text == "Statistics reset" ? mark.At : ChartPoint{};
  };
  EXPECT_EQ(reset(), (ChartPoint{4, 1295}));
  DealResult("P");
  headless::Wait(300);
  EXPECT_EQ(reset(), (ChartPoint{4, 1295})) << "it stays where it was";
  const ChartSpan band = frmCourse.crtMoney.Chart->Bands[1].Spans.back();
  EXPECT_EQ((std::array{band.Low, band.High}), (std::array{1500.0, 1890.0}))
      << "the band goes with stake and reset";
  EXPECT_EQ(Line("Stake").Points, (Points{{0, 1000}, {3, 1000}, {3, 1500}, {5, 1500}}));
  EXPECT_EQ(Line("Player 1").Points.back(), (ChartPoint{5, 1500}));
}

TEST_F(EveningWindows, AShoeIsTakenAsAnEveningOfItsOwn) {
  Bet(betBanker, 0, "50");
  DealResult("P");
  headless::Answer(platform::Answer::Ok);
  Shuffle(2);
  Bet(betPlayer, 0, "10");
  DealResult("P");
  DealResult("B");
  Open(prcShowCourse);
  headless::Click(frmCourse.optSeat[0]);
  prcSetValue(frmCourse.Shoe.sldShoe, 1);
  prcSetValue(frmCourse.Shoe.sldShoe, 2);
  EXPECT_EQ(frmCourse.crtMoney.Spoken,
            "Course of the money over 2 hands. Player 1 came with $500 and has $500, had most, "
            "$600 behind hand 2, and least, $500 behind hand 1. The deepest fall was $100, "
            "from hand 2 to 3. Most losses in a row: 1.");
  headless::Pick(frmCourse.crtMoney, 0);
  EXPECT_EQ(frmCourse.lblPointed.Text, "Before the first hand of shoe 2");
  const auto& band = frmCourse.crtMoney.Chart->Bands.front().Spans;
  EXPECT_EQ(band.front().Low, band.front().High) << "nothing has been bet yet";
  EXPECT_EQ((std::array{band.back().Low, band.back().High}), (std::array{300.0, 700.0}));
}

TEST_F(EveningWindows, TheRecordHoldsEachSettledHandWithTheMoneyBeforeAndBehindIt) {
  Bet(betBanker, 0, "5");
  Bet(betTie, 0, "1");
  Bet(betPlayer, 1, "2");
  NextCards({3, 13, 2, 4, 6, 2});  // 5 draws 6 and has 1; 4 draws against it and has 6.
  Deal();
  DealResult("T");
  const int first[] = {1};
  const std::string csv = fncHandsCsv(first);
  EXPECT_NE(csv.find("\r\n1,1,8,"), std::string::npos) << csv;
  EXPECT_TRUE(
      csv.ends_with(",1,6,Banker,\"Player 5 draws, Banker 4 draws against 6\",10,50,0,10,"
                    "1000,1037.5,1000,0,20,0,1000,980,1000,no\r\n"))
      << csv;
  EXPECT_EQ(Money(0), (std::vector<double>{1000, 1037.5, 1037.5}));
}

TEST_F(EveningWindows, TheRecordLosesTheBetsOfAHandInWhichTheStatisticsAreReset) {
  Bet(betBanker, 0, "5");
  headless::After(1000, [] {
    headless::WhileModal([] {
      headless::Answer(platform::Answer::Ok);
      headless::Click(frmStatistics.cmdResetStats);
      headless::Close(frmStatistics.Form);
    });
    headless::Click(MDIForm1.mnuStatistics);
  });
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
