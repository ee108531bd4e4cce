#pragma once

#include "platform/Window.h"

// The user's switches. Each has four faces that stay in step: the menu entry's check mark, the
// toolbar button, the key in the settings file and a flag in memory.

/// The routines of the switches, for the click of a menu entry and of a toolbar button alike: each
/// turns over the entry's check mark, stores it, follows it with flag and button, and does what the
/// switch changes at once.
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
