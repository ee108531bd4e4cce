#include "shell/FrameMenus.h"

#include "betting/frmStatistics.h"
#include "platform/Layout.h"
#include "platform/Procedure.h"
#include "platform/platform.h"
#include "shell/About.h"
#include "shell/MDIForm1.h"
#include "shell/SettingsStore.h"
#include "shell/ShoeSize.h"
#include "shell/Switches.h"
#include "shell/frmKaNori.h"
#include "shell/frmSelectaShoe.h"

namespace {

/// Help with its contents and index, and not one topic.
constexpr int intContentsAndIndex = 0;

void prcLargeButtonsClick(Control& entry) {
  Guarded("MDIForm1_mnuLargeButtons_Click", [&] {
    At(10);
    prcInvert(entry);
    const bool blnLarge = entry.Value == 1;
    At(20);
    prcWriteSwitch("Options", "Large Buttons", blnLarge);
    At(30);
    prcUseToolbar(blnLarge);
    At(40);
    prcSetMenusAndButtons();
  });
}

void prcStatisticsClick(Control&) {
  Guarded("MDIForm1_mnuStatistics_Click", [] {
    At(10);
    // The routine comes back only when the dialog has closed, and the closing sets the button up.
    prcMoveButton("Statistics");
    At(20);
    prcStatistics();
  });
}

constexpr ControlEvents evtSwitch{.Click = prcSwitchEntry};
constexpr ControlEvents evtSize{.Click = prcSizeEntry};
constexpr ControlEvents evtReveal{.Click = [](Control&) { prcSetRevealIcons(); }};
constexpr ControlEvents evtLarge{.Click = prcLargeButtonsClick};
constexpr ControlEvents evtStatistics{.Click = prcStatisticsClick};
constexpr ControlEvents evtOptions{.Click = [](Control&) { prcOptions(); }};
constexpr ControlEvents evtExit{.Click = [](Control&) { prcCloseFrame(); }};
constexpr ControlEvents evtWeb{
    .Click = [](Control&) { DisplayURL(std::string(strWebSite) + "download.htm", "Velmora"); }};
constexpr ControlEvents evtContents{
    .Click = [](Control&) { platform::ShowHelp(strHelpFile, intContentsAndIndex); }};
constexpr ControlEvents evtAbout{.Click = [](Control&) { prcShowModal(KasSitas.Form); }};

constexpr const ControlEvents* evtTitle = nullptr;

/// An entry of the menu whose title stands above it; a title has no handlers.
struct MenuRow {
  Control& Entry;
  const char* Name;
  const char* Caption;
  const ControlEvents* On;
};

constexpr MenuRow menuRows[] = {
    {MDIForm1.mnuFile, "mnuFile", "&File", evtTitle},
    {MDIForm1.mnuLearn, "mnuLearn", "&Learn", &evtSwitch},
    {MDIForm1.mnuSep5, "mnuSep5", "-", &evtNone},
    {MDIForm1.mnuExit, "mnuExit", "E&xit", &evtExit},
    {MDIForm1.mnuCardOptions, "mnuCardOptions", "&Card Options", evtTitle},
    {MDIForm1.mnuCardFaceUpDown, "mnuCardFaceUpDown", "Cards Face &Up", &evtSwitch},
    {MDIForm1.mnuShowCardValues, "mnuShowCardValues", "Show Card &Values", &evtSwitch},
    {MDIForm1.mnuShowCardsDealt, "mnuShowCardsDealt", "Show Cards &Dealt", &evtSwitch},
    {MDIForm1.mnuShowCardsDealtCount, "mnuShowCardsDealtCount", "Show Cards Dealt &Count",
     &evtSwitch},
    {MDIForm1.mnuMarkingOptions, "mnuMarkingOptions", "&Marking Options", evtTitle},
    {MDIForm1.mnuShowScore, "mnuShowScore", "Show &Score", &evtSwitch},
    {MDIForm1.mnuShowNaturals, "mnuShowNaturals", "Show &Naturals", &evtSwitch},
    {MDIForm1.mnuPlayerBlue, "mnuPlayerBlue", "&Player Blue", &evtSwitch},
    {MDIForm1.mnuShoeSize, "mnuShoeSize", "&Shoe Size", evtTitle},
    {MDIForm1.mnuShoeSizeDecks[0], "mnuShoeSizeDecks", "&1 Deck", &evtSize},
    {MDIForm1.mnuShoeSizeDecks[1], "mnuShoeSizeDecks", "&2 Decks", &evtSize},
    {MDIForm1.mnuShoeSizeDecks[2], "mnuShoeSizeDecks", "&4 Decks", &evtSize},
    {MDIForm1.mnuShoeSizeDecks[3], "mnuShoeSizeDecks", "&6 Decks", &evtSize},
    {MDIForm1.mnuShoeSizeDecks[4], "mnuShoeSizeDecks", "&8 Decks", &evtSize},
    {MDIForm1.mnuDealing, "mnuDealing", "&Dealing", evtTitle},
    {MDIForm1.mnuDealDelay, "mnuDealDelay", "&Delay When Face Up", &evtSwitch},
    {MDIForm1.mnuDealAnimation, "mnuDealAnimation", "&Animation", &evtSwitch},
    {MDIForm1.mOptions, "mOptions", "&Options", evtTitle},
    {MDIForm1.mnuLargeButtons, "mnuLargeButtons", "&Large Buttons", &evtLarge},
    {MDIForm1.mnuSep1, "mnuSep1", "-", &evtNone},
    {MDIForm1.mnuArrows, "mnuArrows", "&Arrows to reveal cards", &evtReveal},
    {MDIForm1.mnuHands, "mnuHands", "&Hands to reveal cards", &evtReveal},
    {MDIForm1.mnuSep3, "mnuSep3", "-", &evtNone},
    {MDIForm1.mnuStatistics, "mnuStatistics", "&Statistics...", &evtStatistics},
    {MDIForm1.mnuSep6, "mnuSep6", "-", &evtNone},
    {MDIForm1.mnuOptions, "mnuOptions", "&Options...", &evtOptions},
    {MDIForm1.mnuWeb, "mnuWeb", "&Web", evtTitle},
    {MDIForm1.mnuTarnlea, "mnuTarnlea", "&Get the latest version of Velmora...", &evtWeb},
    {MDIForm1.mnuHelp, "mnuHelp", "&Help", evtTitle},
    {MDIForm1.mnuContents, "mnuContents", "&Contents and Index", &evtContents},
    {MDIForm1.mnuSep2, "mnuSep2", "-", &evtNone},
    {MDIForm1.mnuAbout, "mnuAbout", "&About Velmora", &evtAbout},
};

}  // namespace

void prcStatistics() {
  Guarded("MDIForm1_prcStatistics", [] {
    At(10);
    prcInvert(MDIForm1.mnuStatistics);
    At(20);
    if (MDIForm1.mnuStatistics.Value == 1) {
      prcShowModal(frmStatistics.Form);
    } else {
      frmStatistics.Form.Visible = false;
    }
  });
}

void prcSelectaShoe() {
  Guarded("MDIForm1_prcSelectaShoe", [] {
    At(10);
    prcLoad(frmSelectaShoe.Form);
    frmSelectaShoe.Form.Visible = !frmSelectaShoe.Form.Visible;
  });
}

void prcOptions() {
  Guarded("MDIForm1_prcOptions", [] {
    At(10);
    prcInvert(MDIForm1.mnuOptions);
    At(20);
    if (MDIForm1.mnuOptions.Value == 1) {
      prcShowModal(frmKaNori.Form);
    } else {
      frmKaNori.Form.Visible = false;
    }
  });
}

void prcLayOutMenus() {
  Control* menu = nullptr;
  for (const MenuRow& row : menuRows) {
    prcPlace(MDIForm1.Form,
             {&row.Entry, row.Name, -1, ControlKind::MenuEntry, 0, 0, 0, 0, row.Caption});
    if (row.On == evtTitle) {
      menu = &row.Entry;
    } else {
      row.Entry.Container = menu;
      row.Entry.On = row.On;
    }
  }
  for (int i = 0; i < MDIForm1.mnuShoeSizeDecks.size(); ++i) {
    MDIForm1.mnuShoeSizeDecks[i].Index = i;
  }
}
