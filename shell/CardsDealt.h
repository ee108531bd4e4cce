#pragma once

#include "platform/Window.h"

// The two floating windows that follow what has left the shoe on the table.

struct CardsDealtWindow {
  Window Form;
  Control lstCardsDealt, chkOnTop;
};
extern CardsDealtWindow frmCardsDealt;

struct CardsDealtCountWindow {
  Window Form;
  Control lstCardsDealtCount, chkOnTop;
  Control Label1, Label2, Label3, Label4;
};
extern CardsDealtCountWindow frmCardsDealtCount;

/// Rebuilds the list of the count window from varCardsDealtCount and shows it.
void LoadlstCardsDealtCount();

/// Empties the list of cards dealt, loading its window on first use.
void prcClearCardsDealt();

/// Sets the names and zeroes the counts of varCardsDealtCount.
void prcInitCardsDealtCount();

/// Adds the card at a position of shoe 0 to lstCardsDealt with a mark of up to 7 characters,
/// selects the row, and counts the card. Loads the window on first use.
void prcListCard(Integer position, const std::string& mark);

/// Gives both windows their names, kinds and events.
void prcPrepareCardsDealt();
