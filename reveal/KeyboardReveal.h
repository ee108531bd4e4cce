#pragma once

#include <string>

/// Reveal without the mouse, while cards lie for the user to turn: "1" to "6" choose by table
/// position (Player first, second, third, then the Banker's), "Right" and "Down" the next of the
/// cards that can be turned, "Left" and "Up" the one before, round the table; "Enter", "Return",
/// "Space" and " " turn the chosen one. The chosen card has the focus; in learn mode its advice is
/// shown, also when "Tab" has brought the focus there. Any other key, and any key while no card
/// waits, does nothing.
void prcRevealKey(const std::string& strKey);
