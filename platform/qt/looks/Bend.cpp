#include "platform/qt/looks/Bend.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "assets/Pictures.h"
#include "platform/qt/looks/Pictures.h"
#include "platform/qt/looks/Scale.h"

namespace qt {

namespace {

constexpr double dblFlapMost = 0.24;  ///< How far back the flap reaches: of the card,
constexpr double dblFlapRest = 0.6;   ///< and, near the end, of what still lies flat.
// Pixels at scale 1.
constexpr double dblWider = 2.5;    ///< On each side, as the flap comes near the eye.
constexpr double dblShadeNear = 5;  ///< How far a flap just lifted throws its shade, and how much
constexpr double dblShadeMore = 8;  ///< further a high one does.
constexpr double dblCorner = 4;
constexpr double dblShining = 0.13;  ///< How much of the pattern shines through the paper.

/// Lays what lies along y along x, and back again.
QTransform fncAcross() { return {0, 1, 1, 0, 0, 0}; }

/// A bent card as it is seen along the pull, in pixels from its fixed edge.
struct Bend {
  bool blnFromRight;
  double Whole, Breadth;
  double Fold;    ///< Where the flat part ends.
  double Edge;    ///< Where the lifted edge stands over the flat part.
  double Height;  ///< 0 flat on the table to 1 as high as it gets.
};

Bend fncBend(const QSize& rest) {
  const QSize card = fncCardSize();
  const bool blnFromRight = rest.height() >= card.height();
  const double whole = blnFromRight ? card.width() : card.height();
  const double fold = blnFromRight ? rest.width() : rest.height();
  const double most = dblFlapMost * whole;
  const double height = 1 - std::exp(-(whole - fold) / most);
  const double flap = std::min(most * height, dblFlapRest * fold);
  const double breadth = blnFromRight ? rest.height() : rest.width();
  return {blnFromRight, whole, breadth, fold, fold - flap, height};
}

int fncWider() { return fncScaled(dblWider) + 1; }

double fncShade(const Bend& bend) {
  return (dblShadeNear + dblShadeMore * bend.Height) * fncScale();
}

/// The part of a bent card's room between two places along the pull.
QRect fncSlice(const Bend& bend, const QRect& rest, double from, double to) {
  const int first = static_cast<int>(std::floor(std::max(0.0, from)));
  const int last = static_cast<int>(std::ceil(std::min(bend.Whole, to)));
  return bend.blnFromRight ? QRect(rest.left() + first, rest.top() - fncWider(), last - first,
                                   rest.height() + 2 * fncWider())
                           : QRect(rest.left() - fncWider(), rest.top() + first,
                                   rest.width() + 2 * fncWider(), last - first);
}

/// A soft shade across the card, deepest at one place and gone at another.
void prcDrawShade(QPainter& painter, const Bend& bend, double from, double to, int depth) {
  QLinearGradient shade(0, from, 0, to);
  shade.setColorAt(0, QColor(20, 14, 6, depth));
  shade.setColorAt(0.35, QColor(20, 14, 6, depth * 2 / 5));
  shade.setColorAt(1, QColor(20, 14, 6, 0));
  const QRectF area(0, std::min(from, to), bend.Breadth, std::abs(to - from));
  painter.fillRect(area & QRectF(0, 0, bend.Breadth, bend.Whole), shade);
}

/// The paper's other side: dark where it turns away at the fold, a light along it, then rising
/// towards the eye.
QLinearGradient fncPaper(const Bend& bend) {
  QLinearGradient paper(0, bend.Fold, 0, bend.Edge);
  paper.setColorAt(0, QColor(0x80, 0x78, 0x6C));
  paper.setColorAt(0.1, QColor(0xB4, 0xAE, 0xA2));
  paper.setColorAt(0.34, QColor(0xFF, 0xFF, 0xFD));
  paper.setColorAt(0.55, QColor(0xF6, 0xF3, 0xEA));
  paper.setColorAt(1, QColor(0xD6, 0xD0, 0xC2));
  return paper;
}

/// The back's pattern as it shines through the paper, mirrored: it runs over the fold as one pulls.
void prcShineThrough(QPainter& painter, const Bend& bend, const QPainterPath& flap) {
  const double ratio = painter.device()->devicePixelRatioF();
  painter.save();
  painter.setClipPath(flap);
  painter.setOpacity(dblShining);
  painter.translate(0, bend.Edge + bend.Whole);
  painter.scale(1, -1);
  if (bend.blnFromRight) {
    painter.setTransform(fncAcross(), true);
  }
  painter.drawPixmap(0, 0, fncPicture(picCardBack, fncCardSize(), ratio));
  painter.restore();
}

void prcDrawFlap(QPainter& painter, const Bend& bend) {
  const double wider = dblWider * fncScale() * bend.Height;
  const double corner = std::min(dblCorner * fncScale(), (bend.Fold - bend.Edge) / 2);
  const double left = -wider;
  const double right = bend.Breadth + wider;
  QPainterPath rim(QPointF(left, bend.Edge + corner));
  rim.quadTo(left, bend.Edge, left + corner, bend.Edge);
  rim.lineTo(right - corner, bend.Edge);
  rim.quadTo(right, bend.Edge, right, bend.Edge + corner);
  QPainterPath flap = rim;
  flap.lineTo(bend.Breadth, bend.Fold);
  flap.lineTo(0, bend.Fold);
  flap.closeSubpath();
  painter.fillPath(flap, fncPaper(bend));
  prcShineThrough(painter, bend, flap);
  painter.strokePath(rim, QPen(QColor(0xFF, 0xFF, 0xFF), fncScale()));
}

}  // namespace

QRect fncBendRoom(const QRect& rest) {
  const Bend bend = fncBend(rest.size());
  return fncSlice(bend, rest, 0, bend.Fold + fncShade(bend));
}

QRect fncBendBand(const QRect& rest) {
  const Bend bend = fncBend(rest.size());
  const double shade = fncShade(bend);
  return fncSlice(bend, rest, bend.Edge - shade, bend.Fold + shade);
}

void prcDrawBend(QPainter& painter, const QRect& rest) {
  const double ratio = painter.device()->devicePixelRatioF();
  painter.drawPixmap(QRectF(rest), fncPicture(picCardBack, fncCardSize(), ratio),
                     QRectF(QPointF(0, 0), QSizeF(rest.size()) * ratio));
  const Bend bend = fncBend(rest.size());
  painter.save();
  painter.translate(rest.topLeft());
  if (bend.blnFromRight) {
    painter.setTransform(fncAcross(), true);
  }
  painter.setRenderHint(QPainter::Antialiasing);
  const double shade = fncShade(bend);
  prcDrawShade(painter, bend, bend.Fold, bend.Fold + shade, 135);
  prcDrawShade(painter, bend, bend.Edge, bend.Edge - shade, 90);
  prcDrawFlap(painter, bend);
  painter.restore();
}

}  // namespace qt
