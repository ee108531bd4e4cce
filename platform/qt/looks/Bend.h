#pragma once

#include <QRect>

class QPainter;

// A card pulled open at its lower or right edge: the back bends away from the face. What of it
// still lies flat ends just where the model says; the lifted part stands over that, and throws its
// shade on the face beyond.

namespace qt {

/// What of a card looks different with each pixel of the pull that leaves rest of its back flat.
QRect fncBendBand(const QRect& rest);

/// Draws a bent back whose flat part lies at rest.
void prcDrawBend(QPainter& painter, const QRect& rest);

}  // namespace qt
