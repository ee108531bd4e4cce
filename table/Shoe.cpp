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
#include "table/Cards.h"
#include "table/FreeSlots.h"
#include "table/Random.h"
#include "table/SeatResults.h"
#include "table/TableStatus.h"
#include "table/Waits.h"

namespace {

/// A new shoe begins: its marking cards are cleared and its hands start anew.
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

void prcListBurnt(const Integer& intShoe) {
  prcClearCardsDealt();
  for (int p = 0; p <= intNextCard[intShoe]; ++p) {
    const Integer slot = intShoeCards[intShoe][p];
    prcListCard(slot, intCardValue[intShoe][slot], "<-Burnt");
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
  Guarded("Baccarat table maisyk_Click", [] {
    At(10);
    if (!blnEndOfShoe[intShoeNumber]) {
      const platform::Answer answer =
          platform::MsgBox("Not at end of shoe", platform::Icon::Exclamation, "Velmora",
                           platform::Buttons::OkCancel, platform::Answer::Cancel);
      if (answer == platform::Answer::Cancel) {
        return;
      }
    }
    At(20);
    prcShuffleTable();
  });
}

void prcShuffleTable() {
  Guarded("Baccarat table maisyk_Click", [] {
    At(10);
    prcBettingEnableDisable(false);
    At(20);
    blnBusy = true;
    At(30);
    prcMarkCardTimers();
    At(40);
    BaccTable.lblNaturalP.Visible = BaccTable.lblNaturalB.Visible = false;
    At(50);
    if (BaccTable.Form.Visible) {
      platform::Activate(BaccTable.Form);
    }
    At(60);
    prcHideForShuffle();
    At(70);
    prcShowShuffling(true);
    At(80);
    CardsInvisible();
    ResultsInvisible();
    At(90);
    prcClearForShuffle();
    At(100);
    prcHideSeatResults();
    At(110);
    prcMendShoeSize(intShoeNumber);
    intDecksInPlay[intShoeNumber] = intDecks[intShoeNumber];
    At(120);
    prcWaitSeconds(2);
    At(130);
    Shuffle(intShoeNumber);
    At(140);
    blnBusy = false;
    At(150);
    prcShowShuffling(false);
    At(160);
    prcTableStatus(intShoeNumber);
    At(170);
    if (BaccTable.Form.Visible) {
      platform::Activate(BaccTable.Form);
      fncSetFocus(BaccTable.duokkortos[0]);
    }
  });
}

void Shuffle(const Integer& intShoe) {
  Guarded("Shuffle", [&] {
    At(10);
    prcResetShoe(intShoe);
    At(20);
    blnShoePlayerBlue[intShoe] = blnPlayerBlue;
    At(30);
    prcMendShoeSize(intShoe);
    intLastCard[intShoe] = intDecks[intShoe] * intSlotsOfDeck - 1;
    At(40);
    intCardValue[intShoe].prcBound(intLastCard[intShoe]);
    intShoeCards[intShoe].prcBound(intLastCard[intShoe]);
    FreeSlots free;
    At(50);
    if (intShoe == intShoeNumber) {
      BaccTable.prgShoe.Max = intLastCard[intShoe];
    }
    At(60);
    if (intShoe == 0) {
      prcInitCardsDealtCount();
    }
    At(70);
    prcSeedRandom(platform::RandomSeed());
    At(80);
    prcFill(intShoe, free);
    At(90);
    prcPlaceCards(intShoe, free);
    At(100);
    const Integer burnt = intCardValue[intShoe][intShoeCards[intShoe][0]];
    intNextCard[intShoe] = burnt > 9 ? 10 : int{burnt};
    At(110);
    if (intShoe == 0) {
      prcListBurnt(intShoe);
    }
    At(120);
    ++intNextCard[intShoe];
    At(130);
    if (intShoe == intShoeNumber) {
      BaccTable.prgShoe.Value = intNextCard[intShoe];
    }
  });
}
