#include "learn/CardNeed.h"
#include "tests/reveal/HandOnTable.h"

namespace {

class CardNeedTest : public HandOnTable {
 protected:
  void SetUp() override {
    HandOnTable::SetUp();
    blnLearn = true;
    prcShowLearnPanels(true);
  }
};

const std::string strDefault =
    "This area will contain\r\nthe card values required\r\nfor wins, ties, and loses.";

struct Case {
  const char* Looks;
  int Index;
  const char* Expected;
};

// Every number of the hand differs from the others, so that one taken from the wrong card shows.
const Case cases[]{
    {"bf.bb.", 0, "\r\n4, 5 for NATURAL"},
    {"fb.bb.", 1, "\r\n8, 9 for NATURAL"},
    {"bb.bf.", 3, "\r\n1, 2 for NATURAL"},
    {"bb.fb.", 4, "\r\n9, 10, Picture for NATURAL"},
    {"bf.ff.", 0, "5, 4, 3,  to WIN\r\n2 to TIE"},
    {"fb.ff.", 1, "9, 8, 7,  to WIN\r\n6 to TIE"},
    {"ff.bf.", 3, "\r\n1, 2 to WIN"},
    {"ff.fb.", 4, "\r\n9, 10, Picture to WIN"},
    {"bb.ff.", 1, "7, 8, 9 to WIN\r\n6 to TIE\r\n(2 card total)"},
    {"ff.bb.", 3, "\r\nAt least 5 would be good\r\n(2 card total)"},
    {"ffbff.", 2, "3, 4, 5 to WIN\r\n2 to TIE\r\n1, 8, 9, 10, Picture to LOSE"},
    {"ffbffb", 2, "3, 4, 5 to WIN\r\n2 to TIE\r\n1, 8, 9, 10, Picture to LOSE"},
    {"ffbfff", 2, "5, to WIN\r\n4 to TIE\r\n6, 7, 8, 9, 10 , Picture, 1, 2, 3, to LOSE"},
    {"ffbffb", 5, "\r\n0, 1, 2, 3 Hard to beat"},
    {"ff.ffb", 5, "9, 10 , Picture, 1, 2, 3, to WIN\r\n8 to TIE\r\n4, 5, 6, 7, to LOSE"},
    {"fffffb", 5, "\r\n3 to TIE\r\n4, 5, 6, 7, 8, 9, 10 , Picture, 1, 2, to LOSE"},
};

TEST_F(CardNeedTest, AdvisesInThePanelOfTheSideByTheNumbersOfTheHand) {
  for (const Case& one : cases) {
    SCOPED_TRACE(std::string(one.Looks) + " at " + std::to_string(one.Index));
    prcLayCards(one.Looks);
    prcShowLearnPanels(true);
    headless::Hover(BaccTable.Form);
    BaccTable.lblCardNeedP.Visible = BaccTable.lblCardNeedB.Visible = false;
    headless::Hover(BaccTable.pctCardBack[one.Index]);
    const bool blnPlayer = one.Index < 3;
    const Control& told = blnPlayer ? BaccTable.lblCardNeedP : BaccTable.lblCardNeedB;
    const Control& other = blnPlayer ? BaccTable.lblCardNeedB : BaccTable.lblCardNeedP;
    EXPECT_EQ(told.Text, one.Expected);
    EXPECT_TRUE(told.Visible);
    EXPECT_EQ(other.Text, strDefault);
    EXPECT_FALSE(other.Visible);
  }
}

TEST_F(CardNeedTest, ShowsAnEmptyLabelWhereTheTableHasNoAdvice) {
  prcLayCards("ffbff.");
  intBankerTotal2[0] = 8;
  headless::Hover(BaccTable.pctCardBack[2]);
  EXPECT_EQ(BaccTable.lblCardNeedP.Text, "");
  EXPECT_TRUE(BaccTable.lblCardNeedP.Visible);
}

TEST_F(CardNeedTest, KeepsTheDefaultTextWhileNothingCanBeSaidUntilTheMouseLeaves) {
  prcLayCards("bb.bb.");
  headless::Hover(BaccTable.pctCardBack[0]);
  EXPECT_EQ(BaccTable.lblCardNeedP.Text, strDefault);
  EXPECT_TRUE(BaccTable.blnCardNeedShown);
  headless::Hover(BaccTable.Form);
  EXPECT_FALSE(BaccTable.lblCardNeedP.Visible);
  EXPECT_FALSE(BaccTable.lblCardNeedB.Visible);
  EXPECT_TRUE(BaccTable.shpCardNeedP.Visible);
  EXPECT_TRUE(BaccTable.shpCardNeedB.Visible);
  prcLayCards("bb.fb.");
  headless::Hover(BaccTable.lblCardRight[0]);
  EXPECT_FALSE(BaccTable.lblCardNeedP.Visible) << "own pair hidden, one card of the other";
}

TEST_F(CardNeedTest, AdvisesOnceUntilTheMouseHasBeenOverTheBareTable) {
  prcLayCards("bf.bb.");
  headless::Hover(BaccTable.lblCardBottom[0]);
  EXPECT_EQ(BaccTable.lblCardNeedP.Text, "\r\n4, 5 for NATURAL");
  prcLayCards("bf.ff.");
  headless::Hover(BaccTable.lblCardRight[0]);
  EXPECT_EQ(BaccTable.lblCardNeedP.Text, "\r\n4, 5 for NATURAL");
  headless::Hover(BaccTable.Form);
  headless::Hover(BaccTable.lblCardRight[0]);
  EXPECT_EQ(BaccTable.lblCardNeedP.Text, "5, 4, 3,  to WIN\r\n2 to TIE");
}

TEST_F(CardNeedTest, IsSilentWithoutLearnModeAndWhileCardsAreBeingLaid) {
  prcLayCards("bf.bb.");
  prcHideLearnPanels();
  for (const bool blnOn : {false, true}) {
    blnLearn = blnOn;
    BaccTable.blnCardsPlaced = !blnOn;
    for (Control* part :
         {&BaccTable.pctCardBack[0], &BaccTable.lblCardBottom[0], &BaccTable.lblCardRight[0]}) {
      headless::Hover(*part);
      EXPECT_FALSE(BaccTable.blnCardNeedShown);
      EXPECT_FALSE(BaccTable.lblCardNeedP.Visible);
    }
  }
}

TEST_F(CardNeedTest, ShowsAndHidesShapesAndLabels) {
  prcShowLearnPanels(true);
  const std::array<Control*, 4> parts{&BaccTable.shpCardNeedP, &BaccTable.lblCardNeedP,
                                      &BaccTable.shpCardNeedB, &BaccTable.lblCardNeedB};
  for (const Control* part : parts) {
    EXPECT_TRUE(part->Visible) << part->Name;
  }
  EXPECT_EQ(BaccTable.lblCardNeedB.Text, strDefault);
  prcHideLearnPanels();
  for (const Control* part : parts) {
    EXPECT_FALSE(part->Visible) << part->Name;
  }
}

}  // namespace
