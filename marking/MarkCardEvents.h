#pragma once

#include "marking/MarkCard.h"

// The life of a marking card's window: it opens, answers its user, and closes.

/// Opens card 0..8, or brings up the window that has the handle lngHwnd. A card that is open
/// already is brought up too: it has one window. A card outside is a fault.
void NewCardViewForm(const Long& lngHwnd, const Integer& card);

/// Gives a card's window its width and place across the frame's field: clear of the border, and a
/// little left of the middle.
void prcPlaceAcross(Window& form);

/// Takes a closing window out of colMarkCards; its card has none from then on.
void RemoveCardViewForm(MarkCardWindow& form);

/// Lays out the scroll bars of the window of card 0..8 by its inner size. A card without a window
/// is left alone; a card outside is a fault.
void prcMarkCardResize(const Integer& card);
