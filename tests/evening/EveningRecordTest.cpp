#include <algorithm>

#include "betting/frmStatistics.h"
#include "evening/Course.h"
#include "evening/Csv.h"
#include "evening/Curve.h"
#include "evening/HandWords.h"
#include "evening/Luck.h"
#include "evening/Reasons.h"
#include "evening/Reckoning.h"
#include "shell/SettingsStore.h"
#include "tests/Game.h"

namespace {

class EveningRecord : public Game {
 protected:
  void SetUp() override {
    Game::SetUp();
    Start();
    Shuffle();
  }

  static std::string Money(Integer seat) {
    std::string text;
    for (const CurvePoint& point : fncCurve(seat)) {
      text += fncPlain(point.Money) + "/" + fncPlain(point.Stake) + " ";
    }
    return text;
  }
  static std::string fncPlain(double money) {
    std::string text = std::to_string(money);
    text.resize(text.find_last_not_of('0') + 1);
    return text.back() == '.' ? text.substr(0, text.size() - 1) : text;
  }
  /// Opens the statistics, where the user does something.
  static void InStatistics(const std::function<void()>& act) {
    user::WhileModal([act] {
      act();
      user::Close(frmStatistics.Form);
    });
    user::Click(MDIForm1.mnuStatistics);
  }
};

TEST_F(EveningRecord, HoldsEachSettledHandWithTheMoneyBeforeAndBehindIt) {
  Bet(betBanker, 0, "5");
  Bet(betTie, 0, "1");
  Bet(betPlayer, 1, "2");
  user::After(2000, [] { EXPECT_TRUE(colEveningHands.empty()) << "not settled yet"; });
  NextCards({3, 13, 2, 4, 6, 2});  // 5 draws 6 and has 1; 4 draws against it and has 6.
  Deal();
  DealResult("T");
  ASSERT_EQ(colEveningHands.size(), 2U);
  const int both[] = {1, 2};
  const std::string csv = fncHandsCsv(both);
  const std::size_t first = csv.find("\r\n1,1,8,");
  ASSERT_NE(first, std::string::npos) << csv;
  const std::string row = csv.substr(first + 2, csv.find("\r\n", first + 2) - first - 2);
  EXPECT_EQ(row.substr(row.find(",1,6,")),
            ",1,6,Banker,\"Player 5 draws, Banker 4 draws against 6\",10,50,0,10,1000,1037.5,1000,"
            "0,20,0,1000,980,1000,no");
  EXPECT_EQ(std::ranges::count(csv, '\n'), 3);
  const EveningHand suits{.Cards = {13, 14, 27, 49, 1, 0}};
  EXPECT_EQ(fncCardsBrief(suits, Side::Player, strSuitLetters), "KS AC AD");
  EXPECT_EQ(fncCardsBrief(suits, Side::Banker, strSuitLetters), "10H AS");
  EXPECT_EQ(Money(0), "1000/1000 1037.5/1000 1037.5/1000 ");
}

TEST_F(EveningRecord, CountsHandsOfARunAndShoesThatDealt) {
  Bet(betPlayer, 0, "1");
  NextResult("B");
  Deal(30);  // Lost bets are renewed between the hands.
  EXPECT_EQ(colEveningHands.size(), 30U);
  EXPECT_EQ(colEveningHands[29].Chips[0][betPlayer], 1);
  Shuffle(2);
  Shuffle(3);
  Deal();
  EXPECT_EQ(colEveningHands.back().Shoe, 2) << "the second shoe dealt no hand";
  const double won = dblPlayerWin[0];
  EXPECT_DOUBLE_EQ(colEveningHands.back().Money[0], 1000 + won);
}

TEST_F(EveningRecord, StepsWithTheStakeAndMarksAReset) {
  Bet(betBanker, 0, "5");
  DealResult("P");
  InStatistics([] {
    user::Type(frmStatistics.mskSteak[0], "1500");
    user::Tab(frmStatistics.Form);
  });
  DealResult("P");
  InStatistics([] {
    user::Answer(platform::Answer::Ok);
    user::Click(frmStatistics.cmdResetStats);
  });
  Bet(betBanker, 0, "1");
  DealResult("B");
  EXPECT_EQ(Money(0), "1000/1000 950/1000 1450/1500 1509.5/1500 ");
  EXPECT_FALSE(colEveningHands[1].Reset);
  EXPECT_TRUE(colEveningHands[2].Reset);
  fncReckonOn(0);
  const std::vector<CurvePoint> curve = fncCurve(0);
  EXPECT_EQ(curve[2].Band, (std::array{1450.0, 1450.0, 1547.5, 1547.5}))
      << "it goes with the stake";
  EXPECT_EQ(curve[3].Band, (std::array{1490.0, 1509.5, 1597.5, 1607.0})) << "and with the reset";
}

TEST_F(EveningRecord, LosesTheBetsOfAHandInWhichTheStatisticsAreReset) {
  Bet(betBanker, 0, "5");
  user::After(1000, [] {
    InStatistics([] {
      user::Answer(platform::Answer::Ok);
      user::Click(frmStatistics.cmdResetStats);
    });
  });
  DealResult("P");
  EXPECT_EQ(Money(0), "1000/1000 1000/1000 ") << "the bet went without a refund";
  EXPECT_EQ(fncNet(colEveningHands[0], 0), 0);
  EXPECT_TRUE(colEveningHands[0].Reset);
}

TEST_F(EveningRecord, GoesByWhatWasPaidWhereTheChipValueChangedSince) {
  Bet(betBanker, 0, "5");
  Bet(betPlayer, 1, "5");
  user::Type(BaccTable.txtUnitValue, "20");
  user::Tab(BaccTable.Form);
  DealResult("B");
  EXPECT_EQ(Money(0), "1000/1000 1095/1000 ") << "$50 win $95";
  EXPECT_EQ(Money(1), "1000/1000 950/1000 ") << "$50 lose $50";
  EXPECT_EQ(Stored("Player1Stats", "Turnover"), "50");
  const Luck luck = fncLuck({.Seat = 0});
  EXPECT_EQ(luck.Staked[betBanker], 50);
  EXPECT_NEAR(luck.Cost[betBanker], 0.446247 * 50 - 0.458597 * 95, 0.001) << "as the words say";
}

TEST_F(EveningRecord, OfOddSettingsDoesNotEndTheGame) {
  prcFreshGame(Folder());
  Setting("Player1Stats", "Stake", "3000000000");
  Setting("Misc", "UnitValue", "5000000000");
  Start();
  Shuffle();
  Deal();
  EXPECT_EQ(LastBox(), "");
  EXPECT_FALSE(user::Ended());
  EXPECT_EQ(Money(0), "3000000000/3000000000 3000000000/3000000000 ");
  Setting("Player2Stats", "Stake", '1' + std::string(39, '0'));
  Deal();
  prcShowCourse();
  EXPECT_EQ(frmCourse.lblPointed.Text,
            "Course of the money: amounts beyond $1,000,000,000,000 are not drawn.");
}

TEST(EveningReasons, FollowTheDrawRules) {
  struct Case {
    std::array<std::uint8_t, 6>
        Cards;  // By table position; of Spades, so that a card is its value.
    std::vector<std::string> Lines;
  };
  for (const Case& c : std::initializer_list<Case>{
           {{9, 13, 0, 2, 5, 0},
            {"Player 9 is a natural", "Banker 7 gets no card against a natural"}},
           {{4, 4, 0, 9, 9, 0}, {"Player 8 is a natural", "Banker 8 is a natural"}},
           {{2, 5, 0, 2, 3, 7}, {"Player 7 stands", "Banker 5 draws"}},
           {{1, 5, 0, 2, 4, 0}, {"Player 6 stands", "Banker 6 stands"}},
           {{1, 2, 8, 1, 2, 0}, {"Player 3 draws", "Banker 3 stands against 8"}},
           {{1, 2, 12, 1, 3, 0}, {"Player 3 draws", "Banker 4 stands against 0"}},
           {{10, 10, 6, 10, 6, 9}, {"Player 0 draws", "Banker 6 draws against 6"}}}) {
    EXPECT_EQ(fncReasons({.Cards = c.Cards}), c.Lines);
  }
}

TEST(EveningCurve, FindsTheDeepestFallAndTheLongestLosingRun) {
  colEveningHands.clear();
  // Bets of 1 chip on the Player: won, lost, tie, lost, won, lost, lost, none, lost, won.
  for (const char result : std::string("PBTBPBB-BP")) {
    EveningHand hand{.ChipValue = 10, .Decks = 8, .Result = result};
    hand.Chips[1][betPlayer] = result == '-' ? 0 : 1;
    hand.Paid[1][betPlayer] = result == '-' ? 0 : 10;
    hand.Result = result == '-' ? 'B' : result;
    colEveningHands.push_back(hand);
  }
  const Stretch fall = fncDeepestFall(1), run = fncLongestLosingRun(1);
  EXPECT_EQ((std::array{fall.From, fall.To}), (std::array{1, 9}));
  EXPECT_EQ(fall.Amount, 40);
  EXPECT_EQ((std::array{run.From, run.To}), (std::array{5, 9}));
  EXPECT_EQ(run.Amount, 3);
  EXPECT_EQ(fncLongestLosingRun(0).Amount, 0);
  colEveningHands.clear();
}

}  // namespace
