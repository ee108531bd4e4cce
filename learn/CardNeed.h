#pragma once

#include "platform/Numbers.h"

/// Shows in the panel of its side what the hidden card at position 0..5 would have to be, as far as
/// that can be said. Sets blnCardNeedShown.
void CardNeed(const Integer& Index);

/// Shows or hides both advice panels with their default text.
void prcShowLearnPanels(bool blnShow);

/// Hides the panels and their advice: shapes and labels.
void prcHideLearnPanels();
