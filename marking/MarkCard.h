#pragma once

#include <map>
#include <string>

#include "platform/Window.h"
#include "table/TableState.h"

// The marking card windows and what is done to them. Cards and shoes are numbered 0..8; only card 0
// is ever opened. Places and sizes are in twips.

/// A family of elements made as needed; element 0 is the designed one.
using ControlFamily = std::map<int, Control>;

struct MarkCardWindow {
  Window Form;
  Control Picture1, VScroll1, HScroll1, ScrollCorner, Shape1;
  ControlFamily lneHLine, lblTotal, lblBP, shpTBP, lblTBP;
  Control Timer1, tmrDeal;
};

/// Storage of the nine cards' windows; a window is open while colMarkCards holds it.
extern Table<MarkCardWindow, intShoes> MarkCards;

/// The open windows, by the decimal text of their handles.
extern std::map<std::string, MarkCardWindow*> colMarkCards;

inline constexpr int intColumnPitch = 345;
inline constexpr int intRowPitch = 300;
inline constexpr int intRowsBeforeGrowth = 9;

/// The open window of card 0..8, or none.
MarkCardWindow* fncMarkCard(Integer card);

/// The card number of an open window; none gives -1.
Integer fncMarkCardNumber(const Window& form);

/// Opens card 0..8, or brings up the window that has the handle lngHwnd. A card outside is a fault.
void NewCardViewForm(const Long& lngHwnd, const Integer& card);

/// Empties card 0..8 for a new shoe.
void ClearCardView(const Integer& card);

/// Draws the hand just dealt on card 0..8.
void SetCardView(const Integer& card);

/// Takes a closing window out of colMarkCards.
void RemoveCardViewForm(MarkCardWindow& form);

/// Lays out the scroll bars of the window of card 0..8.
void prcMarkCardResize(const Integer& card);

/// A tick of tmrDeal: the card deals its own shoe a hand further, if automatic dealing is on.
void tmrDeal_Timer(MarkCardWindow& form);
