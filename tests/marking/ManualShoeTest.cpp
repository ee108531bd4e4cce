#include <vector>

#include "marking/ManualShoe.h"
#include "tests/marking/MarkingFixture.h"

namespace {

class ManualShoeTest : public MarkingTest {
 protected:
  void SetUp() override {
    MarkingTest::SetUp();
    BaccTable.txtUnitValue.Text = "10";
  }
};

TEST_F(ManualShoeTest, SettlesEveryBetOnEveryResult) {
  struct Case {
    double Player, Banker, Tie;
    const char* Result;
    double Win, Loss;
    std::optional<Integer> Units;
  };
  const std::vector<Case> cases{
      {0, 5, 0, "B", 47.5, 0, Integer(5)}, {0, 5, 0, "P", 0, 50, Integer(-5)},
      {0, 5, 0, "T", 0, 0, Integer(0)},    {4, 0, 0, "B", 0, 40, Integer(-4)},
      {4, 0, 0, "P", 40, 0, Integer(4)},   {4, 0, 0, "T", 0, 0, Integer(0)},
      {0, 0, 2, "B", 0, 20, Integer(-2)},  {0, 0, 2, "P", 0, 20, Integer(-2)},
      {0, 0, 2, "T", 160, 0, Integer(16)}, {0, 3, 1, "B", 28.5, 10, Integer(2)},
      {0, 3, 1, "P", 0, 40, Integer(-4)},  {0, 3, 1, "T", 80, 0, Integer(8)},
      {3, 0, 1, "P", 30, 10, Integer(2)},  {3, 0, 1, "B", 0, 40, Integer(-4)},
      {1, 0, 1, "P", 10, 10, Integer(0)},  {0, 0, 0, "B", 0, 0, std::nullopt},
      {0, 0, 0, "P", 0, 0, std::nullopt},  {0, 0, 0, "T", 0, 0, std::nullopt},
      {0, 1, 0, "B", 9.5, 0, Integer(1)},  {999, 0, 99, "T", 7920, 0, Integer(792)},
  };
  for (const Case& each : cases) {
    dblHandWin = dblHandLoss = 77;
    prcHand(each.Result[0]);
    ManualShoe(each.Player, each.Banker, each.Tie, 1);
    const auto bets = ::testing::Message() << "P" << each.Player << " B" << each.Banker << " T"
                                           << each.Tie << " on " << each.Result;
    EXPECT_DOUBLE_EQ(dblHandWin, each.Win) << bets;
    EXPECT_DOUBLE_EQ(dblHandLoss, each.Loss) << bets;
    EXPECT_EQ(varHandUnits[0], each.Units) << bets;
  }
}

TEST_F(ManualShoeTest, SecondSeatMovesMoneyButNeitherUnitsNorMarks) {
  MarkCardWindow& form = fncOpen();
  prcHand('B');
  ManualShoe(0, 0, 0, 1);
  ManualShoe(0, 6, 1, 2);
  EXPECT_DOUBLE_EQ(dblHandWin, 57);
  EXPECT_DOUBLE_EQ(dblHandLoss, 10);
  EXPECT_EQ(varHandUnits[0], std::nullopt);
  EXPECT_EQ(intRun[0], 1);
  EXPECT_EQ(form.lblTBP.at(0).Text, "");
}

TEST_F(ManualShoeTest, FirstSeatsHandIsOnTheCard) {
  MarkCardWindow& form = fncOpen();
  prcHand('P');
  ManualShoe(0, 3, 1, 1);
  EXPECT_TRUE(form.shpTBP.at(0).Visible);
  EXPECT_EQ(form.lblTBP.at(0).Text, "4");
  EXPECT_EQ(form.lblTBP.at(0).ForeColor, clrDarkRed);
  EXPECT_EQ(form.lblTotal.at(0).Text, "-4");
}

}  // namespace
