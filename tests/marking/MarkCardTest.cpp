#include <algorithm>
#include <vector>

#include "platform/Procedure.h"
#include "tests/marking/MarkingFixture.h"

namespace {

class MarkCard : public MarkingTest {};

std::size_t fncCount(const MarkCardWindow& form, const std::string& name) {
  return static_cast<std::size_t>(std::ranges::count_if(
      form.Form.Controls, [&](const Control* control) { return control->Name == name; }));
}

TEST_F(MarkCard, MarksStandInTheirCellsUnderAlternatingHeadings) {
  MarkCardWindow& form = fncOpen();
  prcDeal("PTBB");
  struct Place {
    int Hand;
    double Left, Top;
  };
  for (const Place& each :
       {Place{0, 60, 510}, Place{1, 60, 810}, Place{2, 405, 510}, Place{3, 405, 810}}) {
    const Control& shape = form.shpTBP.at(each.Hand);
    const Control& text = form.lblTBP.at(each.Hand);
    EXPECT_EQ(shape.Left, each.Left) << each.Hand;
    EXPECT_EQ(shape.Top, each.Top) << each.Hand;
    EXPECT_EQ(shape.Index, each.Hand);
    EXPECT_EQ(shape.Container, &form.Picture1);
    EXPECT_EQ(text.Left, each.Left) << each.Hand;
    EXPECT_EQ(text.Top, each.Top + 15) << each.Hand;
    EXPECT_TRUE(shape.Visible && text.Visible) << each.Hand;
  }
  ASSERT_EQ(form.lblBP.size(), 90U);
  for (const auto& [n, heading] : form.lblBP) {
    EXPECT_EQ(heading.Text, n % 2 == 0 ? "P" : "B") << n;
    EXPECT_EQ(heading.Left, 75 + n * 345) << n;
    EXPECT_TRUE(heading.Visible) << n;
  }
}

TEST_F(MarkCard, TiesAloneBringNoHeading) {
  MarkCardWindow& form = fncOpen();
  prcDeal("TT");
  EXPECT_FALSE(form.lblBP.at(0).Visible);
  EXPECT_FALSE(form.lblTotal.at(0).Visible);
  EXPECT_TRUE(form.shpTBP.at(1).Visible);
}

TEST_F(MarkCard, TotalsStandAboveTheirColumnsInTheColourOfTheirSign) {
  MarkCardWindow& form = fncOpen();
  const std::vector<std::pair<char, int>> hands{{'B', 2}, {'P', -5}, {'P', 1}, {'B', 2}, {'P', 3}};
  for (const auto& [result, units] : hands) {
    prcHand(result, Integer(units));
    SetCardView(0);
  }
  const std::vector<std::pair<const char*, Colour>> totals{
      {"2", clrWindowText}, {"-2", clrDarkRed}, {"0", clrWindowText}, {"3", clrWindowText}};
  ASSERT_EQ(form.lblTotal.size(), totals.size());
  for (int c = 0; c < 4; ++c) {
    const auto& [text, colour] = totals[static_cast<std::size_t>(c)];
    EXPECT_EQ(form.lblTotal.at(c).Text, text) << c;
    EXPECT_EQ(form.lblTotal.at(c).ForeColor, colour) << c;
    EXPECT_EQ(form.lblTotal.at(c).Left, 30 + 345 * c) << c;
    EXPECT_TRUE(form.lblTotal.at(c).Visible) << c;
  }
}

TEST_F(MarkCard, HandWithoutUnitsDoesNotTakeTheFirstHandsColour) {
  MarkCardWindow& form = fncOpen();
  blnShowScore = true;
  prcHand('B', Integer(-1));
  SetCardView(0);
  prcDeal("B");
  EXPECT_EQ(form.lblTBP.at(0).ForeColor, clrDarkRed);
  EXPECT_EQ(form.lblTBP.at(1).ForeColor, clrWindowText);
}

TEST_F(MarkCard, IgnoredTiesAreLinesInTheLastCellOrAboveTheCard) {
  MarkCardWindow& form = fncOpen();
  blnMarkIgnoreTies[0] = true;
  blnShowScore = true;
  prcDeal("TBBTB");
  EXPECT_EQ(form.shpTBP.at(0).Top, 510 - 30);
  EXPECT_EQ(form.shpTBP.at(3).Top, 510 + 300 + 260);
  EXPECT_EQ(form.shpTBP.at(4).Top, 510 + 600);
  for (const int line : {0, 3}) {
    EXPECT_EQ(form.shpTBP.at(line).Height, 30) << line;
    EXPECT_EQ(form.shpTBP.at(line).BorderColor, clrTieGreen) << line;
    EXPECT_FALSE(form.lblTBP.at(line).Visible) << line;
  }
  EXPECT_EQ(form.shpTBP.at(1).Height, 225) << "a mark is no copy of the line before it";

  prcNewShoe();
  prcDeal("B");
  EXPECT_EQ(form.shpTBP.at(0).Height, 225) << "a line of the shoe before leaves nothing behind";
}

TEST_F(MarkCard, LongColumnsGrowTheDrawingAreaAndNothingShrinksIt) {
  MarkCardWindow& form = fncOpen();
  const double base = intMarkCardBase;
  EXPECT_EQ(base, 3210);
  struct Step {
    const char* Results;
    double Growth;
  };
  for (const Step& each : {Step{"BBBBBBBBB", 0}, Step{"B", 300}, Step{"T", 600}, Step{"P", 600},
                           Step{"PPPPPPPPP", 600}}) {
    prcDeal(each.Results);
    EXPECT_EQ(form.Picture1.Height, base + each.Growth) << each.Results;
  }
  EXPECT_EQ(form.Shape1.Height, form.Picture1.Height - 45) << "the rectangle follows";
  const double most = form.VScroll1.Max;
  prcNewShoe();
  EXPECT_EQ(form.Picture1.Height, base + 600);
  EXPECT_EQ(form.VScroll1.Max, most) << "the range follows the next resize only";
  prcSize(14600, 3400);
  EXPECT_EQ(form.VScroll1.Max, most + 600);
}

TEST_F(MarkCard, ClearingLeavesOnlyTheDesignedElementsHidden) {
  MarkCardWindow& form = fncOpen(3000);
  const std::size_t before = form.Form.Controls.size();
  blnShuffled[0] = true;
  prcHand('B', Integer(1));
  SetCardView(0);
  prcDeal("PBPBPBPBPB");
  ASSERT_LT(form.Picture1.Left, 0);
  ClearCardView(0);
  EXPECT_EQ(form.Form.Controls.size(), before);
  for (const char* name : {"lblTotal", "lblBP", "shpTBP", "lblTBP"}) {
    EXPECT_EQ(fncCount(form, name), 1U) << name;
  }
  for (const ControlFamily* family : {&form.lblTotal, &form.lblBP, &form.shpTBP, &form.lblTBP}) {
    EXPECT_EQ(family->size(), 1U);
    EXPECT_FALSE(family->at(0).Visible);
  }
  EXPECT_EQ(form.lneHLine.size(), 11U) << "the rules stay";
  EXPECT_EQ(form.Picture1.Left, 0);
  EXPECT_EQ(form.HScroll1.Value, 0);
  EXPECT_FALSE(blnShuffled[0]);
  EXPECT_FALSE(blnMarkStarted[0]);
  EXPECT_EQ(intColumn[0], 10) << "the shuffle, not the clearing, puts the run back";
}

TEST_F(MarkCard, SecondShoeMakesItsTotalsAnew) {
  MarkCardWindow& form = fncOpen();
  for (int shoe = 0; shoe < 2; ++shoe) {
    for (const char result : {'B', 'P', 'B'}) {
      prcHand(result, Integer(1));
      SetCardView(0);
    }
    EXPECT_EQ(form.lblTotal.at(2).Text, "3");
    prcNewShoe();
  }
}

TEST_F(MarkCard, CardClosedAndOpenedWithinAShoeGoesOnInItsColumn) {
  fncOpen();
  for (const char result : {'B', 'P', 'B'}) {
    prcHand(result, Integer(1));
    SetCardView(0);
  }
  fncUnload(MarkCards[0].Form);
  MarkCardWindow& form = fncOpen();
  prcHand('T', Integer(1));
  SetCardView(0);
  EXPECT_EQ(form.lblTotal.at(2).Text, "4");
  EXPECT_EQ(form.shpTBP.at(3).Left, 60 + 2 * 345);
  EXPECT_TRUE(headless::Boxes().empty());
}

TEST_F(MarkCard, ViewFollowsTheNewestMarkSideways) {
  MarkCardWindow& form = fncOpen(3000);
  prcDeal("BPBPBPB");  // The edge of column 6 is at 2415, inside of 3000 - 225.
  EXPECT_EQ(form.Picture1.Left, 0);
  prcDeal("P");  // Column 7 ends at 2760, still inside.
  EXPECT_EQ(form.Picture1.Left, 0);
  prcDeal("B");  // Column 8 ends at 3105: 330 too far, and two marks more.
  EXPECT_EQ(form.Picture1.Left, -(330 + 570));
  EXPECT_EQ(form.HScroll1.Value, 900);
  prcDeal("B");
  EXPECT_EQ(form.Picture1.Left, -900);
  prcSetValue(form.HScroll1, 0);  // The user looks back; the next mark brings the view with it.
  EXPECT_EQ(form.Picture1.Left, 0);
  prcDeal("B");
  EXPECT_EQ(form.Picture1.Left, -900);
}

TEST_F(MarkCard, ColumnsBeyondTheHeadingsNeitherFaultNorPartBarAndView) {
  MarkCardWindow& form = fncOpen();
  for (int i = 0; i < 120; ++i) {
    prcHand(i % 2 == 0 ? 'B' : 'P', Integer(1));
    SetCardView(0);
    ASSERT_EQ(form.Picture1.Left, -form.HScroll1.Value) << i;
  }
  EXPECT_EQ(form.shpTBP.at(119).Left, 60 + 119 * 345);
  EXPECT_EQ(form.lblTotal.at(119).Text, "120");
  EXPECT_EQ(form.HScroll1.Value, form.HScroll1.Max);
  EXPECT_TRUE(headless::Boxes().empty());
}

TEST_F(MarkCard, CardOutsideIsToldUnderTheNameOfItsProcedure) {
  struct Case {
    const char* Label;
    int Line;
    void (*Call)();
  };
  for (const Case& each : {Case{"NewCardViewForm", 30, [] { NewCardViewForm(0, 9); }},
                           Case{"ClearCardView", 10, [] { ClearCardView(-1); }},
                           Case{"SetCardView", 10, [] { SetCardView(9); }},
                           Case{"prcMarkCardResize", 10, [] { prcMarkCardResize(9); }}}) {
    SetUp();
    EXPECT_THROW(each.Call(), EndOfProgram);
    ASSERT_EQ(headless::Boxes().size(), 1U);
    EXPECT_EQ(headless::Boxes().front().Text, "Serious Error Occurred - Line " +
                                                  std::to_string(each.Line) +
                                                  " Error - 9-Subscript out of range\r\n'" +
                                                  each.Label + "'\r\nPLEASE RECORD ERROR MESSAGE");
  }
}

}  // namespace
