#include "shell/CardsDealt.h"
#include "table/BaccTable.h"
#include "table/Cards.h"
#include "tests/shell/RunningProgram.h"

namespace {

class CardsDealt : public RunningProgram {};

TEST_F(CardsDealt, ACountStandsInTheColumnOfItsSuit) {
  prcPlay();
  prcInitCardsDealtCount();
  for (int suit = 1; suit <= 4; ++suit) {
    varCardsDealtCount[0].Suit[suit] = suit;
    varCardsDealtCount[11].Suit[suit] = 9 - suit;
  }
  LoadlstCardsDealtCount();
  const std::vector<std::string>& rows = frmCardsDealtCount.lstCardsDealtCount.List;
  ASSERT_EQ(rows.size(), 13U);
  //                           123456789012345678901
  EXPECT_EQ(rows[0], /*     */ "1    1  2  3  4      ");
  EXPECT_EQ(rows[9], /*     */ "10   0  0  0  0      ");
  EXPECT_EQ(rows[10], /*    */ "Jack 0  0  0  0      ");
  EXPECT_EQ(rows[11], /*    */ "Queen8  7  6  5      ");
  EXPECT_EQ(rows[12], /*    */ "King 0  0  0  0      ");
  LoadlstCardsDealtCount();
  EXPECT_EQ(rows.size(), 13U);
}

TEST_F(CardsDealt, TheListFillsUnseenAndOutlivesItsClosing) {
  prcPlay();
  headless::Click(BaccTable.maisyk);
  const std::size_t burnt = frmCardsDealt.lstCardsDealt.List.size();
  EXPECT_GE(burnt, 2U);
  EXPECT_FALSE(frmCardsDealt.Form.Visible);
  headless::Click(MDIForm1.mnuShowCardsDealt);
  headless::Click(MDIForm1.mnuShowCardsDealt);
  frmCardsDealt.Form.Top = 1200;
  headless::Close(frmCardsDealt.Form);

  EXPECT_FALSE(frmCardsDealt.Form.Visible);
  EXPECT_EQ(MDIForm1.mnuShowCardsDealt.Value, 0);
  EXPECT_EQ(fncToolButton("CardsDealt").Value, 0);
  EXPECT_EQ(fncKey("Card Options", "Show Cards Dealt"), "False");
  EXPECT_EQ(fncKey("frmCardsDealt", "Top"), "1200");
  prcAddCardsDealt("one more");
  headless::Click(fncToolButton("CardsDealt"));
  EXPECT_TRUE(frmCardsDealt.Form.Visible);
  EXPECT_EQ(frmCardsDealt.lstCardsDealt.List.size(), burnt + 1);
  EXPECT_EQ(frmCardsDealt.lstCardsDealt.ListIndex, static_cast<int>(burnt));

  headless::Answer(platform::Answer::Ok);
  headless::Click(BaccTable.maisyk);
  EXPECT_EQ(frmCardsDealt.lstCardsDealt.List.front().size(), 21U);
}

TEST_F(CardsDealt, TheCountClosesForGoodUntilItIsSwitchedOnAgain) {
  prcPlay("[frmCardsDealtCount]\r\nTop=300\r\nLeft=450.5\r\n");
  EXPECT_EQ(frmCardsDealtCount.Form.Left, 450.5);
  frmCardsDealtCount.Form.Left = 900;
  headless::Close(frmCardsDealtCount.Form);
  EXPECT_EQ(frmCardsDealtCount.Form.hWnd, 0);
  EXPECT_FALSE(blnShowCardsDealtCount);
  EXPECT_EQ(MDIForm1.mnuShowCardsDealtCount.Value, 0);
  EXPECT_EQ(fncToolButton("CardsDealtCount").Value, 0);
  EXPECT_EQ(fncKey("Card Options", "Show Cards Dealt Count"), "False");

  headless::Click(BaccTable.maisyk);
  EXPECT_EQ(frmCardsDealtCount.Form.hWnd, 0);
  headless::Click(fncToolButton("CardsDealtCount"));
  EXPECT_TRUE(frmCardsDealtCount.Form.Visible);
  EXPECT_EQ(frmCardsDealtCount.Form.Top, 300);
  EXPECT_EQ(frmCardsDealtCount.Form.Left, 900);
}

TEST_F(CardsDealt, KeepOnTopIsRememberedForEachWindow) {
  const struct {
    Window& Form;
    Control& OnTop;
    const char* Key;
  } rows[] = {
      {frmCardsDealt.Form, frmCardsDealt.chkOnTop, "CardsDealtOnTop"},
      {frmCardsDealtCount.Form, frmCardsDealtCount.chkOnTop, "CardsDealtCountOnTop"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.Key);
    // The load checks the box, which runs its click: the key is written anew.
    prcPlay(std::string("[Misc]\r\n") + row.Key + " = 1\r\n");
    prcClearCardsDealt();
    EXPECT_EQ(row.OnTop.Value, 1);
    EXPECT_TRUE(row.Form.Topmost);
    EXPECT_NE(fncFile().find(std::string(row.Key) + "=1\r\n"), std::string::npos);

    row.Form.Visible = true;
    headless::Click(row.OnTop);
    EXPECT_FALSE(row.Form.Topmost);
    EXPECT_EQ(fncKey("Misc", row.Key), "0");
    headless::Click(row.OnTop);
    EXPECT_TRUE(row.Form.Topmost);
    EXPECT_EQ(fncKey("Misc", row.Key), "1");
  }
}

}  // namespace
