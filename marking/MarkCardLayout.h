#pragma once

#include "marking/MarkCard.h"

/// Gives the controls of a card their kinds, places and looks, as the window is designed. Called by
/// its load.
void prcLayOutMarkCard(MarkCardWindow& form);
