#include <vector>

#include "table/Waits.h"
#include "tests/marking/MarkingFixture.h"

namespace {

class MarkCardForm : public MarkingTest {};

TEST_F(MarkCardForm, OpensBelowTheTableWithinTheFrame) {
  struct Case {
    double FrameWidth, FrameHeight, StoredTop;
    double Top, Width, Height, Left;
  };
  const std::vector<Case> cases{
      {15360, 10500, 0, 5000, 14860, 3855, 100},     // No settings: just below the table.
      {15360, 10500, 4000, 5000, 14860, 3855, 100},  // Stored above its lower edge.
      {15360, 10500, 6000, 6000, 14860, 3300, 100},  // Stored below it.
      {9000, 7000, 0, 5000, 8500, 800, 100},
      {9000, 6000, 0, 5000, 8500, -200, 100},  // The screen's limits decide.
  };
  for (const Case& each : cases) {
    SetUp();
    MDIForm1.Form.Width = each.FrameWidth;
    MDIForm1.Form.Height = each.FrameHeight;
    if (each.StoredTop != 0) {
      prcWriteSetting("frmMarkCard0", "Top", each.StoredTop);
      prcWriteSetting("frmMarkCard0", "Left", 777);
      prcWriteSetting("frmMarkCard0", "Width", 888);
      prcWriteSetting("frmMarkCard0", "Height", 999);
    }
    NewCardViewForm(0, 0);
    const Window& form = MarkCards[0].Form;
    EXPECT_EQ(form.Top, each.Top) << each.FrameHeight << " " << each.StoredTop;
    EXPECT_EQ(form.Width, each.Width) << each.FrameWidth;
    EXPECT_EQ(form.Height, each.Height) << each.FrameHeight << " " << each.StoredTop;
    EXPECT_EQ(form.Left, each.Left) << each.FrameWidth;
    EXPECT_TRUE(form.Visible && blnMarkCardLoaded);
    EXPECT_EQ(form.Caption, "Marking Card for Player 3");
  }
}

TEST_F(MarkCardForm, RulesCrossTheWholeDrawingAreaEveryThirdRow) {
  NewCardViewForm(0, 0);
  const MarkCardWindow& form = MarkCards[0];
  const std::vector<double> rules{240, 465, 1365, 2265, 3165, 4065, 4965, 5865, 6765, 7665, 8565};
  ASSERT_EQ(form.lneHLine.size(), rules.size());
  for (const auto& [n, line] : form.lneHLine) {
    EXPECT_EQ(line.Y1, rules[static_cast<std::size_t>(n)]) << n;
    EXPECT_EQ(line.Y2, line.Y1) << n;
    EXPECT_EQ(line.X1, 15) << n;
    EXPECT_EQ(line.X2, 30000 - 45 + 15) << n;
    EXPECT_EQ(line.BorderWidth, n < 2 ? 2 : 1) << n;
    EXPECT_TRUE(line.Visible) << n;
  }
}

TEST_F(MarkCardForm, OpenCardIsBroughtUpAndNotMadeTwice) {
  NewCardViewForm(0, 0);
  Window& form = MarkCards[0].Form;
  const Long handle = form.hWnd;
  prcDeal("BB");
  for (const Long& asked : {handle, Long(0)}) {
    form.Visible = false;
    const std::uint32_t raised = form.Raised;
    NewCardViewForm(asked, 0);
    EXPECT_TRUE(form.Visible);
    EXPECT_GT(form.Raised, raised);
    EXPECT_EQ(form.hWnd, handle);
    EXPECT_EQ(MarkCards[0].shpTBP.size(), 2U) << "its marks stay";
  }
  EXPECT_EQ(colMarkCards.size(), 1U);
}

TEST_F(MarkCardForm, ClosingStoresThePlaceAndForgetsTheCard) {
  NewCardViewForm(0, 0);
  MarkCards[0].Form.Top = 6001;
  const std::string key = std::to_string(std::int32_t{MarkCards[0].Form.hWnd});
  ASSERT_TRUE(colMarkCards.contains(key));
  EXPECT_TRUE(fncUnload(MarkCards[0].Form));
  EXPECT_EQ(fncGetSetting("frmMarkCard0", "Top"), 6001);
  EXPECT_EQ(fncGetSetting("frmMarkCard0", "Left"), 100);
  EXPECT_EQ(fncGetSetting("frmMarkCard0", "Height"), 3855);
  EXPECT_EQ(fncGetSetting("frmMarkCard0", "Width"), 14860);
  EXPECT_TRUE(colMarkCards.empty());
  EXPECT_EQ(fncMarkCard(0), nullptr);
  prcMarkCardTimers();
  prcDeal("B");
  EXPECT_EQ(intRun[0], 1) << "a card without a window still counts";

  NewCardViewForm(0, 0);
  EXPECT_EQ(MarkCards[0].Form.Top, 6001);
  EXPECT_EQ(MarkCards[0].lneHLine.size(), 11U);
}

TEST_F(MarkCardForm, ScrollBarsStandWhereTheyAreNeeded) {
  MarkCardWindow& form = fncOpen();
  struct Case {
    double PictureWidth, PictureHeight, Width, Height;
    double HTop, HWidth, VLeft, VHeight;
    bool Corner;
    double HMax, VMax;
  };
  const std::vector<Case> cases{
      // Wide and high enough for neither, for the rows only, for both, for the columns only.
      {30000, 3210, 10000, 3000, 2775, 9775, 9775, 2775, true, 20225, 435},
      {30000, 3210, 10000, 4000, 3775, 10000, 10000, 3775, false, 20000, -565},
      {30000, 3210, 31000, 4000, 4000, 31000, 31000, 4000, false, -1000, -790},
      {9000, 5210, 10000, 3000, 3000, 9775, 9775, 3000, true, -775, 2210},
      // The bar across takes the room that the rows would just have had.
      {30000, 3210, 10000, 3300, 3075, 9775, 9775, 3075, true, 20225, 135},
  };
  for (const Case& each : cases) {
    form.Picture1.Width = each.PictureWidth;
    form.Picture1.Height = each.PictureHeight;
    prcSize(each.Width, each.Height);
    const auto what = ::testing::Message() << each.Width << " by " << each.Height;
    EXPECT_EQ(form.HScroll1.Top, each.HTop) << what;
    EXPECT_EQ(form.HScroll1.Width, each.HWidth) << what;
    EXPECT_EQ(form.VScroll1.Left, each.VLeft) << what;
    EXPECT_EQ(form.VScroll1.Height, each.VHeight) << what;
    EXPECT_EQ(form.ScrollCorner.Visible, each.Corner) << what;
    EXPECT_EQ(form.HScroll1.Max, each.HMax) << what;
    EXPECT_EQ(form.VScroll1.Max, each.VMax) << what;
    if (each.Corner) {
      EXPECT_EQ(form.ScrollCorner.Left, each.HWidth - 15) << what;
      EXPECT_EQ(form.ScrollCorner.Top, each.VHeight - 15) << what;
    }
  }
  EXPECT_EQ(form.Form.Controls.back(), &form.VScroll1);
}

TEST_F(MarkCardForm, StepsOfABarFollowItsRange) {
  MarkCardWindow& form = fncOpen(10000, 3000);
  EXPECT_EQ(form.HScroll1.SmallChange, 20225 / 16 + 1);
  EXPECT_EQ(form.HScroll1.LargeChange, 20225 / 4 + 1);
  prcSize(10000, 4000);
  EXPECT_EQ(form.VScroll1.SmallChange, 565 / 16 + 1) << "a range below nothing counts as its size";
  EXPECT_EQ(form.VScroll1.LargeChange, 565 / 4 + 1);
}

TEST_F(MarkCardForm, BarsPanTheDrawingAreaAndAWiderWindowPullsItBack) {
  MarkCardWindow& form = fncOpen(10000, 3000);
  prcSetValue(form.HScroll1, 20225);
  prcSetValue(form.VScroll1, 400);
  EXPECT_EQ(form.Picture1.Left, -20225);
  EXPECT_EQ(form.Picture1.Top, -400);
  prcSize(14000, 4000);
  EXPECT_EQ(form.Picture1.Left, -16000);
  EXPECT_EQ(form.Picture1.Top, 0);
}

TEST_F(MarkCardForm, HiddenWindowIsNotLaidOut) {
  MarkCardWindow& form = fncOpen(10000, 3000);
  form.Form.Visible = false;
  prcSize(12000, 3000);
  EXPECT_EQ(form.VScroll1.Left, 9775);
}

TEST_F(MarkCardForm, ReturnsBelowTheTableUnlessTheUserTakesItUp) {
  struct Case {
    double Top;
    bool Activated;
    double After;
  };
  for (const Case& each :
       {Case{2000, false, 5000}, Case{2000, true, 2000}, Case{7000, false, 7000}}) {
    SetUp();
    MarkCardWindow& form = fncOpen();
    form.Form.Top = each.Top;
    prcMarkCardTimers();
    headless::Wait(499);
    EXPECT_EQ(form.Form.Top, each.Top) << "not yet";
    if (each.Activated) {
      platform::Activate(form.Form);
    }
    headless::Wait(2);
    EXPECT_EQ(form.Form.Top, each.After);
    form.Form.Top = 1000;
    headless::Wait(2000);
    EXPECT_EQ(form.Form.Top, 1000) << "one tick only";
  }
}

TEST_F(MarkCardForm, F12WithAllThreeMasksTurnsTheTable) {
  MarkCardWindow& form = fncOpen();
  struct Case {
    const char* Key;
    int Shift;
    bool Turns;
  };
  BaccTable.Form.Visible = true;
  for (const Case& each : {Case{"F12", 7, true}, Case{"F12", 7, true}, Case{"F12", 3, false},
                           Case{"F12", 5, false}, Case{"F12", 6, false}, Case{"F11", 7, false}}) {
    const bool before = BaccTable.Form.Visible;
    headless::Key(form.Form, each.Key, each.Shift);
    EXPECT_EQ(BaccTable.Form.Visible, before != each.Turns) << each.Key << each.Shift;
  }
}

class AutomaticDeal : public MarkingTest {
 protected:
  void SetUp() override {
    MarkingTest::SetUp();
    intDecks[0] = 1;
    blnEndOfShoe[0] = true;
    intAutoDealDelay = 1;
    blnAutoDeal = true;
    fncOpen();
  }
};

TEST_F(AutomaticDeal, ShufflesAnEndedShoeOnceAndDealsAHandATick) {
  MarkCardWindow& form = MarkCards[0];
  form.tmrDeal.Enabled = true;  // Its ticks come faster than the pause before the shuffle ends.
  headless::Wait(3500);
  EXPECT_TRUE(blnShuffled[0]);
  EXPECT_EQ(intHandsDealt[0], 1);
  EXPECT_EQ(varHandUnits[0], std::nullopt);
  EXPECT_TRUE(form.shpTBP.at(0).Visible);
  headless::Wait(2000);
  EXPECT_EQ(intHandsDealt[0], 3);
  EXPECT_EQ(form.shpTBP.size(), 3U);
}

TEST_F(AutomaticDeal, DealsNothingForAnotherShoeOrWhenOff) {
  MarkCardWindow& form = MarkCards[0];
  blnAutoDeal = false;
  intAutoDealDelay = 7;
  tmrDeal_Timer(form);
  EXPECT_EQ(form.tmrDeal.Interval, 7000) << "the interval follows the delay even so";
  blnAutoDeal = true;
  intMarkCardShoe[0] = 2;
  tmrDeal_Timer(form);
  EXPECT_EQ(intHandsDealt[0], 0);
  EXPECT_FALSE(blnShuffled[0]);
}

TEST_F(AutomaticDeal, MarksEveryCardThatShowsTheShoe) {
  intMarkCardShoe[4] = 0;
  tmrDeal_Timer(MarkCards[0]);
  EXPECT_EQ(intHandsDealt[0], 1);
  EXPECT_EQ(intRun[4], intRun[0]);
  EXPECT_EQ(intTieRun[4], intTieRun[0]);
  EXPECT_TRUE(blnShuffled[0]);
  EXPECT_FALSE(blnShuffled[4]) << "a card that shows another's shoe has none of its own to deal";
}

TEST_F(AutomaticDeal, CardClosedInThePauseDealsNothing) {
  headless::After(500, [] { fncUnload(MarkCards[0].Form); });
  tmrDeal_Timer(MarkCards[0]);
  EXPECT_EQ(intHandsDealt[0], 0);
}

}  // namespace
