#include "platform/qt/looks/TableArt.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>
#include <iterator>

#include "platform/qt/looks/Scale.h"

namespace qt {

namespace {

constexpr double dblCardCorner = 4;
constexpr QRgb rgbLight = 0xFFECCB78;  // The gold of headings on the felt.

/// A chip of a stack: its rim, and its stripes and middle.
struct ChipColours {
  int Chips;
  QRgb Rim, Stripe;
};
/// Tens stand for two of the fives that one clicks: the largest bet then fits in three columns.
constexpr ChipColours clrChips[] = {{10, 0xFF34343E, 0xFFECCB78},
                                    {5, 0xFF1C8A4E, 0xFFF7E2A4},
                                    {2, 0xFFD8456B, 0xFFFFEFF2},
                                    {1, 0xFF2F74D6, 0xFFFFFFFF}};

// Of a chip in a stack, seen from above at a slant, at scale 1.
constexpr double dblChipWide = 11;
constexpr double dblChipFace = 5;
constexpr double dblChipThick = 2.6;
constexpr double dblChipPitch = 12.5;
constexpr int intColumnHigh = 4;

/// One chip of a stack: its edge below its face.
void prcDrawStackedChip(QPainter& painter, const QRectF& face, const ChipColours& chip) {
  const double thick = dblChipThick * fncScale();
  QPainterPath edge;
  edge.setFillRule(Qt::WindingFill);
  edge.addEllipse(face.translated(0, thick));
  edge.addRect(QRectF(face.left(), face.center().y(), face.width(), thick));
  painter.setPen(Qt::NoPen);
  painter.fillPath(edge, QColor::fromRgb(chip.Rim).darker(160));
  painter.setBrush(QColor::fromRgb(chip.Stripe));
  for (const double at : {0.16, 0.62}) {
    painter.drawRect(QRectF(face.left() + at * face.width(), face.bottom() - thick * 0.2,
                            face.width() * 0.22, thick * 0.8));
  }
  painter.setBrush(QColor::fromRgb(chip.Rim));
  painter.drawEllipse(face);
  const QPointF in(face.width() * 0.26, face.height() * 0.26);
  painter.setBrush(QColor::fromRgb(chip.Stripe));
  painter.drawEllipse(QRectF(face.topLeft() + in, face.bottomRight() - in));
}

/// The outline of one, which hides what lies below it.
void prcDrawHollowChip(QPainter& painter, const QRectF& face) {
  const QRectF foot = face.translated(0, dblChipThick * fncScale());
  painter.setPen(QPen(QColor(150, 166, 150), fncScale() * 0.8));
  painter.setBrush(QColor(9, 34, 26));
  painter.drawEllipse(foot);
  painter.drawEllipse(face);
}

}  // namespace

void prcDrawCardPlace(QPainter& painter, const QRect& rect) {
  const double half = fncScaled(1) / 2.0;
  QColor line = QColor::fromRgb(rgbLight);
  line.setAlpha(84);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(line, fncScaled(1)));
  painter.setBrush(QColor(255, 255, 255, 7));
  painter.drawRoundedRect(QRectF(rect).adjusted(half, half, -half, -half),
                          dblCardCorner * fncScale(), dblCardCorner * fncScale());
  painter.restore();
}

void prcDrawWaiting(QPainter& painter, const QRect& rect, int margin) {
  const QRectF card = QRectF(rect).adjusted(margin, margin, -margin, -margin);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  const double step = margin / 5.0;
  for (int ring = 0; ring < 5; ++ring) {
    const double out = (ring + 0.5) * step;
    QColor light = QColor::fromRgb(rgbLight);
    light.setAlpha(ring < 2 ? 235 : 170 - 40 * ring);
    painter.setPen(QPen(light, step));
    painter.drawRoundedRect(card.adjusted(-out, -out, out, out), dblCardCorner * fncScale() + out,
                            dblCardCorner * fncScale() + out);
  }
  painter.restore();
}

void prcDrawPullEdge(QPainter& painter, const QRect& rect) {
  const double side = 3 * fncScale();
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(QRectF(rect).center());
  if (rect.height() > rect.width()) {
    painter.rotate(-90);
  }
  painter.setPen(QPen(QColor(20, 24, 18, 200), fncScale()));
  painter.setBrush(QColor::fromRgb(rgbLight));
  painter.drawPolygon(QPolygonF({{-1.6 * side, side * 0.8}, {1.6 * side, side * 0.8}, {0, -side}}));
  painter.restore();
}

void prcDrawChipStack(QPainter& painter, const QRect& rect, int intChips, bool blnHollow) {
  const double scale = fncScale();
  const auto columns = std::lround(rect.width() / (dblChipPitch * scale));
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const auto* chip = std::begin(clrChips);
  for (int drawn = 0; intChips > 0 && drawn < columns * intColumnHigh;
       ++drawn, intChips -= chip->Chips) {
    chip = std::find_if(chip, std::end(clrChips),
                        [&](const ChipColours& next) { return next.Chips <= intChips; });
    const int column = drawn / intColumnHigh;
    const double x = rect.left() + (column * dblChipPitch + 1) * scale;
    const double y = rect.bottom() + 1 -
                     ((drawn % intColumnHigh + 1) * dblChipThick + dblChipFace + 0.6) * scale;
    const QRectF face(x, y, dblChipWide * scale, dblChipFace * scale);
    blnHollow ? prcDrawHollowChip(painter, face) : prcDrawStackedChip(painter, face, *chip);
  }
  painter.restore();
}

void prcDrawChipLight(QPainter& painter, const QRectF& rect) {
  const double unit = rect.width() / 15;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor(255, 243, 205), 1.3 * unit));
  painter.setBrush(Qt::NoBrush);
  painter.drawEllipse(rect.topLeft() + QPointF(7.5, 7.45) * unit, 6.7 * unit, 6.7 * unit);
  painter.restore();
}

void prcDrawTick(QPainter& painter, const QRectF& square) {
  const auto at = [&](double x, double y) {
    return QPointF(square.left() + x * square.width(), square.top() + y * square.height());
  };
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(Qt::white, 1.6 * fncScale(), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(Qt::NoBrush);
  painter.drawPolyline(QPolygonF({at(0.1, 0.55), at(0.4, 0.85), at(0.9, 0.15)}));
  painter.restore();
}

void prcDrawHollow(QPainter& painter, const QRect& rect, const QColor& ground, const QColor& rim) {
  const double half = fncScaled(1) / 2.0;
  const double corner = std::min(5 * fncScale(), rect.height() / 2.0);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(rim, fncScaled(1)));
  painter.setBrush(ground);
  painter.drawRoundedRect(QRectF(rect).adjusted(half, half, -half, -half), corner, corner);
  painter.restore();
}

}  // namespace qt
