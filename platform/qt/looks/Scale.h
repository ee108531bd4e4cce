#pragma once

#include <QRect>
#include <QSizeF>

// The one place where twips become pixels. "Pixels" here are the toolkit's device-independent ones.

namespace qt {

/// No frame is so small that the program is drawn smaller: it is scrolled instead.
inline constexpr double dblLeastScale = 0.75;

/// The largest scale, in hundredths, at which the design fits into a frame of that size in pixels,
/// of which its title bar takes so many. It may be less than dblLeastScale.
double fncFittingScale(QSizeF frame, double title);

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
