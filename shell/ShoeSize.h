#pragma once

#include "platform/Window.h"

// The size of the next shoe: 1, 2, 4, 6 or 8 decks, by menu, by toolbar and from the settings file.

/// Asks whether a change that acts from the next shoe on is wanted, if a shoe is in play. True goes
/// on with it.
bool fncChangeWanted();

/// Sets the size of the next shoe of the table, stores it, and marks its entry and button.
void prcDecks(Integer decks, Control& button);

/// The same after the warning that a shoe is in play; taken back, the size in force stays marked.
void prcDecksButtonWarning(Integer decks, Control& button);

/// A click on an entry of mnuShoeSizeDecks, Index 0..4.
void mnuShoeSizeDecks_Click(Control& entry);

/// Reads the size of all nine shoes from the settings file and marks that of the table's. One below
/// 1 or above 8 counts as 8; one between the five sizes stays and marks nothing.
void prcReadShoeSize();

/// Marks and stores the size of the table's shoe if it is one of the five.
void prcMarkShoeSize();
