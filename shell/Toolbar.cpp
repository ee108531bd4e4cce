#include "shell/Toolbar.h"

#include <algorithm>
#include <array>

#include "assets/Pictures.h"
#include "platform/Layout.h"
#include "platform/Procedure.h"
#include "platform/platform.h"
#include "shell/Dialogs.h"
#include "shell/MDIForm1.h"
#include "shell/ShoeSize.h"
#include "shell/Switches.h"
#include "shell/ToolButtons.h"

namespace {

/// A button as both toolbars show it; what its click does depends on the key alone.
struct ToolRow {
  const char* Key;
  ButtonStyle Style;
  int Image;
  const char* Caption;
  bool blnCaptionWhenSmall;
  const char* ToolTip;
  void (*Routine)();
};

constexpr ToolRow rowSeparator{"Separator", ButtonStyle::Separator, 0, "", true, "", nullptr};

constexpr std::array<ToolRow, intToolButtons> toolRows{{
    {"Learn", ButtonStyle::Check, 1, "Learn", true, "Learn which cards are required to WIN",
     prcLearn},
    rowSeparator,
    {"CardFaceUp", ButtonStyle::Check, 2, "Card Face Up", true, "Cards dealt face up if pressed",
     prcCardFaceUpDown},
    {"CardValues", ButtonStyle::Check, 3, "", true, "Card values shown when revealing card face",
     prcShowCardValues},
    {"CardsDealt", ButtonStyle::Check, 4, "Cards Dealt List", false, "Show list of all cards dealt",
     prcShowCardsDealt},
    {"CardsDealtCount", ButtonStyle::Check, 5, "Cards Dealt Count", false,
     "Show count of all cards dealt", prcShowCardsDealtCount},
    rowSeparator,
    {"ShowScore", ButtonStyle::Check, 6, "", true, "Show Score when pressed otherwise units bet",
     prcShowScore},
    {"ShowNaturals", ButtonStyle::Check, 7, "", true, "Show Naturals as ovals on mark card",
     prcShowNaturals},
    {"PlayerBlue", ButtonStyle::Check, 8, "", true, "Player is blue when pressed down",
     prcPlayerBlue},
    rowSeparator,
    {"Decks1", ButtonStyle::Group, 9, "", true, "1 Deck of cards per shoe",
     [] { prcSizeButton(1); }},
    {"Decks2", ButtonStyle::Group, 10, "", true, "2 Decks of cards per shoe",
     [] { prcSizeButton(2); }},
    {"Decks4", ButtonStyle::Group, 11, "", true, "4 Decks of cards per shoe",
     [] { prcSizeButton(4); }},
    {"Decks6", ButtonStyle::Group, 12, "", true, "6 Decks of cards per shoe",
     [] { prcSizeButton(6); }},
    {"Decks8", ButtonStyle::Group, 13, "", true, "8 Decks of cards per shoe",
     [] { prcSizeButton(8); }},
    rowSeparator,
    {"Delay", ButtonStyle::Check, 14, "", true, "Delay between showing cards when face up",
     prcDelay},
    {"Animation", ButtonStyle::Check, 15, "", true, "Animation", prcAnimation},
    rowSeparator,
    {"RevealArrows", ButtonStyle::Group, 16, "", true, "Use arrows to reveal cards",
     prcSetRevealIcons},
    {"RevealHands", ButtonStyle::Group, 17, "", true, "Use hands to reveal cards",
     prcSetRevealIcons},
    rowSeparator,
    {"Statistics", ButtonStyle::Check, 18, "", true, "Show Player Statistics", prcStatistics},
    rowSeparator,
    {"SelectaShoe", ButtonStyle::Check, 21, "", true, "Select a shoe to play", prcSelectaShoe},
    rowSeparator,
    {"Options", ButtonStyle::Check, 20, "", true, "General Options", prcOptions},
}};

const ToolRow& fncRow(const std::string& key) {
  const auto* const row = std::ranges::find(toolRows, key, &ToolRow::Key);
  if (row == toolRows.end()) {
    throw faultSubscript;
  }
  return *row;
}

void tlbrMDIForm1_ButtonClick(Control& button) {
  const Procedure running("MDIForm1_tlbrMDIForm1_ButtonClick");
  fncRow(button.Name).Routine();
}

void tlbrMDIForm2_ButtonClick(Control& button) { tlbrMDIForm1_ButtonClick(button); }

constexpr ControlEvents evtLargeButton{.Click = tlbrMDIForm1_ButtonClick};
constexpr ControlEvents evtSmallButton{.Click = tlbrMDIForm2_ButtonClick};

void prcLayOutToolbar(Control& toolbar, const char* name, double top, double height,
                      bool blnLarge) {
  prcPlace(MDIForm1.Form,
           {&toolbar, name, -1, ControlKind::Toolbar, 0, top, platform::ScreenWidth(), height});
  toolbar.Spoken = "Toolbar";
  Table<Control, intToolButtons>& buttons = fncButtons(toolbar);
  for (int i = 0; i < intToolButtons; ++i) {
    const ToolRow& row = toolRows[static_cast<std::size_t>(i)];
    const char* const caption = blnLarge || row.blnCaptionWhenSmall ? row.Caption : "";
    prcPlace(MDIForm1.Form, {&buttons[i], row.Key, -1, ControlKind::ToolButton, 0, 0, 0, height,
                             caption, row.ToolTip});
    buttons[i].Container = &toolbar;
    buttons[i].Style = row.Style;
    buttons[i].Picture = row.Image == 0 ? 0 : picToolbar + row.Image;
    buttons[i].On = row.Style == ButtonStyle::Separator ? &evtNone
                    : blnLarge                          ? &evtLargeButton
                                                        : &evtSmallButton;
  }
}

}  // namespace

void prcLayOutToolbars() {
  prcLayOutToolbar(MDIForm1.tlbrMDIForm1, "tlbrMDIForm1", 420, 540, true);
  prcLayOutToolbar(MDIForm1.tlbrMDIForm2, "tlbrMDIForm2", 960, 420, false);
}
