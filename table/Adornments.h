#pragma once

/// Brings what only adorns the table to what the rest of it shows: the golden button, the three
/// words that lead to a first hand, the places of the cards, the cards that wait for the user, and
/// the chips of each bet. Called before the table is drawn, so that nobody else has to think of
/// them; changes no state of the game.
void prcAdornTable();
