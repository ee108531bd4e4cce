#pragma once

#include <QPainter>

#include "platform/Control.h"

namespace qt {

/// Draws a chart control into rect, in its own size at the scale in use. The painter may enlarge:
/// all is drawn as shapes and text, so that a file or a page is as sharp as the screen.
void prcDrawChart(QPainter& painter, const Control& control, const QRectF& rect);

}  // namespace qt
