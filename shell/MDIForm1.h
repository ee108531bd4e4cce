#pragma once

#include <string>

#include "platform/Window.h"

// The frame: its menus and toolbars, which show the user's switches, and the start and end of play.

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
  Control mOptions, mnuLargeButtons, mnuSep1, mnuArrows, mnuHands, mnuSep3, mnuStatistics, mnuSep6,
      mnuOptions;
  Control mnuWeb, mnuTarnlea;
  Control mnuHelp, mnuContents, mnuSep2, mnuAbout;
  Control tlbrMDIForm1, tlbrMDIForm2;
  Table<Control, intToolButtons> tlbrButtons1, tlbrButtons2;
  Control Timer1;
};
extern MDIFormWindow MDIForm1;

/// The button of the toolbar in use that has this key, such as "CardsDealt". An unknown key is a
/// fault.
Control& fncToolButton(const std::string& key);

/// Sets a check button of the toolbar in use down (1) or up (0) without an event.
void prcSetButton(const std::string& key, int value);

/// Shows the frame, loading it on first use.
void prcShowFrame();

/// The way out of the program: stores the frame's place, closes every window in its order and ends
/// the program.
void prcCloseFrame();

/// Brings menus, buttons, flags and shoe size up from the settings file.
void prcSetMenusAndButtons();

void prcLearn();
void prcShowCardsDealt();
void prcShowCardsDealtCount();
void prcPlayerBlue();
/// Sets the size of the next shoe, 1, 2, 4, 6 or 8 decks, and marks its entry and button.
void prcDecks(Integer decks, Control& button);
/// The same after the warning that a shoe is in play.
void prcDecksButtonWarning(Integer decks, Control& button);
void prcSetRevealIcons();
void prcStatistics();
void prcSelectaShoe();
void prcOptions();

/// Opens an address in the system's browser; a failure is told in one box titled varTitle.
void DisplayURL(const std::string& strURL, const std::string& varTitle);

/// Prepares the frame's events. Called once at the start of the program.
void prcPrepareFrame();
