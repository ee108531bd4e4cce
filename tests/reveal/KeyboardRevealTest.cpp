#include "reveal/KeyboardReveal.h"
#include "tests/reveal/HandOnTable.h"

namespace {

using KeyboardRevealTest = HandOnTable;

constexpr int intNone = -1;

int fncFocused() {
  for (int n = 0; n < intPositions; ++n) {
    if (BaccTable.Form.ActiveControl == &BaccTable.pctCardBack[n]) {
      return n;
    }
  }
  return intNone;
}

struct Press {
  const char* Looks;
  int From;
  const char* Key;
  int To;
};

TEST_F(KeyboardRevealTest, ChoosesAmongTheCardsThatWait) {
  const Press presses[]{
      {"bb.bb.", intNone, "Right", 0},
      {"bb.bb.", intNone, "Left", 4},
      {"bb.bb.", 1, "Right", 3},
      {"bb.bb.", 3, "Left", 1},
      {"bb.bb.", 4, "Right", 0},
      {"bb.bb.", 0, "Left", 4},
      {"fb.fb.", 0, "Right", 1},
      {"ff.ffb", 0, "Left", 5},
      {"ffbffb", intNone, "3", 2},
      {"ffbffb", 2, "6", 5},
      {"bb.bb.", 1, "3", 1},
      {"fb.bb.", 1, "1", 1},
      {"bb.bb.", 1, "0", 1},
      {"bb.bb.", 1, "7", 1},
      {"bb.bb.", 1, "Down", 1},
      {"bl.bb.", 0, "Right", 3},
      {"ff.ff.", intNone, "Right", intNone},
  };
  for (const Press& press : presses) {
    prcLayCards(press.Looks);
    BaccTable.Form.ActiveControl =
        press.From == intNone ? nullptr : &BaccTable.pctCardBack[press.From];
    prcRevealKey(press.Key);
    EXPECT_EQ(fncFocused(), press.To) << press.Looks << " " << press.From << " " << press.Key;
  }
}

TEST_F(KeyboardRevealTest, TurnsTheChosenCardAndNoOther) {
  for (const char* key : {"Enter", "Return", "Space", " "}) {
    prcLayCards("bb.bb.");
    BaccTable.Form.ActiveControl = nullptr;
    prcRevealKey(key);
    EXPECT_TRUE(BaccTable.pctCardBack[0].Visible) << "none is chosen yet";
    prcRevealKey("2");
    prcRevealKey(key);
    EXPECT_TRUE(BaccTable.pctCardBack[0].Visible);
    EXPECT_FALSE(BaccTable.pctCardBack[1].Visible);
    prcRevealKey("Right");
    EXPECT_EQ(fncFocused(), 3) << "goes on from the card just turned";
  }
}

TEST_F(KeyboardRevealTest, AdvisesAnewOnEachChosenCardInLearnMode) {
  blnLearn = true;
  prcLayCards("fb.bb.");
  prcRevealKey("2");
  EXPECT_EQ(BaccTable.lblCardNeedP.Text, "\r\n8, 9 for NATURAL");
  EXPECT_TRUE(BaccTable.lblCardNeedP.Visible);
  prcRevealKey("4");
  EXPECT_FALSE(BaccTable.lblCardNeedP.Visible) << "advice of the card before";
  EXPECT_FALSE(BaccTable.lblCardNeedB.Visible);
  prcLayCards("fb.fb.");
  prcRevealKey("5");
  EXPECT_EQ(BaccTable.lblCardNeedB.Text, "\r\n9, 10, Picture for NATURAL");
  EXPECT_TRUE(BaccTable.lblCardNeedB.Visible);
}

}  // namespace
