#include <gtest/gtest.h>

#include <QAccessible>
#include <QImage>

#include "betting/frmStatistics.h"
#include "reveal/CardReveal.h"
#include "tests/Game.h"
#include "tests/qt/stage/Stage.h"

// What the sweep of all controls does not show of the one road in: what comes of it for the game.

namespace {

using namespace stage;

/// A table open for bets, each seat with its 1000.
class Input : public Game {
 protected:
  void SetUp() override {
    Game::SetUp();
    Setting("File", "Learn", "True");
    Start();
    Shuffle();
  }

  static void Keys(const std::string& text) { std::ranges::for_each(text, prcTypeCharacter); }

  /// Opens the statistics and runs act there.
  static void InStatistics(const std::function<void()>& act) {
    user::WhileModal(act);
    user::Click(MDIForm1.mnuStatistics);
  }

  Control& box_ = BaccTable.txtBankerBet[0];
};

TEST_F(Input, APressThatMovesALittleKeepsTheSelection) {
  user::Type(box_, "5");
  user::Click(BaccTable.txtTieBet[0]);
  user::Press(box_, 60, 60);
  user::Drag(box_, 30, 60);
  user::Release(box_, 30, 60);
  Keys("7");
  EXPECT_EQ(box_.Text, "7");
}

TEST_F(Input, ARefusedBoxIsTypedOver) {
  const struct {
    Control& Box;
    const char* Bad;
  } rows[] = {
      {box_, ""}, {box_, "101"}, {BaccTable.txtTieBet[1], "51"}, {BaccTable.txtUnitValue, "15"}};
  for (const auto& row : rows) {
    const std::size_t told = user::Boxes().size();
    user::Type(row.Box, row.Bad);
    prcKey(Qt::Key_Tab);
    EXPECT_EQ(user::Boxes().size(), told + 1) << row.Bad;
    Keys("5");
    EXPECT_EQ(row.Box.Text, "5") << row.Bad;
    user::Type(row.Box, "10");
    user::Click(BaccTable.txtTieBet[0]);
  }
  InStatistics([] {
    user::Type(frmStatistics.mskSteak[0], "99999999");
    prcKey(Qt::Key_Tab);
    Keys("1500");
    EXPECT_EQ(frmStatistics.mskSteak[0].Text, "1500");
  });
}

TEST_F(Input, WhatAnAssistiveToolPutsIntoABoxIsCheckedAsItIsLeft) {
  const auto put = [](const Control& box, const char* text) {
    QAccessible::queryAccessibleInterface(fncWidget(box))
        ->setText(QAccessible::Value, QString::fromLatin1(text));
  };
  put(BaccTable.txtTieBet[0], "4x2");
  EXPECT_EQ(BaccTable.Form.ActiveControl, &BaccTable.txtTieBet[0]);
  EXPECT_EQ(BaccTable.txtTieBet[0].Text, "42");
  put(box_, "101");
  EXPECT_EQ(dblPlayerTotal[0], 580);
  put(BaccTable.txtTieBet[1], "3");
  EXPECT_EQ(BaccTable.txtTieBet[1].Text, "0") << "a refusal keeps the focus and the text";
  EXPECT_EQ(BaccTable.Form.ActiveControl, &box_);
}

TEST_F(Input, ClosingTheStatisticsLeavesItsBox) {
  InStatistics([] {
    user::Type(frmStatistics.mskSteak[0], "99999999");
    user::Close(frmStatistics.Form);
    EXPECT_TRUE(frmStatistics.Form.Visible) << "a refusal keeps the window";
    user::Type(frmStatistics.mskSteak[0], "1500");
    user::Close(frmStatistics.Form);
    EXPECT_FALSE(frmStatistics.Form.Visible);
  });
  EXPECT_EQ(dblPlayerTotal[0], 1500);
  EXPECT_EQ(fncGetSetting("Player1Stats", "Stake"), 1500);
}

TEST_F(Input, AdviceComesByTab) {
  for (const int n : {0, 1, 3, 4}) {
    BaccTable.pctCardBack[n].Visible = BaccTable.pctCardFace[n].Visible = true;
    blnCardClickable[n] = true;
  }
  BaccTable.blnCardsPlaced = true;
  intPlayerValue1[0] = 5;
  pctCardBack_Click(0);
  fncSetFocus(BaccTable.pctCardBack[1]);
  BaccTable_MouseMove();
  user::Settle();
  prcKey(Qt::Key_Tab);
  prcKey(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(BaccTable.Form.ActiveControl, &BaccTable.pctCardBack[1]);
  EXPECT_TRUE(BaccTable.blnCardNeedShown && BaccTable.lblCardNeedP.Visible);
}

TEST_F(Input, EmptyPlacesOfAMaskShowThePromptWhileTyped) {
  const auto ink = [this] {
    user::Settle();
    return fncWidget(box_)->grab().toImage();
  };
  user::Type(box_, "1");
  const QImage prompted = ink();
  box_.Prompt = ' ';
  EXPECT_NE(prompted, ink());
  user::Type(box_, "100");
  const QImage full = ink();
  box_.Prompt = '_';
  EXPECT_EQ(full, ink()) << "no place is empty";
}

}  // namespace
