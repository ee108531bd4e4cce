#pragma once

#include "platform/Window.h"

// The frame: its menus and toolbars, which show the user's switches.

/// Buttons and separators of a toolbar, in order.
inline constexpr int intToolButtons = 28;

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
