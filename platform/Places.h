#pragma once

#include "platform/Window.h"

/// Mends a stored place, which may be damaged or come from a larger screen: a window that has a
/// design gets no size below it and none far above, and every window comes up within the screens.
/// To be called by who has given a window a stored place; in twips, as the window's own fields.
void prcMendPlace(Window& window);
