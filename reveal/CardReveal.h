#pragma once

#include "platform/Numbers.h"
#include "platform/Window.h"
#include "table/BaccTable.h"

// Turning a card by click or squeeze. Index is the table position 0..5, any other is
// faultSubscript; mouse places are twips from the strip's corner. frm is the table window.

/// Face values from here up have the narrow marks beside a frame, and so the plain patches.
inline constexpr int intFirstPicture = 11;

/// Turns the card, if it may be turned and still lies hidden: patches, back, totals and naturals of
/// its side.
void pctCardBack_Click(Integer Index);

/// The advice of a card chosen by key, whatever advice has been shown before.
void prcAdviseChosen(Integer Index);

/// Gives advice in learn mode, once until the mouse has been over the bare table.
void pctCardBack_MouseMove(Integer Index);

/// A pull above or left of the strip: the back shrinks by just that much, and at the card's whole
/// size it turns. On the strip or beyond it the back stays as it is. Gives advice like the back.
void lblCardBottom_MouseMove(Integer Index, float Y);
void lblCardRight_MouseMove(Integer Index, float X);

/// Letting go makes the back whole again.
void lblCardBottom_MouseUp(Integer Index);
void lblCardRight_MouseUp(Integer Index);

/// The mouse is over the bare table: advice goes, the panels stay.
void BaccTable_MouseMove();

/// The pointers over the strips of all six positions.
void prcLoadHands();
void prcLoadArrows();

/// Takes the back off a card: from now on the ear may know what the face shows. Where a wait
/// follows anyway and cards move, the card is seen to turn over.
void prcUncover(BaccTableWindow& frm, Integer Index, bool blnWaits);

/// Shows or hides the two patches over the top left and bottom right marks, or over the other two,
/// of the family that goes with the face value. The other family is left alone.
void prcShowOuterPatches(BaccTableWindow& frm, Integer value, Integer Index, bool blnShow);
void prcShowInnerPatches(BaccTableWindow& frm, Integer value, Integer Index, bool blnShow);
