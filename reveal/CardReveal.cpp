#include "reveal/CardReveal.h"

#include <string>

#include "learn/CardNeed.h"
#include "platform/Procedure.h"
#include "platform/platform.h"
#include "table/Cards.h"
#include "table/Positions.h"
#include "table/TableState.h"

namespace {

/// The four patches of one family over a card.
struct Patches {
  Control &TopLeft, &TopRight, &BottomLeft, &BottomRight;
};

Patches fncPatches(BaccTableWindow& frm, Integer value, Integer n) {
  if (value < intFirstPicture) {
    return {frm.pctCardTopLeftWide[n], frm.pctCardTopRightWide[n], frm.pctCardBottomLeftWide[n],
            frm.pctCardBottomRightWide[n]};
  }
  return {frm.pctCardTopLeft[n], frm.pctCardTopRight[n], frm.pctCardBottomLeft[n],
          frm.pctCardBottomRight[n]};
}

void prcAdviseOnce(Integer Index) {
  if (blnLearn && BaccTable.blnCardsPlaced && !BaccTable.blnCardNeedShown) {
    CardNeed(Index);
  }
}

/// Shows the two-card total once the second card of the pair, whichever it is, has been turned.
void prcShowPair(const HandSide& side) {
  if (BaccTable.pctCardBack[side.First].Visible || BaccTable.pctCardBack[side.First + 1].Visible) {
    return;
  }
  side.TotalLabel.Text = std::to_string(side.Total2);
  side.TotalLabel.Visible = true;
  if (side.blnNatural) {
    side.NaturalLabel.Visible = true;
  }
}

/// A squeeze by dblPull twips, negative inwards, of a side of the back that is dblWhole long.
void prcSqueeze(Integer Index, double& dblSide, double dblWhole, double dblPull) {
  prcAdviseOnce(Index);
  if (!(dblPull < 0)) {
    return;
  }
  if (dblWhole + dblPull > 0) {
    dblSide = dblWhole + dblPull;
    // The hand waits in a poll meanwhile: left to the event loop, the card would lag behind.
    platform::RepaintNow(BaccTable.pctCardFace[Index]);
    platform::RepaintNow(BaccTable.pctCardBack[Index]);
    return;
  }
  pctCardBack_Click(Index);
}

void prcSetPointers(Pointer bottom, Pointer right) {
  for (int n = 0; n < intPositions; ++n) {
    BaccTable.lblCardBottom[n].MousePointer = bottom;
    BaccTable.lblCardRight[n].MousePointer = right;
  }
}

}  // namespace

void prcShowOuterPatches(BaccTableWindow& frm, Integer value, Integer Index, bool blnShow) {
  const Patches patches = fncPatches(frm, value, Index);
  patches.TopLeft.Visible = blnShow;
  patches.BottomRight.Visible = blnShow;
}

void prcShowInnerPatches(BaccTableWindow& frm, Integer value, Integer Index, bool blnShow) {
  const Patches patches = fncPatches(frm, value, Index);
  patches.TopRight.Visible = blnShow;
  patches.BottomLeft.Visible = blnShow;
}

void prcUncover(BaccTableWindow& frm, Integer Index, bool blnWaits) {
  Control& face = frm.pctCardFace[Index];
  frm.pctCardBack[Index].Flips = blnWaits && blnDealAnimation;
  frm.pctCardBack[Index].Visible = false;
  face.Spoken = fncSpokenPosition(Index) + ", " + fncCardName(face.Picture);
}

void pctCardBack_Click(Integer Index) {
  const Procedure running("Baccarat table pctCardBack_Click");
  // A strip held beyond the turn of its card goes on pulling, and would show the total of two
  // cards over that of three.
  if (!blnCardClickable[Index] || !BaccTable.pctCardBack[Index].Visible) {
    return;
  }
  running.Step(2);
  const Integer value = fncHandValue(intShoeNumber, Index);
  running.Step(3);
  BaccTable.lblCardBottom[Index].Visible = false;
  BaccTable.lblCardRight[Index].Visible = false;
  running.Step(4);
  prcShowInnerPatches(BaccTable, value, Index, true);
  prcShowOuterPatches(BaccTable, value, Index, false);
  running.Step(5);
  prcUncover(BaccTable, Index, true);
  platform::RepaintNow(BaccTable.pctCardFace[Index]);
  running.Step(6);
  const HandSide side = fncHandSide(Index);
  if (Index < side.First + 2) {
    prcShowPair(side);
  } else {
    side.TotalLabel.Text = std::to_string(side.Total);
  }
}

void pctCardBack_MouseMove(Integer Index) {
  const Procedure running("Baccarat table pctCardBack_MouseMove");
  prcAdviseOnce(Index);
}

void prcAdviseChosen(Integer Index) {
  // As if the mouse had left the card before: its advice must not stay for this one.
  BaccTable_MouseMove();
  prcAdviseOnce(Index);
}

void lblCardBottom_MouseMove(Integer Index, float Y) {
  const Procedure running("Baccarat table lblCardBottom_MouseMove");
  prcSqueeze(Index, BaccTable.pctCardBack[Index].Height, BaccTable.intCardHeight, Y);
}

void lblCardRight_MouseMove(Integer Index, float X) {
  const Procedure running("Baccarat table lblCardRight_MouseMove");
  prcSqueeze(Index, BaccTable.pctCardBack[Index].Width, BaccTable.intCardWidth, X);
}

void lblCardBottom_MouseUp(Integer Index) {
  BaccTable.pctCardBack[Index].Height = BaccTable.intCardHeight;
}

void lblCardRight_MouseUp(Integer Index) {
  BaccTable.pctCardBack[Index].Width = BaccTable.intCardWidth;
}

void BaccTable_MouseMove() {
  const Procedure running("Baccarat table Form_MouseMove");
  if (BaccTable.blnCardNeedShown) {
    BaccTable.blnCardNeedShown = false;
    BaccTable.lblCardNeedP.Visible = false;
    BaccTable.lblCardNeedB.Visible = false;
  }
}

void prcLoadHands() {
  const Procedure running("ZNEW prcLoadHands");
  prcSetPointers(Pointer::HandUp, Pointer::HandRight);
}

void prcLoadArrows() {
  const Procedure running("ZNEW prcLoadArrows");
  prcSetPointers(Pointer::SizeUpDown, Pointer::SizeLeftRight);
}
