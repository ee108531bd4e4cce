#pragma once

#include <QIcon>
#include <QStyle>

class QPainter;
class QStyleOptionSlider;

// Parts of the toolkit whose sizes are fixed pixels in its own style: here they grow with the
// program.

namespace qt {

/// Draws a triangle that points up, down, left or right into the middle of rect. side is its
/// breadth at scale 1.
void prcDrawArrow(QPainter& painter, const QRect& rect, Qt::ArrowType way, const QColor& colour,
                  double side = 8);

/// Draws a scroll bar: its trough, its slider, and an arrow at each end.
void prcDrawScrollBar(QPainter& painter, const QStyleOptionSlider& option, const QWidget* widget,
                      const QStyle& style);

/// The size a part of the toolkit gets for its contents, of the one that the toolkit itself gives
/// it.
QSize fncPartSize(QStyle::ContentsType part, const QStyleOption* option, QSize size,
                  const QWidget* widget);

/// The sign of a message box: a disc with i, ! or x. Empty for any other picture.
QIcon fncSign(QStyle::StandardPixmap sign);

}  // namespace qt
