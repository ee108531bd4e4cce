#pragma once

#include <string>

#include "shell/MDIForm1.h"

// The buttons of the frame's two toolbars, found by their names: the same buttons with the same
// keys stand on both. Only one toolbar is shown, and every button is reached by its key there.

/// The buttons and separators of one of the two toolbars.
Table<Control, intToolButtons>& fncButtons(const Control& toolbar);

/// The toolbar in use: tlbrMDIForm1 or tlbrMDIForm2 of the frame.
extern Control* tlbrRef;

/// The button of the toolbar in use that has this key, such as "CardsDealt". An unknown key is a
/// fault.
Control& fncToolButton(const std::string& key);

/// Sets a button of the toolbar in use down (1) or up (0) without an event. Down in a group brings
/// its fellows up.
void prcSetButton(const std::string& key, int value);

/// The same for a given button of either toolbar.
void prcSetButton(Control& button, int value);

/// Moves a check button by hand: a button that is down comes up, any other goes down.
void prcMoveButton(const std::string& key);

/// Shows and enables the large or the small toolbar, hides and disables the other, and marks
/// mnuLargeButtons.
void prcUseToolbar(bool blnLarge);

/// Hides and disables a button on both toolbars.
void prcHideButton(const std::string& key);
