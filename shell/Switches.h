#pragma once

#include "platform/Window.h"

// The user's switches. Each has four faces that stay in step: the menu entry's check mark, the
// toolbar button, the key in the settings file and a flag in memory.

/// A click on the button of a switch has moved the button: the other three faces follow. Where the
/// user takes the change back in the warning, the button moves back.
void prcSwitchButton(Control& button);

/// A click on the menu entry of a switch: entry, key and flag change, then the button follows.
void prcSwitchEntry(Control& entry);

/// Asks whether a change that acts from the next shoe on is wanted, if a shoe is in play. True goes
/// on with it.
bool fncChangeWanted();

/// Brings menus, buttons, flags and shoe size up from the settings file.
void prcSetMenusAndButtons();

/// Turns between arrows and hands over the strips of the cards.
void prcSetRevealIcons();

/// Marks arrows or hands in menu and toolbar and loads their pointers.
void prcUseArrows(bool blnArrows);

/// Turns a check mark over.
void prcInvert(Control& entry);
