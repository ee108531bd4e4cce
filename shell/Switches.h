#pragma once

#include "platform/Window.h"

// The user's switches. Each has four faces that stay in step: the menu entry's check mark, the
// button on both toolbars, the key in the settings file and a flag in memory. The row of a switch
// is all that menu, toolbars and file are made from.

struct Switch {
  Control& Entry;
  const char* Name;  ///< Of the entry.
  const char* Caption;
  const char* Button;  ///< The key of its button.
  int Image;           ///< Of the button, counted from picToolbar.
  const char* ToolTip;
  const char* ButtonCaption = "";
  bool blnCaptionWhenSmall = true;  ///< The small toolbar shows the caption too.
  const char* Section;
  const char* Key;
  bool* Flag = nullptr;      ///< None where the check mark itself is the flag.
  void (*Routine)();         ///< Turns it, for a click on the entry and on the button alike.
  const char* RoutineLabel;  ///< Under which a fault in Routine is told.
  void (*Click)(Control&);   ///< Of the entry.
  void (*Effect)(bool blnOn) = nullptr;  ///< What changes at once, beyond what others read.
  void (*StartsOn)() = nullptr;          ///< What it does when it comes up on from the file.
  bool blnWarns = false;                 ///< Acts from the next shoe on, and says so.
};

extern const Switch swtLearn, swtCardFaceUp, swtShowCardValues, swtShowCardsDealt,
    swtShowCardsDealtCount, swtShowScore, swtShowNaturals, swtPlayerBlue, swtDelay, swtAnimation;

/// The routines of the switches: each turns over the entry's check mark, stores it, follows it with
/// flag and button, and does what the switch changes at once.
void prcLearn();
void prcCardFaceUpDown();
void prcShowCardValues();
void prcShowCardsDealt();
void prcShowCardsDealtCount();
void prcShowScore();
void prcShowNaturals();
void prcDelay();
void prcAnimation();

/// The same for Player Blue, which asks first while a shoe is in play; taken back, nothing changes.
void prcPlayerBlue();

/// Brings menus, buttons, flags and shoe size up from the settings file.
void prcSetMenusAndButtons();

/// Turns between arrows and hands over the strips of the cards.
void prcSetRevealIcons();

/// Marks arrows or hands in menu and toolbar and loads their pointers.
void prcUseArrows(bool blnArrows);

/// Turns a check mark over.
void prcInvert(Control& entry);
