#include "shell/Switches.h"

#include <algorithm>
#include <array>

#include "learn/CardNeed.h"
#include "platform/Procedure.h"
#include "platform/platform.h"
#include "reveal/CardReveal.h"
#include "shell/CardsDealt.h"
#include "shell/MDIForm1.h"
#include "shell/SettingsStore.h"
#include "shell/ShoeSize.h"
#include "shell/Toolbar.h"
#include "table/TableState.h"

namespace {

/// When prcSetMenusAndButtons reads a switch: before or after the shoe size.
enum class Turn : std::uint8_t { First, Last };

struct Switch {
  Control& Entry;
  const char* Button;
  const char* Section;
  const char* Key;
  const char* Routine;                   ///< Its label.
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
           .Section = "File",
           .Key = "Learn",
           .Routine = "MDIForm1_prcLearn",
           .Flag = &blnLearn,
           .Effect = prcShowLearnPanels},
    Switch{.Entry = MDIForm1.mnuCardFaceUpDown,
           .Button = "CardFaceUp",
           .Section = "Card Options",
           .Key = "Card Face Up",
           .Routine = "MDIForm1_prcCardFaceUpDown",
           .Flag = &blnCardFaceUp},
    Switch{.Entry = MDIForm1.mnuShowCardValues,
           .Button = "CardValues",
           .Section = "Card Options",
           .Key = "Show Card Values",
           .Routine = "MDIForm1_prcShowCardValues",
           .Flag = &blnShowCardValues},
    Switch{.Entry = MDIForm1.mnuShowCardsDealt,
           .Button = "CardsDealt",
           .Section = "Card Options",
           .Key = "Show Cards Dealt",
           .Routine = "MDIForm1_prcShowCardsDealt",
           .Effect = prcCardsDealtShown},
    Switch{.Entry = MDIForm1.mnuShowCardsDealtCount,
           .Button = "CardsDealtCount",
           .Section = "Card Options",
           .Key = "Show Cards Dealt Count",
           .Routine = "MDIForm1_prcShowCardsDealtCount",
           .Flag = &blnShowCardsDealtCount,
           .Effect = prcCountShown,
           .StartsOn = LoadlstCardsDealtCount},
    Switch{.Entry = MDIForm1.mnuShowScore,
           .Button = "ShowScore",
           .Section = "Marking Options",
           .Key = "Show Score",
           .Routine = "MDIForm1_prcShowScore",
           .Flag = &blnShowScore},
    Switch{.Entry = MDIForm1.mnuShowNaturals,
           .Button = "ShowNaturals",
           .Section = "Marking Options",
           .Key = "Show Naturals",
           .Routine = "MDIForm1_prcShowNaturals",
           .Flag = &blnShowNaturals},
    Switch{.Entry = MDIForm1.mnuPlayerBlue,
           .Button = "PlayerBlue",
           .Section = "Player Blue",
           .Key = "PlayerBlue",
           .Routine = "MDIForm1_prcPlayerBlue",
           .Flag = &blnPlayerBlue,
           .blnWarns = true},
    Switch{.Entry = MDIForm1.mnuDealDelay,
           .Button = "Delay",
           .Section = "Deal",
           .Key = "Delay",
           .Routine = "MDIForm1_prcDelay",
           .Flag = &blnDealDelay,
           .Read = Turn::Last},
    Switch{.Entry = MDIForm1.mnuDealAnimation,
           .Button = "Animation",
           .Section = "Deal",
           .Key = "Animation",
           .Routine = "MDIForm1_prcAnimation",
           .Flag = &blnDealAnimation,
           .Read = Turn::Last},
};

/// The routine of a switch. Returns whether the change went through.
bool fncTurn(const Switch& row) {
  return Guarded(row.Routine, [&] {
    if (row.blnWarns && !fncChangeWanted()) {
      return false;
    }
    At(10);
    prcInvert(row.Entry);
    const bool blnOn = row.Entry.Value == 1;
    At(20);
    prcWriteSwitch(row.Section, row.Key, blnOn);
    At(30);
    if (row.Flag != nullptr) {
      *row.Flag = !*row.Flag;
    }
    At(40);
    if (row.Effect != nullptr) {
      row.Effect(blnOn);
    }
    return true;
  });
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

void prcSwitchButton(Control& button) {
  const auto* const row = std::ranges::find(switches, std::string(button.Name), &Switch::Button);
  if (!fncTurn(*row)) {
    prcMoveButton(row->Button);
  }
}

void prcSwitchEntry(Control& entry) {
  const auto* const row =
      std::ranges::find_if(switches, [&](const Switch& other) { return &other.Entry == &entry; });
  if (fncTurn(*row)) {
    At(20);
    prcMoveButton(row->Button);
  }
}

bool fncChangeWanted() {
  if (!blnShuffled[intShoeNumber] || blnEndOfShoe[intShoeNumber]) {
    return true;
  }
  return platform::MsgBox("Note! change effective only after end of shoe",
                          platform::Icon::Exclamation, "Velmora", platform::Buttons::OkCancel,
                          platform::Answer::Cancel) == platform::Answer::Ok;
}

void prcSetMenusAndButtons() {
  Guarded("MDIForm1_prcSetMenusAndButtons", [] {
    At(10);
    prcReadSwitches(Turn::First);
    prcReadShoeSize();
    At(60);
    prcReadSwitches(Turn::Last);
    At(70);
    prcSetButton("Statistics", MDIForm1.mnuStatistics.Value == 1 ? 1 : 0);
    At(80);
    prcHideButton("SelectaShoe");
    prcHideButton("Options");
    At(90);
    MDIForm1.mnuOptions.Enabled = MDIForm1.mnuOptions.Visible = false;
    MDIForm1.mnuSep6.Visible = false;
    At(100);
    MDIForm1.Timer1.Enabled = true;
  });
}

void prcSetRevealIcons() {
  Guarded("MDIForm1_prcSetRevealIcons", [] {
    At(10);
    prcInvert(MDIForm1.mnuArrows);
    prcInvert(MDIForm1.mnuHands);
    At(20);
    const bool blnArrows = MDIForm1.mnuArrows.Value == 1;
    prcWriteSwitch("Reveal", "Arrows", blnArrows);
    At(30);
    prcUseArrows(blnArrows);
  });
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
