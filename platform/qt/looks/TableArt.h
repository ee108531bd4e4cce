#pragma once

#include <QRect>

class QColor;
class QPainter;

// What lies on the felt beside pictures and plates: where cards will lie, what waits for the user,
// and chips. All is drawn into a rectangle in pixels.

namespace qt {

/// The outline of a place for a card.
void prcDrawCardPlace(QPainter& painter, const QRect& rect);

/// A rim of light around what fills rect less margin pixels on each side.
void prcDrawWaiting(QPainter& painter, const QRect& rect, int margin);

/// A small arrow in the middle of a strip, upwards where it is broad and to the left where it is
/// high.
void prcDrawPullEdge(QPainter& painter, const QRect& rect);

/// A stack of intChips chips, of the fewest that make up the number, from the left; as many as find
/// room. A hollow one shows their outlines only.
void prcDrawChipStack(QPainter& painter, const QRect& rect, int intChips, bool blnHollow);

/// The light on the rim of a chip whose picture fills rect.
void prcDrawChipLight(QPainter& painter, const QRectF& rect);

/// The tick of what is won, into a square; and the plate of what is lost, of which only the rim is
/// left.
void prcDrawTick(QPainter& painter, const QRectF& square);
void prcDrawHollow(QPainter& painter, const QRect& rect, const QColor& ground, const QColor& rim);

}  // namespace qt
