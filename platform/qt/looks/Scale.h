#pragma once

#include <QRect>
#include <QSizeF>

// The one place where twips become pixels. "Pixels" here are the toolkit's device-independent ones.

namespace qt {

/// The largest quarter step, at least 1, at which the design of 1024 by 700 fits into that many
/// physical pixels, less what the desktop's own factor (ratio) enlarges already.
double fncFittingScale(QSizeF physical, double ratio);

/// The scale in use: pixels to each 15 twips. 1 until it is set.
double fncScale();
void prcSetScale(double scale);

/// The nearest whole pixel to a place in twips.
int fncPixels(double twips);

/// A place in pixels as twips.
double fncTwips(double pixels);

/// A control's rectangle. Both edges are rounded, not the size, so that neighbours stay neighbours.
QRect fncPixelRect(double left, double top, double width, double height);

/// A length designed in pixels at scale 1, at least one pixel.
int fncScaled(double pixels);

}  // namespace qt
