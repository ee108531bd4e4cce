#include "shell/FrameMenus.h"

#include <algorithm>
#include <string>

#include "platform/Layout.h"
#include "platform/Modal.h"
#include "platform/Procedure.h"
#include "platform/platform.h"
#include "shell/About.h"
#include "shell/Closing.h"
#include "shell/Dialogs.h"
#include "shell/MDIForm1.h"
#include "shell/SettingsStore.h"
#include "shell/ShoeSize.h"
#include "shell/Switches.h"
#include "shell/ToolButtons.h"
#include "shell/WebSite.h"
#include "table/Hooks.h"

namespace {

/// Help with its contents and index, and not one topic.
constexpr int intContentsAndIndex = 0;

void mnuLargeButtons_Click(Control& entry) {
  prcInvert(entry);
  const bool blnLarge = entry.Value == 1;
  prcWriteSwitch(secOptions, keyLargeButtons, blnLarge);
  prcUseToolbar(blnLarge);
  prcSetMenusAndButtons();
}

void mnuStatistics_Click(Control&) {
  // The routine comes back only when the dialog has closed, and the closing sets the button up.
  prcMoveButton("Statistics");
  prcStatistics();
}

void mnuTarnlea_Click(Control&) { DisplayURL(std::string(strWebSite) + "download.htm", "Velmora"); }

void mnuContents_Click(Control&) { platform::ShowHelp(strHelpFile, intContentsAndIndex); }

void mnuAbout_Click(Control&) { prcShowModal(KasSitas.Form); }

void mnuArrows_Click(Control&) { prcSetRevealIcons(); }
void mnuHands_Click(Control&) { prcSetRevealIcons(); }
void mnuOptions_Click(Control&) { prcOptions(); }
void mnuExit_Click(Control&) { MDIForm1_Unload(); }

enum class Rank : std::uint8_t { Title, Entry, Switch };

/// A menu's title, or an entry of the menu whose title stands above it. A switch has a place for a
/// check mark; separators have no click.
struct MenuRow {
  Control& Entry;
  const char* Name;
  const char* Caption;
  Rank Stands;
  void (*Click)(Control& entry) = nullptr;
};

MenuRow fncEntry(const Switch& row) {
  return {row.Entry, row.Name, row.Caption, Rank::Switch, row.Click};
}

const MenuRow menuRows[] = {
    {MDIForm1.mnuFile, "mnuFile", "&File", Rank::Title},
    fncEntry(swtLearn),
    {MDIForm1.mnuSep5, "mnuSep5", "-", Rank::Entry},
    {MDIForm1.mnuExit, "mnuExit", "E&xit", Rank::Entry, mnuExit_Click},
    {MDIForm1.mnuCardOptions, "mnuCardOptions", "&Card Options", Rank::Title},
    fncEntry(swtCardFaceUp),
    fncEntry(swtShowCardValues),
    fncEntry(swtShowCardsDealt),
    fncEntry(swtShowCardsDealtCount),
    {MDIForm1.mnuMarkingOptions, "mnuMarkingOptions", "&Marking Options", Rank::Title},
    fncEntry(swtShowScore),
    fncEntry(swtShowNaturals),
    fncEntry(swtPlayerBlue),
    {MDIForm1.mnuShoeSize, "mnuShoeSize", "&Shoe Size", Rank::Title},
    {MDIForm1.mnuShoeSizeDecks[0], "mnuShoeSizeDecks", "&1 Deck", Rank::Switch,
     mnuShoeSizeDecks_Click},
    {MDIForm1.mnuShoeSizeDecks[1], "mnuShoeSizeDecks", "&2 Decks", Rank::Switch,
     mnuShoeSizeDecks_Click},
    {MDIForm1.mnuShoeSizeDecks[2], "mnuShoeSizeDecks", "&4 Decks", Rank::Switch,
     mnuShoeSizeDecks_Click},
    {MDIForm1.mnuShoeSizeDecks[3], "mnuShoeSizeDecks", "&6 Decks", Rank::Switch,
     mnuShoeSizeDecks_Click},
    {MDIForm1.mnuShoeSizeDecks[4], "mnuShoeSizeDecks", "&8 Decks", Rank::Switch,
     mnuShoeSizeDecks_Click},
    {MDIForm1.mnuDealing, "mnuDealing", "&Dealing", Rank::Title},
    fncEntry(swtDelay),
    fncEntry(swtAnimation),
    {MDIForm1.mOptions, "mOptions", "&Options", Rank::Title},
    {MDIForm1.mnuLargeButtons, "mnuLargeButtons", "&Large Buttons", Rank::Switch,
     mnuLargeButtons_Click},
    {MDIForm1.mnuSep1, "mnuSep1", "-", Rank::Entry},
    {MDIForm1.mnuArrows, "mnuArrows", "&Arrows to reveal cards", Rank::Switch, mnuArrows_Click},
    {MDIForm1.mnuHands, "mnuHands", "&Hands to reveal cards", Rank::Switch, mnuHands_Click},
    {MDIForm1.mnuSep3, "mnuSep3", "-", Rank::Entry},
    {MDIForm1.mnuStatistics, "mnuStatistics", "&Statistics...", Rank::Entry, mnuStatistics_Click},
    {MDIForm1.mnuSep6, "mnuSep6", "-", Rank::Entry},
    {MDIForm1.mnuOptions, "mnuOptions", "&Options...", Rank::Entry, mnuOptions_Click},
    {MDIForm1.mnuWeb, "mnuWeb", "&Web", Rank::Title},
    {MDIForm1.mnuTarnlea, "mnuTarnlea", "&Get the latest version of Velmora...", Rank::Entry,
     mnuTarnlea_Click},
    {MDIForm1.mnuHelp, "mnuHelp", "&Help", Rank::Title},
    {MDIForm1.mnuContents, "mnuContents", "&Contents and Index", Rank::Entry, mnuContents_Click},
    {MDIForm1.mnuSep2, "mnuSep2", "-", Rank::Entry},
    {MDIForm1.mnuAbout, "mnuAbout", "&About Velmora", Rank::Entry, mnuAbout_Click},
};

void prcEntryClick(Control& entry) {
  const auto* const row =
      std::ranges::find_if(menuRows, [&](const MenuRow& other) { return &other.Entry == &entry; });
  const std::string label = std::string("MDIForm1_") + entry.Name + "_Click";
  const Procedure running(label.c_str());
  row->Click(entry);
}

constexpr ControlEvents evtEntry{.Click = prcEntryClick};

}  // namespace

void prcLayOutMenus() {
  Control* menu = nullptr;
  for (const MenuRow& row : menuRows) {
    if (&row.Entry == &MDIForm1.mnuWeb) {
      hooks.MenusLaidOut();
    }
    prcPlace(MDIForm1.Form,
             {&row.Entry, row.Name, -1, ControlKind::MenuEntry, 0, 0, 0, 0, row.Caption});
    if (row.Stands == Rank::Title) {
      menu = &row.Entry;
      continue;
    }
    row.Entry.Container = menu;
    row.Entry.On = row.Click != nullptr ? &evtEntry : &evtNone;
    row.Entry.Max = row.Stands == Rank::Switch ? 1 : 0;
  }
  MDIForm1.mnuExit.Shortcut = "Ctrl+Q";
  for (int i = 0; i < MDIForm1.mnuShoeSizeDecks.size(); ++i) {
    MDIForm1.mnuShoeSizeDecks[i].Index = i;
  }
}
