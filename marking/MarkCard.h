#pragma once

#include <map>
#include <string>

#include "platform/Window.h"
#include "table/TableState.h"

// The marking card windows and what is done to them. In this folder card is a marking card, 0..8
// like the shoes; only card 0 is ever opened. Places and sizes are in twips.

/// A family of elements made as needed; element 0 is the designed one.
using ControlFamily = std::map<int, Control>;

struct MarkCardWindow {
  Window Form;
  Control Picture1, VScroll1, HScroll1, ScrollCorner, Shape1;
  /// The rules across, a column's score, its heading B or P, a mark's frame, and the mark's text.
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

/// The key of a window handle in colMarkCards.
std::string fncHandleText(const Long& handle);

/// The open window that has this handle, or none.
MarkCardWindow* fncWindowOf(const Long& handle);

/// The open window of card 0..8, or none. A card outside is a fault.
MarkCardWindow* fncMarkCard(Integer card);

/// The card number of an open window; -1 for any other window.
Integer fncMarkCardNumber(const Window& form);

/// Empties card 0..8 for a new shoe and makes its shoe one that may not be dealt. A card without a
/// window has nothing to empty. A card outside is a fault.
void ClearCardView(const Integer& card);

/// Draws the hand just dealt on card 0..8; a card without a window moves on unseen. Serves no
/// events. A card outside is a fault.
void SetCardView(const Integer& card);

/// Starts Timer1 of every open marking card.
void prcMarkCardTimers();

/// Makes element n of a family by copying element 0, hidden; an element that exists is left alone.
Control& fncMakeElement(MarkCardWindow& form, ControlFamily& family, int n);
