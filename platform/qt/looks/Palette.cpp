#include "platform/qt/looks/Palette.h"

#include <algorithm>
#include <cmath>

#include "platform/qt/looks/Scale.h"

namespace qt {

QColor fncColour(const Colour& colour) {
  return colour.Clear ? QColor(0, 0, 0, 0) : QColor(colour.Red, colour.Green, colour.Blue);
}

QFont fncFont(const Type& face) {
  QFont font;
  if (face.Fixed) {
    font.setFamilies({QStringLiteral("Liberation Mono"), QStringLiteral("DejaVu Sans Mono"),
                      QStringLiteral("Courier New")});
    font.setStyleHint(QFont::Monospace);
  } else {
    font.setFamilies({QStringLiteral("Liberation Sans"), QStringLiteral("Arial"),
                      QStringLiteral("DejaVu Sans")});
    font.setStyleHint(QFont::SansSerif);
  }
  font.setPixelSize(
      std::max(1, static_cast<int>(std::lround(double{face.Size} * 96 / 72 * fncScale()))));
  font.setBold(face.Bold);
  font.setUnderline(face.Underline);
  font.setStrikeOut(face.Struck);
  return font;
}

}  // namespace qt
