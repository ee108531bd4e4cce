#include "platform/Procedure.h"
#include "reveal/CardMovement.h"
#include "reveal/CardReveal.h"
#include "table/TableStatus.h"
#include "tests/reveal/HandOnTable.h"

namespace {

using CardRevealTest = HandOnTable;

struct Patch {
  const char* Name;
  Table<Control, 6>* Wide;
  Table<Control, 6>* Plain;
};

/// Which corners lie covered at a position, such as "TL BR", with " wide" behind when it is the
/// wide family. Both families at once give both texts.
std::string fncCovered(int n) {
  const Patch patches[]{
      {"TL ", &BaccTable.pctCardTopLeftWide, &BaccTable.pctCardTopLeft},
      {"TR ", &BaccTable.pctCardTopRightWide, &BaccTable.pctCardTopRight},
      {"BL ", &BaccTable.pctCardBottomLeftWide, &BaccTable.pctCardBottomLeft},
      {"BR ", &BaccTable.pctCardBottomRightWide, &BaccTable.pctCardBottomRight},
  };
  std::string wide, plain;
  for (const Patch& patch : patches) {
    wide += (*patch.Wide)[n].Visible ? patch.Name : "";
    plain += (*patch.Plain)[n].Visible ? patch.Name : "";
  }
  return (wide.empty() ? "" : wide + "wide") + (plain.empty() ? "" : plain + "plain");
}

TEST_F(CardRevealTest, SqueezesByExactlyThePullAndTurnsAtTheWholeCard) {
  struct Step {
    float Pull;
    double Bottom, Right;
  };
  const Step steps[]{
      {0, 1440, 1065},   {40, 1440, 1065}, {-0.5F, 1439.5, 1064.5}, {-100, 1340, 965},
      {-50, 1390, 1015}, {30, 1390, 1015}, {-1064, 376, 1},
  };
  prcLayCards("bb.bb.");
  Control& back = BaccTable.pctCardBack[1];
  for (const Step& step : steps) {
    headless::Drag(BaccTable.lblCardBottom[1], 500, step.Pull);
    EXPECT_EQ(back.Height, step.Bottom) << step.Pull;
    EXPECT_EQ(back.Width, 1065);
  }
  headless::Release(BaccTable.lblCardBottom[1], 500, -1064);
  EXPECT_EQ(back.Height, 1440);
  for (const Step& step : steps) {
    headless::Drag(BaccTable.lblCardRight[1], step.Pull, 500);
    EXPECT_EQ(back.Width, step.Right) << step.Pull;
    EXPECT_EQ(back.Height, 1440);
  }
  headless::Release(BaccTable.lblCardRight[1], -1064, 500);
  EXPECT_EQ(back.Width, 1065);
  EXPECT_TRUE(back.Visible);

  headless::Drag(BaccTable.lblCardBottom[1], 0, -1439);
  EXPECT_EQ(back.Height, 1);
  EXPECT_TRUE(back.Visible);
  headless::Drag(BaccTable.lblCardBottom[1], 0, -1440);
  EXPECT_FALSE(back.Visible);
  headless::Release(BaccTable.lblCardBottom[1], 0, -1440);
  EXPECT_EQ(back.Height, 1440) << "whole for the next hand";
  headless::Drag(BaccTable.lblCardRight[0], -1065, 0);
  EXPECT_FALSE(BaccTable.pctCardBack[0].Visible);
}

TEST_F(CardRevealTest, RepaintsFaceThenBackInEveryMoveThatSqueezes) {
  prcLayCards("bb.bb.");
  headless::Repaints().clear();
  headless::Drag(BaccTable.lblCardBottom[4], 0, 10);
  EXPECT_TRUE(headless::Repaints().empty());
  headless::Drag(BaccTable.lblCardBottom[4], 0, -10);
  headless::Drag(BaccTable.lblCardRight[4], -5000, 0);
  EXPECT_EQ(headless::Repaints(),
            (std::vector<std::string>{"pctCardFace(4)", "pctCardBack(4)", "pctCardFace(4)"}));
}

TEST_F(CardRevealTest, TurnsNothingBeforeTheCardIsClickable) {
  prcLayCards("bb.bb.");
  blnCardClickable.fill(false);
  headless::Click(BaccTable.pctCardBack[0]);
  headless::Drag(BaccTable.lblCardBottom[0], 0, -700);
  EXPECT_EQ(BaccTable.pctCardBack[0].Height, 740);
  headless::Drag(BaccTable.lblCardBottom[0], 0, -2000);
  EXPECT_EQ(BaccTable.pctCardBack[0].Height, 740);
  EXPECT_TRUE(BaccTable.pctCardBack[0].Visible);
  EXPECT_TRUE(BaccTable.lblCardBottom[0].Visible);
  EXPECT_EQ(fncCovered(0), "");
  blnCardClickable[0] = true;
  headless::Drag(BaccTable.lblCardBottom[0], 0, -1500);
  EXPECT_FALSE(BaccTable.pctCardBack[0].Visible);
}

TEST_F(CardRevealTest, ShowsTheTwoCardTotalWithTheSecondCardOfThePairWhicheverItIs) {
  struct Side {
    int First;
    Control &Total, &Natural;
    Table<bool, 9>& blnNatural;
    const char* Two;
  };
  const Side sides[]{
      {0, BaccTable.PTotal, BaccTable.lblNaturalP, blnPlayerNatural, "4"},
      {3, BaccTable.BTotal, BaccTable.lblNaturalB, blnBankerNatural, "6"},
  };
  for (const Side& side : sides) {
    for (const bool blnBackwards : {false, true}) {
      for (const bool blnNatural : {false, true}) {
        prcLayCards("bb.bb.");
        side.Total.Visible = side.Natural.Visible = false;
        side.Total.Text = "old";
        side.blnNatural[0] = blnNatural;
        headless::Click(BaccTable.pctCardBack[side.First + (blnBackwards ? 1 : 0)]);
        EXPECT_FALSE(side.Total.Visible);
        EXPECT_FALSE(side.Natural.Visible);
        EXPECT_EQ(side.Total.Text, "old");
        headless::Click(BaccTable.pctCardBack[side.First + (blnBackwards ? 0 : 1)]);
        EXPECT_TRUE(side.Total.Visible);
        EXPECT_EQ(side.Total.Text, side.Two);
        EXPECT_EQ(side.Natural.Visible, blnNatural);
      }
    }
  }
}

TEST_F(CardRevealTest, ChangesTheCaptionInPlaceWithAThirdCard) {
  prcLayCards("ffbffb");
  BaccTable.PTotal.Visible = BaccTable.BTotal.Visible = false;
  headless::Click(BaccTable.pctCardBack[2]);
  EXPECT_EQ(BaccTable.PTotal.Text, "9");
  headless::Click(BaccTable.pctCardBack[5]);
  EXPECT_EQ(BaccTable.BTotal.Text, "8");
  EXPECT_FALSE(BaccTable.PTotal.Visible || BaccTable.BTotal.Visible) << "only the caption changes";
}

TEST_F(CardRevealTest, UncoversTheUsualCornersOfATurnedCardByItsValue) {
  intPlayerValue1[0] = 10;
  intPlayerValue2[0] = 11;
  const char* const expected[]{"TR BL wide", "TR BL plain", "TR BL wide",
                               "TR BL wide", "TR BL wide",  "TR BL plain"};
  prcLayCards("bbbbbb");
  for (int n = 0; n < intPositions; ++n) {
    prcShowOuterPatches(BaccTable, fncPositionValue(n), n, true);
    headless::Click(BaccTable.pctCardBack[n]);
    EXPECT_EQ(fncCovered(n), expected[n]) << n;
    EXPECT_FALSE(BaccTable.lblCardBottom[n].Visible || BaccTable.lblCardRight[n].Visible);
  }
}

TEST_F(CardRevealTest, ShowsHandsOrArrowsOverEveryStrip) {
  prcLoadHands();
  for (int n = 0; n < intPositions; ++n) {
    EXPECT_EQ(BaccTable.lblCardBottom[n].MousePointer, Pointer::HandUp);
    EXPECT_EQ(BaccTable.lblCardRight[n].MousePointer, Pointer::HandRight);
  }
  prcLoadArrows();
  for (int n = 0; n < intPositions; ++n) {
    EXPECT_EQ(BaccTable.lblCardBottom[n].MousePointer, Pointer::SizeUpDown);
    EXPECT_EQ(BaccTable.lblCardRight[n].MousePointer, Pointer::SizeLeftRight);
  }
}

TEST_F(CardRevealTest, TellsAPositionOffTheTableUnderItsOwnLabelAndEnds) {
  EXPECT_THROW(pctCardBack_Click(6), EndOfProgram);
  ASSERT_EQ(headless::Boxes().size(), 1U);
  EXPECT_EQ(headless::Boxes()[0].Text,
            "Serious Error Occurred - Line 10 Error - 9-Subscript out of range\r\n"
            "'Baccarat table pctCardBack_Click'\r\nPLEASE RECORD ERROR MESSAGE");
}

struct Offer {
  int Value;
  bool blnShowValues;
  const char* Covered;
};

TEST_F(CardRevealTest, OffersACardToTheUserWithItsMarksCoveredBySetting) {
  const Offer offers[]{
      {1, true, "TL BR wide"},         {10, true, "TL BR wide"},         {11, true, "TL BR plain"},
      {10, false, "TL TR BL BR wide"}, {13, false, "TL TR BL BR plain"},
  };
  blnCardFaceUp = false;
  blnDealDelay = true;
  for (const Offer& offer : offers) {
    CardsInvisible();
    prcLayCards("l.....");
    blnShowCardValues = offer.blnShowValues;
    RevealCards(offer.Value, 0, BaccTable);
    EXPECT_EQ(fncCovered(0), offer.Covered) << offer.Value;
    EXPECT_TRUE(BaccTable.lblCardBottom[0].Visible && BaccTable.lblCardRight[0].Visible);
    EXPECT_TRUE(BaccTable.pctCardBack[0].Visible);
    EXPECT_EQ(headless::Now(), 0U);
  }
}

TEST_F(CardRevealTest, TurnsACardByItselfWithThePausesOfTheSetting) {
  blnCardFaceUp = true;
  for (const bool blnDelay : {false, true}) {
    for (int n = 0; n < intPositions; ++n) {
      CardsInvisible();
      prcLayCards("llllll");
      blnDealDelay = blnDelay;
      blnShowCardValues = n % 2 == 0;
      const std::uint32_t start = headless::Now();
      // A wait ends in the millisecond after its time.
      const std::uint32_t before = !blnDelay ? 0 : n == 0 || n == 3 ? 501 : 701;
      const std::uint32_t after = blnDelay ? 701 : 0;
      bool blnStillDown = true;
      bool blnThenUp = false;
      if (blnDelay) {
        headless::After(before - 1, [&] { blnStillDown = BaccTable.pctCardBack[n].Visible; });
        headless::After(before + 1, [&] { blnThenUp = !BaccTable.pctCardBack[n].Visible; });
      }
      RevealCards(n < 3 ? 12 : 9, n, BaccTable);
      EXPECT_EQ(headless::Now() - start, before + after) << n;
      EXPECT_TRUE(blnStillDown && (blnThenUp || !blnDelay)) << n;
      EXPECT_EQ(fncCovered(n), n < 3 ? "TR BL plain" : "TR BL wide");
      EXPECT_FALSE(BaccTable.pctCardBack[n].Visible);
      EXPECT_FALSE(BaccTable.lblCardBottom[n].Visible);
    }
  }
}

}  // namespace
