#include "shell/Switches.h"

#include <algorithm>
#include <array>

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

/// When prcSetMenusAndButtons reads a switch: before or after the shoe size.
enum class Turn : std::uint8_t { First, Last };

struct Switch {
  Control& Entry;
  const char* Button;
  const char* Section;
  const char* Key;
  bool* Flag = nullptr;                  ///< None where the check mark itself is the flag.
  void (*Effect)(bool blnOn) = nullptr;  ///< What changes at once, beyond what others read.
  void (*StartsOn)() = nullptr;          ///< What it does when it comes up on from the file.
  bool blnWarns = false;                 ///< Acts from the next shoe on, and says so.
  Turn Read = Turn::First;
};

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

constexpr std::array switches{
    Switch{.Entry = MDIForm1.mnuLearn,
           .Button = "Learn",
           .Section = secFile,
           .Key = keyLearn,
           .Flag = &blnLearn,
           .Effect = prcShowLearnPanels},
    Switch{.Entry = MDIForm1.mnuCardFaceUpDown,
           .Button = "CardFaceUp",
           .Section = secCardOptions,
           .Key = keyCardFaceUp,
           .Flag = &blnCardFaceUp},
    Switch{.Entry = MDIForm1.mnuShowCardValues,
           .Button = "CardValues",
           .Section = secCardOptions,
           .Key = keyShowCardValues,
           .Flag = &blnShowCardValues},
    Switch{.Entry = MDIForm1.mnuShowCardsDealt,
           .Button = "CardsDealt",
           .Section = secCardOptions,
           .Key = keyShowCardsDealt,
           .Effect = prcCardsDealtShown},
    Switch{.Entry = MDIForm1.mnuShowCardsDealtCount,
           .Button = "CardsDealtCount",
           .Section = secCardOptions,
           .Key = keyShowCardsDealtCount,
           .Flag = &blnShowCardsDealtCount,
           .Effect = prcCountShown,
           .StartsOn = LoadlstCardsDealtCount},
    Switch{.Entry = MDIForm1.mnuShowScore,
           .Button = "ShowScore",
           .Section = secMarkingOptions,
           .Key = keyShowScore,
           .Flag = &blnShowScore},
    Switch{.Entry = MDIForm1.mnuShowNaturals,
           .Button = "ShowNaturals",
           .Section = secMarkingOptions,
           .Key = keyShowNaturals,
           .Flag = &blnShowNaturals},
    Switch{.Entry = MDIForm1.mnuPlayerBlue,
           .Button = "PlayerBlue",
           .Section = secPlayerBlue,
           .Key = keyPlayerBlue,
           .Flag = &blnPlayerBlue,
           .blnWarns = true},
    Switch{.Entry = MDIForm1.mnuDealDelay,
           .Button = "Delay",
           .Section = secDeal,
           .Key = keyDelay,
           .Flag = &blnDealDelay,
           .Read = Turn::Last},
    Switch{.Entry = MDIForm1.mnuDealAnimation,
           .Button = "Animation",
           .Section = secDeal,
           .Key = keyAnimation,
           .Flag = &blnDealAnimation,
           .Read = Turn::Last},
};

/// The routine of the switch that has this menu entry. A click on the toolbar has already moved the
/// button, one on the menu has not: in the end it shows what the entry does.
void prcTurn(Control& entry, const char* label) {
  const auto* const row =
      std::ranges::find_if(switches, [&](const Switch& other) { return &other.Entry == &entry; });
  const Procedure running(label);
  if (!row->blnWarns || fncChangeWanted()) {
    prcInvert(entry);
    const bool blnOn = entry.Value == 1;
    running.Step(2);
    prcWriteSwitch(row->Section, row->Key, blnOn);
    running.Step(3);
    if (row->Flag != nullptr) {
      *row->Flag = !*row->Flag;
    }
    running.Step(4);
    if (row->Effect != nullptr) {
      row->Effect(blnOn);
    }
  }
  running.Step(5);
  prcSetButton(row->Button, entry.Value == 1 ? 1 : 0);
}

void prcReadSwitches(Turn turn) {
  for (const Switch& row : switches) {
    if (row.Read != turn) {
      continue;
    }
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
}

}  // namespace

void prcInvert(Control& entry) { entry.Value = entry.Value == 1 ? 0 : 1; }

void prcLearn() { prcTurn(MDIForm1.mnuLearn, "MDIForm1_prcLearn"); }
void prcCardFaceUpDown() { prcTurn(MDIForm1.mnuCardFaceUpDown, "MDIForm1_prcCardFaceUpDown"); }
void prcShowCardValues() { prcTurn(MDIForm1.mnuShowCardValues, "MDIForm1_prcShowCardValues"); }
void prcShowCardsDealt() { prcTurn(MDIForm1.mnuShowCardsDealt, "MDIForm1_prcShowCardsDealt"); }
void prcShowCardsDealtCount() {
  prcTurn(MDIForm1.mnuShowCardsDealtCount, "MDIForm1_prcShowCardsDealtCount");
}
void prcShowScore() { prcTurn(MDIForm1.mnuShowScore, "MDIForm1_prcShowScore"); }
void prcShowNaturals() { prcTurn(MDIForm1.mnuShowNaturals, "MDIForm1_prcShowNaturals"); }
void prcPlayerBlue() { prcTurn(MDIForm1.mnuPlayerBlue, "MDIForm1_prcPlayerBlue"); }
void prcDelay() { prcTurn(MDIForm1.mnuDealDelay, "MDIForm1_prcDelay"); }
void prcAnimation() { prcTurn(MDIForm1.mnuDealAnimation, "MDIForm1_prcAnimation"); }

void prcSetMenusAndButtons() {
  const Procedure running("MDIForm1_prcSetMenusAndButtons");
  prcReadSwitches(Turn::First);
  prcReadShoeSize();
  running.Step(2);
  prcReadSwitches(Turn::Last);
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
