#include "platform/qt/looks/Scale.h"

#include <algorithm>
#include <cmath>

namespace qt {

namespace {
double dblScale = 1;
}

double fncFittingScale(QSizeF physical, double ratio) {
  const double fits = std::min(physical.width() / 1024, physical.height() / 700);
  return std::max(1.0, std::floor(fits * 4) / 4) / ratio;
}

double fncScale() { return dblScale; }

void prcSetScale(double scale) { dblScale = scale; }

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
