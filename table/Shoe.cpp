#include "table/Shoe.h"

#include <algorithm>

#include "marking/MarkCard.h"
#include "marking/MarkState.h"
#include "platform/Procedure.h"
#include "platform/platform.h"
#include "shell/CardsDealt.h"
#include "shell/ShoeSize.h"
#include "shell/ToolButtons.h"
#include "table/BaccTable.h"
#include "table/FreeSlots.h"
#include "table/Random.h"
#include "table/SeatResults.h"
#include "table/TableStatus.h"
#include "table/Waits.h"

namespace {

/// A new shoe begins: its marking cards are cleared and its hands start anew. A card has the number
/// of the shoe that it shows, so i is both.
void prcResetShoe(const Integer& intShoe) {
  for (int i = 0; i < intShoes; ++i) {
    if (intMarkCardShoe[i] != intShoe) {
      continue;
    }
    ClearCardView(i);
    blnLastHand[i] = false;
    blnEndOfShoe[i] = false;
    blnShuffled[i] = true;
    intHandsDealt[i] = 0;
    intScoreUnits[i] = intRun[i] = intColumn[i] = intTieRun[i] = 0;
    blnScoreStarted[i] = false;
  }
}

/// A size from the settings that is none of the five never becomes a shoe: eight decks are taken
/// instead, and marked as chosen where it is the shoe on the table.
void prcMendShoeSize(const Integer& intShoe) {
  if (std::ranges::find(intShoeSizes, int{intDecks[intShoe]}) != intShoeSizes.end()) {
    return;
  }
  intDecks[intShoe] = intShoeSizes.back();
  if (intShoe == intShoeNumber) {
    prcDecks(intShoeSizes.back(), fncToolButton("Decks8"));
  }
}

void prcFill(const Integer& intShoe, FreeSlots& free) {
  SlotRow& order = intShoeCards[intShoe];
  SlotRow& values = intCardValue[intShoe];
  int face = 1;
  for (int i = 0; i <= intLastCard[intShoe]; ++i) {
    order[i] = 0;
    free.prcFree(i);
    values[i] = face;
    face = face == 13 ? 1 : face + 1;
    platform::DoEvents();
  }
}

/// A slot not yet used: the one hit, or from there the next free one up or down, round the ends.
int fncFreeSlot(int last, const FreeSlots& free) {
  const int slot = static_cast<int>(fncRound(double{fncRandom()} * last));
  if (free.fncIsFree(slot)) {
    return slot;
  }
  const bool blnDown = fncRandom() < 0.5F;
  return blnDown ? free.fncDownFrom(slot) : free.fncUpFrom(slot);
}

void prcPlaceCards(const Integer& intShoe, FreeSlots& free) {
  SlotRow& order = intShoeCards[intShoe];
  for (int i = 0; i <= intLastCard[intShoe]; ++i) {
    const int slot = fncFreeSlot(intLastCard[intShoe], free);
    order[i] = slot;
    free.prcUse(slot);
    platform::DoEvents();
  }
}

void prcListBurnt() {
  prcClearCardsDealt();
  for (int p = 0; p <= intNextCard[0]; ++p) {
    prcListCard(p, "<-Burnt");
  }
  if (blnShowCardsDealtCount) {
    LoadlstCardsDealtCount();
  }
}

void prcHideForShuffle() {
  BaccTable.maisyk.Visible = false;
  BaccTable.mskHandsAtaTime.Visible = BaccTable.mskHandsAtaTime.Enabled = false;
  BaccTable.txtUnitValue.Enabled = true;
  for (Control& button : BaccTable.duokkortos) {
    button.Visible = false;
  }
}

void prcClearForShuffle() {
  BaccTableWindow& table = BaccTable;
  for (Control* label : {&table.PTotal, &table.BTotal, &table.WinP, &table.WinB, &table.TieResultP,
                         &table.TieResultB}) {
    label->Visible = false;
  }
  table.PTotal.Text = table.BTotal.Text = "0";
  table.FormLastHand.Visible = table.FormEndofShoe.Visible = false;
  table.mskHandsAtaTime.Text = "1";
}

void prcShowShuffling(bool blnShow) {
  for (Control& label : BaccTable.lblShuffleInProgress) {
    label.Visible = blnShow;
  }
}

}  // namespace

void maisyk_Click() {
  const Procedure running("Baccarat table maisyk_Click");
  if (!blnEndOfShoe[intShoeNumber]) {
    const platform::Answer answer =
        platform::MsgBox("Not at end of shoe", platform::Icon::Exclamation, "Velmora",
                         platform::Buttons::OkCancel, platform::Answer::Cancel);
    if (answer == platform::Answer::Cancel) {
      return;
    }
  }
  running.Step(2);
  prcShuffleTable();
}

void prcShuffleTable() {
  const Procedure running("Baccarat table maisyk_Click");
  prcBettingEnableDisable(false);
  running.Step(2);
  blnBusy = true;
  running.Step(3);
  prcMarkCardTimers();
  running.Step(4);
  BaccTable.lblNaturalP.Visible = BaccTable.lblNaturalB.Visible = false;
  running.Step(5);
  if (BaccTable.Form.Visible) {
    platform::Activate(BaccTable.Form);
  }
  running.Step(6);
  prcHideForShuffle();
  running.Step(7);
  prcShowShuffling(true);
  running.Step(8);
  CardsInvisible();
  ResultsInvisible();
  running.Step(9);
  prcClearForShuffle();
  running.Step(10);
  prcHideSeatResults();
  running.Step(11);
  prcMendShoeSize(intShoeNumber);
  intDecksInPlay[intShoeNumber] = intDecks[intShoeNumber];
  running.Step(12);
  prcWaitSeconds(2);
  running.Step(13);
  Shuffle(intShoeNumber);
  running.Step(14);
  blnBusy = false;
  running.Step(15);
  prcShowShuffling(false);
  running.Step(16);
  prcTableStatus(intShoeNumber);
  running.Step(17);
  if (BaccTable.Form.Visible) {
    platform::Activate(BaccTable.Form);
    fncSetFocus(BaccTable.duokkortos[0]);
  }
}

void Shuffle(const Integer& intShoe) {
  const Procedure running("Shuffle");
  prcResetShoe(intShoe);
  running.Step(2);
  blnShoePlayerBlue[intShoe] = blnPlayerBlue;
  running.Step(3);
  prcMendShoeSize(intShoe);
  intLastCard[intShoe] = intDecks[intShoe] * intSlotsOfDeck - 1;
  running.Step(4);
  intCardValue[intShoe].prcBound(intLastCard[intShoe]);
  intShoeCards[intShoe].prcBound(intLastCard[intShoe]);
  FreeSlots free;
  running.Step(5);
  if (intShoe == intShoeNumber) {
    BaccTable.prgShoe.Max = intLastCard[intShoe];
  }
  running.Step(6);
  if (intShoe == 0) {
    prcInitCardsDealtCount();
  }
  running.Step(7);
  prcSeedRandom(platform::RandomSeed());
  running.Step(8);
  prcFill(intShoe, free);
  running.Step(9);
  prcPlaceCards(intShoe, free);
  running.Step(10);
  const Integer burnt = intCardValue[intShoe][intShoeCards[intShoe][0]];
  intNextCard[intShoe] = burnt > 9 ? 10 : int{burnt};
  running.Step(11);
  if (intShoe == 0) {
    prcListBurnt();
  }
  running.Step(12);
  ++intNextCard[intShoe];
  running.Step(13);
  if (intShoe == intShoeNumber) {
    BaccTable.prgShoe.Value = intNextCard[intShoe];
  }
}
