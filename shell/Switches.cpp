#include "shell/Switches.h"

#include "learn/CardNeed.h"
#include "platform/Procedure.h"
#include "reveal/CardReveal.h"
#include "shell/CardsDealt.h"
#include "shell/MDIForm1.h"
#include "shell/SettingsStore.h"
#include "shell/ShoeSize.h"
#include "shell/ToolButtons.h"
#include "table/TableState.h"

namespace {

void prcCardsDealtShown(bool blnOn) {
  prcLoad(frmCardsDealt.Form);
  frmCardsDealt.Form.Visible = blnOn;
}

void prcCountShown(bool blnOn) {
  if (blnOn) {
    LoadlstCardsDealtCount();
  } else {
    frmCardsDealtCount.Form.Visible = false;
  }
}

void mnuLearn_Click(Control&) { prcLearn(); }
void mnuCardFaceUpDown_Click(Control&) { prcCardFaceUpDown(); }
void mnuShowCardValues_Click(Control&) { prcShowCardValues(); }
void mnuShowCardsDealt_Click(Control&) { prcShowCardsDealt(); }
void mnuShowCardsDealtCount_Click(Control&) { prcShowCardsDealtCount(); }
void mnuShowScore_Click(Control&) { prcShowScore(); }
void mnuShowNaturals_Click(Control&) { prcShowNaturals(); }
void mnuPlayerBlue_Click(Control&) { prcPlayerBlue(); }
void mnuDealDelay_Click(Control&) { prcDelay(); }
void mnuDealAnimation_Click(Control&) { prcAnimation(); }

/// A click on the toolbar has already moved the button, one on the menu has not: in the end it
/// shows what the entry does.
void prcTurn(const Switch& row) {
  const Procedure running(row.RoutineLabel);
  Control& entry = row.Entry;
  if (!row.blnWarns || fncChangeWanted()) {
    prcInvert(entry);
    const bool blnOn = entry.Value == 1;
    running.Step(2);
    prcWriteSwitch(row.Section, row.Key, blnOn);
    running.Step(3);
    if (row.Flag != nullptr) {
      *row.Flag = blnOn;
    }
    running.Step(4);
    if (row.Effect != nullptr) {
      row.Effect(blnOn);
    }
  }
  running.Step(5);
  prcSetButton(row.Button, entry.Value == 1 ? 1 : 0);
}

void prcRead(const Switch& row) {
  const bool blnOn = fncSwitchedOn(row.Section, row.Key);
  row.Entry.Value = blnOn ? 1 : 0;
  if (row.Flag != nullptr) {
    *row.Flag = blnOn;
  }
  prcSetButton(row.Button, blnOn ? 1 : 0);
  if (blnOn && row.StartsOn != nullptr) {
    row.StartsOn();
  }
}

}  // namespace

constinit const Switch swtLearn{.Entry = MDIForm1.mnuLearn,
                                .Name = "mnuLearn",
                                .Caption = "&Learn",
                                .Button = "Learn",
                                .Image = 1,
                                .ToolTip = "Learn which cards are required to WIN",
                                .ButtonCaption = "Learn",
                                .Section = secFile,
                                .Key = keyLearn,
                                .Flag = &blnLearn,
                                .Routine = prcLearn,
                                .RoutineLabel = "MDIForm1_prcLearn",
                                .Click = mnuLearn_Click,
                                .Effect = prcShowLearnPanels};
constinit const Switch swtCardFaceUp{.Entry = MDIForm1.mnuCardFaceUpDown,
                                     .Name = "mnuCardFaceUpDown",
                                     .Caption = "Cards Face &Up",
                                     .Button = "CardFaceUp",
                                     .Image = 2,
                                     .ToolTip = "Cards dealt face up if pressed",
                                     .ButtonCaption = "Card Face Up",
                                     .Section = secCardOptions,
                                     .Key = keyCardFaceUp,
                                     .Flag = &blnCardFaceUp,
                                     .Routine = prcCardFaceUpDown,
                                     .RoutineLabel = "MDIForm1_prcCardFaceUpDown",
                                     .Click = mnuCardFaceUpDown_Click};
constinit const Switch swtShowCardValues{.Entry = MDIForm1.mnuShowCardValues,
                                         .Name = "mnuShowCardValues",
                                         .Caption = "Show Card &Values",
                                         .Button = "CardValues",
                                         .Image = 3,
                                         .ToolTip = "Card values shown when revealing card face",
                                         .Section = secCardOptions,
                                         .Key = keyShowCardValues,
                                         .Flag = &blnShowCardValues,
                                         .Routine = prcShowCardValues,
                                         .RoutineLabel = "MDIForm1_prcShowCardValues",
                                         .Click = mnuShowCardValues_Click};
constinit const Switch swtShowCardsDealt{.Entry = MDIForm1.mnuShowCardsDealt,
                                         .Name = "mnuShowCardsDealt",
                                         .Caption = "Show Cards &Dealt",
                                         .Button = "CardsDealt",
                                         .Image = 4,
                                         .ToolTip = "Show list of all cards dealt",
                                         .ButtonCaption = "Cards Dealt List",
                                         .blnCaptionWhenSmall = false,
                                         .Section = secCardOptions,
                                         .Key = keyShowCardsDealt,
                                         .Routine = prcShowCardsDealt,
                                         .RoutineLabel = "MDIForm1_prcShowCardsDealt",
                                         .Click = mnuShowCardsDealt_Click,
                                         .Effect = prcCardsDealtShown};
constinit const Switch swtShowCardsDealtCount{.Entry = MDIForm1.mnuShowCardsDealtCount,
                                              .Name = "mnuShowCardsDealtCount",
                                              .Caption = "Show Cards Dealt &Count",
                                              .Button = "CardsDealtCount",
                                              .Image = 5,
                                              .ToolTip = "Show count of all cards dealt",
                                              .ButtonCaption = "Cards Dealt Count",
                                              .blnCaptionWhenSmall = false,
                                              .Section = secCardOptions,
                                              .Key = keyShowCardsDealtCount,
                                              .Flag = &blnShowCardsDealtCount,
                                              .Routine = prcShowCardsDealtCount,
                                              .RoutineLabel = "MDIForm1_prcShowCardsDealtCount",
                                              .Click = mnuShowCardsDealtCount_Click,
                                              .Effect = prcCountShown,
                                              .StartsOn = LoadlstCardsDealtCount};
constinit const Switch swtShowScore{.Entry = MDIForm1.mnuShowScore,
                                    .Name = "mnuShowScore",
                                    .Caption = "Show &Score",
                                    .Button = "ShowScore",
                                    .Image = 6,
                                    .ToolTip = "Show Score when pressed otherwise units bet",
                                    .Section = secMarkingOptions,
                                    .Key = keyShowScore,
                                    .Flag = &blnShowScore,
                                    .Routine = prcShowScore,
                                    .RoutineLabel = "MDIForm1_prcShowScore",
                                    .Click = mnuShowScore_Click};
constinit const Switch swtShowNaturals{.Entry = MDIForm1.mnuShowNaturals,
                                       .Name = "mnuShowNaturals",
                                       .Caption = "Show &Naturals",
                                       .Button = "ShowNaturals",
                                       .Image = 7,
                                       .ToolTip = "Show Naturals as ovals on mark card",
                                       .Section = secMarkingOptions,
                                       .Key = keyShowNaturals,
                                       .Flag = &blnShowNaturals,
                                       .Routine = prcShowNaturals,
                                       .RoutineLabel = "MDIForm1_prcShowNaturals",
                                       .Click = mnuShowNaturals_Click};
constinit const Switch swtPlayerBlue{.Entry = MDIForm1.mnuPlayerBlue,
                                     .Name = "mnuPlayerBlue",
                                     .Caption = "&Player Blue",
                                     .Button = "PlayerBlue",
                                     .Image = 8,
                                     .ToolTip = "Player is blue when pressed down",
                                     .Section = secPlayerBlue,
                                     .Key = keyPlayerBlue,
                                     .Flag = &blnPlayerBlue,
                                     .Routine = prcPlayerBlue,
                                     .RoutineLabel = "MDIForm1_prcPlayerBlue",
                                     .Click = mnuPlayerBlue_Click,
                                     .blnWarns = true};
constinit const Switch swtDelay{.Entry = MDIForm1.mnuDealDelay,
                                .Name = "mnuDealDelay",
                                .Caption = "&Delay When Face Up",
                                .Button = "Delay",
                                .Image = 14,
                                .ToolTip = "Delay between showing cards when face up",
                                .Section = secDeal,
                                .Key = keyDelay,
                                .Flag = &blnDealDelay,
                                .Routine = prcDelay,
                                .RoutineLabel = "MDIForm1_prcDelay",
                                .Click = mnuDealDelay_Click};
constinit const Switch swtAnimation{.Entry = MDIForm1.mnuDealAnimation,
                                    .Name = "mnuDealAnimation",
                                    .Caption = "&Animation",
                                    .Button = "Animation",
                                    .Image = 15,
                                    .ToolTip = "Animation",
                                    .Section = secDeal,
                                    .Key = keyAnimation,
                                    .Flag = &blnDealAnimation,
                                    .Routine = prcAnimation,
                                    .RoutineLabel = "MDIForm1_prcAnimation",
                                    .Click = mnuDealAnimation_Click};

void prcInvert(Control& entry) { entry.Value = entry.Value == 1 ? 0 : 1; }

void prcLearn() { prcTurn(swtLearn); }
void prcCardFaceUpDown() { prcTurn(swtCardFaceUp); }
void prcShowCardValues() { prcTurn(swtShowCardValues); }
void prcShowCardsDealt() { prcTurn(swtShowCardsDealt); }
void prcShowCardsDealtCount() { prcTurn(swtShowCardsDealtCount); }
void prcShowScore() { prcTurn(swtShowScore); }
void prcShowNaturals() { prcTurn(swtShowNaturals); }
void prcPlayerBlue() { prcTurn(swtPlayerBlue); }
void prcDelay() { prcTurn(swtDelay); }
void prcAnimation() { prcTurn(swtAnimation); }

void prcSetMenusAndButtons() {
  const Procedure running("MDIForm1_prcSetMenusAndButtons");
  for (const Switch* row :
       {&swtLearn, &swtCardFaceUp, &swtShowCardValues, &swtShowCardsDealt, &swtShowCardsDealtCount,
        &swtShowScore, &swtShowNaturals, &swtPlayerBlue}) {
    prcRead(*row);
  }
  prcReadShoeSize();
  running.Step(2);
  prcRead(swtDelay);
  prcRead(swtAnimation);
  running.Step(3);
  prcSetButton("Statistics", MDIForm1.mnuStatistics.Value == 1 ? 1 : 0);
  running.Step(4);
  prcHideButton("SelectaShoe");
  prcHideButton("Options");
  running.Step(5);
  MDIForm1.mnuOptions.Enabled = MDIForm1.mnuOptions.Visible = false;
  MDIForm1.mnuSep6.Visible = false;
  running.Step(6);
  MDIForm1.Timer1.Enabled = true;
}

void prcSetRevealIcons() {
  const Procedure running("MDIForm1_prcSetRevealIcons");
  prcInvert(MDIForm1.mnuArrows);
  prcInvert(MDIForm1.mnuHands);
  running.Step(2);
  const bool blnArrows = MDIForm1.mnuArrows.Value == 1;
  prcWriteSwitch(secReveal, keyArrows, blnArrows);
  running.Step(3);
  prcUseArrows(blnArrows);
}

void prcUseArrows(bool blnArrows) {
  MDIForm1.mnuArrows.Value = blnArrows ? 1 : 0;
  MDIForm1.mnuHands.Value = blnArrows ? 0 : 1;
  prcSetButton(blnArrows ? "RevealArrows" : "RevealHands", 1);
  if (blnArrows) {
    prcLoadArrows();
  } else {
    prcLoadHands();
  }
}
