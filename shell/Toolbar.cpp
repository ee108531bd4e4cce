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
  int Decks = 0;  ///< The shoe size that the button chooses, where it has no routine.
};

constexpr ToolRow rowSeparator{"Separator", ButtonStyle::Separator, 0, "", true, "", nullptr};

ToolRow fncButton(const Switch& row) {
  return {row.Button,  ButtonStyle::Check, row.Image, row.ButtonCaption, row.blnCaptionWhenSmall,
          row.ToolTip, row.Routine};
}

const std::array<ToolRow, intToolButtons> toolRows{{
    fncButton(swtLearn),
    rowSeparator,
    fncButton(swtCardFaceUp),
    fncButton(swtShowCardValues),
    fncButton(swtShowCardsDealt),
    fncButton(swtShowCardsDealtCount),
    rowSeparator,
    fncButton(swtShowScore),
    fncButton(swtShowNaturals),
    fncButton(swtPlayerBlue),
    rowSeparator,
    {"Decks1", ButtonStyle::Group, 9, "", true, "1 Deck of cards per shoe", nullptr, 1},
    {"Decks2", ButtonStyle::Group, 10, "", true, "2 Decks of cards per shoe", nullptr, 2},
    {"Decks4", ButtonStyle::Group, 11, "", true, "4 Decks of cards per shoe", nullptr, 4},
    {"Decks6", ButtonStyle::Group, 12, "", true, "6 Decks of cards per shoe", nullptr, 6},
    {"Decks8", ButtonStyle::Group, 13, "", true, "8 Decks of cards per shoe", nullptr, 8},
    rowSeparator,
    fncButton(swtDelay),
    fncButton(swtAnimation),
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
  const ToolRow& row = fncRow(button.Name);
  if (row.Routine != nullptr) {
    row.Routine();
  } else {
    prcDecksButtonWarning(row.Decks, button);
  }
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
