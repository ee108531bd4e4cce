#include "platform/qt/looks/Scale.h"

#include <algorithm>
#include <cmath>

namespace qt {

namespace {

double dblScale = 1;

// A frame with all that it is designed for, in pixels at scale 1: as wide as the large buttons, and
// so that lists of cards beside the table cover no card; as high as table and marking card.
constexpr double dblWidth = 960;
constexpr double dblHeight = 700;
constexpr double dblTitle = 23;  ///< What a window manager's title bar takes of that height.

}  // namespace

double fncFittingScale(QSizeF frame, double title) {
  const double fits = std::min({frame.width() / dblWidth, frame.height() / dblHeight,
                                (frame.height() - title) / (dblHeight - dblTitle)});
  return std::floor(fits * 100 + 1e-6) / 100;
}

double fncScale() { return dblScale; }

void prcSetScale(double scale) { dblScale = std::max(scale, dblLeastScale); }

int fncPixels(double twips) {
  // Far places, such as a drawing area of many thousand twips, stay within what the toolkit takes.
  return static_cast<int>(std::lround(std::clamp(twips / 15 * dblScale, -1e6, 1e6)));
}

double fncTwips(double pixels) { return pixels * 15 / dblScale; }

QRect fncPixelRect(double left, double top, double width, double height) {
  const int x = fncPixels(left);
  const int y = fncPixels(top);
  return {x, y, std::max(0, fncPixels(left + width) - x), std::max(0, fncPixels(top + height) - y)};
}

int fncScaled(double pixels) {
  return std::max(1, static_cast<int>(std::lround(pixels * dblScale)));
}

}  // namespace qt
