#pragma once

#include "platform/Numbers.h"

/// Shows in the panel of its side what the hidden card at position 0..5 would have to be, as far as
/// that can be said; otherwise the panels stay as they are. Sets blnCardNeedShown either way.
void CardNeed(const Integer& Index);

/// Gives both panels their default text and shows them, or hides shapes and labels.
void prcShowLearnPanels(bool blnShow);

/// Hides the panels and their advice: shapes and labels.
void prcHideLearnPanels();
