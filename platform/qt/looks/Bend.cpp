#include "platform/qt/looks/Bend.h"

#include <QColor>
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>

#include "assets/Pictures.h"
#include "platform/qt/looks/Pictures.h"
#include "platform/qt/looks/Scale.h"

namespace qt {

namespace {

constexpr double dblFlapMost = 0.24;  ///< How far back the flap reaches: of the card,
constexpr double dblFlapRest = 0.6;   ///< and, near the end, of what still lies flat.
// Pixels at scale 1.
constexpr double dblShadeNear = 5;  ///< How far a flap just lifted throws its shade on the face,
constexpr double dblShadeMore = 8;  ///< and how much further a high one does.
constexpr double dblCorner = 4;

/// A bent card as it is seen along the pull, in pixels from its fixed edge.
struct Bend {
  bool blnFromRight;
  double Unit;  ///< A pixel at scale 1.
  int Whole, Breadth;
  int Fold;        ///< Where the flat part ends.
  int Edge;        ///< Where the lifted edge stands over the flat part.
  double Height;   ///< 0 flat on the table to 1 as high as it gets.
  int Over, Back;  ///< How far the shade reaches over the face, and over the flat part.
};

Bend fncBend(const QRect& rest, double ratio = 1) {
  const QSize card = fncCardSize() * ratio;
  const QSize flat = rest.size() * ratio;
  const bool blnFromRight = rest.height() >= fncCardSize().height();
  const double unit = fncScale() * ratio;
  const int whole = blnFromRight ? card.width() : card.height();
  const int fold = blnFromRight ? flat.width() : flat.height();
  const int breadth = blnFromRight ? flat.height() : flat.width();
  const double most = dblFlapMost * whole;
  const double height = 1 - std::exp((fold - whole) / most);
  const int edge =
      fold - static_cast<int>(std::lround(std::min(most * height, dblFlapRest * fold)));
  const int over = static_cast<int>((dblShadeNear + dblShadeMore * height) * unit);
  return {blnFromRight,
          unit,
          whole,
          breadth,
          fold,
          edge,
          height,
          std::min(over, whole - fold),
          std::min(over * 2 / 3, edge)};
}

/// The paper's other side, from the fold at 0 to the lifted edge at 1: dark where it turns away, a
/// light along the fold, then rising towards the eye.
QColor fncPaper(double part) {
  constexpr struct {
    double Part;
    int Red, Green, Blue;
  } steps[] = {{0, 0x80, 0x78, 0x6C},
               {0.1, 0xB4, 0xAE, 0xA2},
               {0.34, 0xFF, 0xFF, 0xFD},
               {0.55, 0xF6, 0xF3, 0xEA},
               {1, 0xD6, 0xD0, 0xC2}};
  const auto* to = std::ranges::find_if(std::begin(steps) + 1, std::end(steps) - 1,
                                        [part](const auto& step) { return part < step.Part; });
  const auto* from = std::prev(to);
  const double share = (part - from->Part) / (to->Part - from->Part);
  const auto mix = [share](int one, int other) {
    return static_cast<int>(std::lround(one + share * (other - one)));
  };
  return {mix(from->Red, to->Red), mix(from->Green, to->Green), mix(from->Blue, to->Blue)};
}

/// A soft shade, deepest at 0 and gone at 1.
QColor fncShade(double part, int depth) {
  return {20, 14, 6, static_cast<int>(std::lround(depth * (1 - part) * (1 - part)))};
}

/// What lies across the card at one place along the pull: a colour, and how far it comes short of
/// the card's two sides.
struct Line {
  QColor Colour;
  double Short = 0;
};

Line fncLine(const Bend& bend, int at) {
  const double place = at + 0.5;
  if (at >= bend.Fold) {
    return {fncShade((place - bend.Fold) / bend.Over, 135)};
  }
  if (at < bend.Edge) {
    return {fncShade((bend.Edge - place) / bend.Back, 90)};
  }
  const double part = (bend.Fold - place) / (bend.Fold - bend.Edge);
  const double corner = std::min(dblCorner * bend.Unit, (bend.Fold - bend.Edge) / 2.0);
  const double into = std::max(0.0, corner - (place - bend.Edge));
  const double round = corner - std::sqrt(corner * corner - into * into);
  const bool blnRim = place - bend.Edge < bend.Unit;
  return {blnRim ? QColor(Qt::white) : fncPaper(part), round};
}

/// Flap and shades as one picture: line by line, as gradients and paths take longer than a pull
/// leaves time for.
QImage fncBand(const Bend& bend) {
  const int first = bend.Edge - bend.Back;
  const QSize size(bend.Breadth, bend.Fold + bend.Over - first);
  QImage band(bend.blnFromRight ? size.transposed() : size, QImage::Format_ARGB32_Premultiplied);
  band.fill(0);
  auto* const pixels = reinterpret_cast<QRgb*>(band.bits());
  const std::ptrdiff_t across = bend.blnFromRight ? band.width() : 1;
  const std::ptrdiff_t along = bend.blnFromRight ? 1 : band.width();
  for (int at = 0; at < size.height(); ++at) {
    const Line line = fncLine(bend, first + at);
    const int inside = static_cast<int>(std::ceil(line.Short));
    const QRgb full = qPremultiply(line.Colour.rgba());
    QRgb* pixel = pixels + at * along + inside * across;
    if (inside > 0) {
      QColor half = line.Colour;
      half.setAlphaF(static_cast<float>(half.alphaF() * (inside - line.Short)));
      const std::ptrdiff_t last = size.width() - 2 * inside;
      pixel[-across] = pixel[last * across] = qPremultiply(half.rgba());
    }
    for (int side = inside; side < size.width() - inside; ++side, pixel += across) {
      *pixel = full;
    }
  }
  return band;
}

/// The back's pattern shines through the flap, mirrored: it runs over the fold as one pulls.
void prcShineThrough(QPainter& painter, const Bend& bend, const QRect& rest, double ratio) {
  const QPixmap& pattern = fncShining(bend.blnFromRight, ratio);
  const int flap = bend.Fold - bend.Edge;
  const QRect part =
      bend.blnFromRight ? QRect(0, 0, flap, bend.Breadth) : QRect(0, 0, bend.Breadth, flap);
  const QPoint at = bend.blnFromRight ? QPoint(bend.Edge, 0) : QPoint(0, bend.Edge);
  painter.drawPixmap(QPointF(rest.topLeft()) + QPointF(at) / ratio, pattern, QRectF(part));
}

}  // namespace

QRect fncBendBand(const QRect& rest) {
  const Bend bend = fncBend(rest);
  const int from = bend.Edge - bend.Back;
  const int to = bend.Fold + bend.Over;
  return bend.blnFromRight ? QRect(rest.left() + from, rest.top(), to - from, rest.height())
                           : QRect(rest.left(), rest.top() + from, rest.width(), to - from);
}

void prcDrawBend(QPainter& painter, const QRect& rest) {
  const double ratio = painter.device()->devicePixelRatioF();
  painter.drawPixmap(QPointF(rest.topLeft()), fncPicture(picCardBack, fncCardSize(), ratio),
                     QRectF(QPointF(0, 0), QSizeF(rest.size()) * ratio));
  const Bend bend = fncBend(rest, ratio);
  QImage band = fncBand(bend);
  band.setDevicePixelRatio(ratio);
  painter.drawImage(fncBendBand(rest).topLeft(), band);
  prcShineThrough(painter, bend, rest, ratio);
}

}  // namespace qt
