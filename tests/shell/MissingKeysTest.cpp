#include "betting/frmStatistics.h"
#include "marking/MarkCard.h"
#include "shell/CardsDealt.h"
#include "table/BaccTable.h"
#include "tests/shell/RunningProgram.h"

namespace {

/// What each key of the settings file counts as while the file does not hold it.
class MissingKeys : public RunningProgram {
 protected:
  void SetUp() override {
    RunningProgram::SetUp();
    prcPlay("");
  }
};

TEST_F(MissingKeys, EverySwitchIsOn) {
  for (const Control* entry :
       {&MDIForm1.mnuLearn, &MDIForm1.mnuCardFaceUpDown, &MDIForm1.mnuShowCardValues,
        &MDIForm1.mnuShowCardsDealt, &MDIForm1.mnuShowCardsDealtCount, &MDIForm1.mnuShowScore,
        &MDIForm1.mnuShowNaturals, &MDIForm1.mnuPlayerBlue, &MDIForm1.mnuDealDelay,
        &MDIForm1.mnuDealAnimation, &MDIForm1.mnuLargeButtons, &MDIForm1.mnuArrows}) {
    EXPECT_EQ(entry->Value, 1) << entry->Name;
  }
  EXPECT_TRUE(blnLearn && blnCardFaceUp && blnShowCardValues && blnShowCardsDealtCount);
  EXPECT_TRUE(blnShowScore && blnShowNaturals && blnPlayerBlue && blnDealDelay && blnDealAnimation);
  EXPECT_EQ(MDIForm1.mnuHands.Value, 0);
  EXPECT_EQ(tlbrRef, &MDIForm1.tlbrMDIForm1);
}

TEST_F(MissingKeys, ButTheLearnPanelsStayHidden) {
  EXPECT_FALSE(BaccTable.shpCardNeedP.Visible || BaccTable.lblCardNeedP.Visible ||
               BaccTable.shpCardNeedB.Visible || BaccTable.lblCardNeedB.Visible);
  prcPlay("[File]\r\nLearn=tRUE\r\n");
  EXPECT_TRUE(BaccTable.shpCardNeedP.Visible);
}

TEST_F(MissingKeys, TheTableHasEightDecksAndTheOtherShoesNone) {
  EXPECT_EQ(intDecks[0], 8);
  EXPECT_EQ(intDecks[1], 0);
  EXPECT_EQ(intDecks[8], 0);
  EXPECT_EQ(MDIForm1.mnuShoeSizeDecks[4].Value, 1);
  EXPECT_EQ(fncToolButton("Decks8").Value, 1);
  EXPECT_EQ(fncKey("Shoe Size", "Decks"), "8");
}

TEST_F(MissingKeys, MoneyIsNothing) {
  EXPECT_EQ(BaccTable.txtUnitValue.Text, "0");
  for (int i = 0; i < intSeats; ++i) {
    EXPECT_EQ(dblPlayerTotal[i], 0);
    EXPECT_EQ(dblPlayerWin[i], 0);
    EXPECT_EQ(BaccTable.lblPlayerTotal[i].Text, "$0");
  }
}

TEST_F(MissingKeys, WindowsStandAtTheOrigin) {
  EXPECT_EQ(BaccTable.Form.Top, 0);
  EXPECT_EQ(BaccTable.Form.Height, 0);
  EXPECT_EQ(BaccTable.Form.Width, 0);
  EXPECT_EQ(BaccTable.Form.Left, MDIForm1.Form.Width / 2);
  EXPECT_EQ(fncMarkCard(0)->Form.Top, BaccTable.Form.MinHeight) << "below the table";
  prcClearCardsDealt();
  for (const Window* form : {&frmCardsDealt.Form, &frmCardsDealtCount.Form}) {
    EXPECT_EQ(form->Top, 0) << form->Name;
    EXPECT_EQ(form->Left, 0) << form->Name;
    EXPECT_FALSE(form->Topmost) << form->Name;
  }
  EXPECT_EQ(frmCardsDealt.chkOnTop.Value + frmCardsDealtCount.chkOnTop.Value, 0);
}

TEST_F(MissingKeys, CountsOfTheStatisticsShowAsNoAndItsMoneyAsNothing) {
  headless::WhileModal([] {
    EXPECT_EQ(frmStatistics.Form.Top, 0);
    EXPECT_EQ(frmStatistics.Form.Left, 0);
    EXPECT_EQ(frmStatistics.lblHandsPlayed.Text, "No");
    for (const Control& count : frmStatistics.lblShoesPlayedDecks) {
      EXPECT_EQ(count.Text, "No");
    }
    for (int i = 0; i < intSeats; ++i) {
      EXPECT_EQ(frmStatistics.mskSteak[i].Text, "0");
      EXPECT_EQ(frmStatistics.lblWinningsStat[i].Text, "$0");
      EXPECT_EQ(frmStatistics.lblTurnover[i].Text, "$0");
    }
  });
  headless::Click(MDIForm1.mnuStatistics);
  EXPECT_EQ(MDIForm1.mnuStatistics.Value, 0);
}

TEST_F(MissingKeys, NothingReadsThePlaceOfTheFrame) {
  prcPlay("[MDIForm1]\r\nTop=100\r\nLeft=100\r\nWidth=3000\r\nHeight=3000\r\n");
  EXPECT_TRUE(MDIForm1.Form.Maximised);
  EXPECT_EQ(MDIForm1.Form.Width, platform::ScreenWidth());
  EXPECT_EQ(MDIForm1.Form.Height, platform::ScreenHeight());
}

}  // namespace
