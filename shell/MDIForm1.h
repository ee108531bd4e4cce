#pragma once

#include <string>

#include "platform/Window.h"
#include "shell/Toolbar.h"

// The frame: its menus and toolbars, which show the user's switches, and the start and end of play.

struct MDIFormWindow {
  Window Form;
  Control mnuFile, mnuLearn, mnuSep5, mnuExit;
  Control mnuCardOptions, mnuCardFaceUpDown, mnuShowCardValues, mnuShowCardsDealt,
      mnuShowCardsDealtCount;
  Control mnuMarkingOptions, mnuShowScore, mnuShowNaturals, mnuPlayerBlue;
  Control mnuShoeSize;
  Table<Control, 5> mnuShoeSizeDecks;
  Control mnuDealing, mnuDealDelay, mnuDealAnimation;
  /// mOptions is the menu; mnuOptions is its last entry, which shows frmKaNori and is hidden.
  Control mOptions, mnuLargeButtons, mnuSep1, mnuArrows, mnuHands, mnuSep3, mnuStatistics, mnuSep6,
      mnuOptions;
  Control mnuWeb, mnuTarnlea;  ///< The Web menu, and its entry that gets the latest version.
  Control mnuHelp, mnuContents, mnuSep2, mnuAbout;
  Control tlbrMDIForm1, tlbrMDIForm2;
  Table<Control, intToolButtons> tlbrButtons1, tlbrButtons2;
  Control Timer1;
};
extern MDIFormWindow MDIForm1;

/// Shows the frame, loading it on first use.
void prcShowFrame();

/// The way out of the program: stores the frame's place, closes every window in its order and ends
/// the program.
void MDIForm1_Unload();

/// Turns mnuStatistics over and shows or hides the statistics, as a modal dialog.
void prcStatistics();

/// Shows the window of the nine shoes, or hides it. Nothing in the running program calls for it.
void prcSelectaShoe();

/// Turns mnuOptions over and shows or hides the options, as a modal dialog. Their entry and button
/// are hidden.
void prcOptions();

/// Where the program's pages lie on the web: a host under a reserved example domain, so that
/// nothing is ever fetched.
extern const char* const strWebSite;

/// Opens an address in the system's browser; a failure is told in one box titled varTitle.
void DisplayURL(const std::string& strURL, const std::string& varTitle);

/// Gives the frame its name, kind and events.
void prcPrepareFrame();
