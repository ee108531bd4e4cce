#include "platform/qt/looks/TableArt.h"

#include <QPainter>
#include <algorithm>
#include <iterator>

#include "platform/qt/looks/Scale.h"

namespace qt {

namespace {

constexpr double dblCardCorner = 4;
constexpr QRgb rgbLight = 0xFFECCB78;  // The gold of headings on the felt.

/// A chip as it is seen from the side: its rim, its edge in the shade and its stripes.
struct ChipColours {
  int Chips;
  QRgb Rim, Edge, Stripe;
};
constexpr ChipColours clrChips[] = {{5, 0xFF1C8A4E, 0xFF05301A, 0xFFF7E2A4},
                                    {2, 0xFFD8456B, 0xFF6E1530, 0xFFFFEFF2},
                                    {1, 0xFF2F74D6, 0xFF0F2F63, 0xFFFFFFFF}};

// Of a chip in a stack, at scale 1.
constexpr double dblChipWide = 11;
constexpr double dblChipThick = 3;
constexpr double dblChipPitch = 12.5;
constexpr int intColumnHigh = 4;

/// One chip of a stack, its lower edge at the bottom of a place dblChipThick high.
void prcDrawStackedChip(QPainter& painter, const QRectF& body, const ChipColours& chip) {
  const double corner = body.height() / 2.4;
  painter.setPen(QPen(QColor::fromRgb(chip.Edge), fncScale() * 0.6));
  painter.setBrush(QColor::fromRgb(chip.Rim));
  painter.drawRoundedRect(body, corner, corner);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor::fromRgb(chip.Stripe));
  for (const double at : {0.2, 0.62}) {
    painter.drawRect(QRectF(body.left() + at * body.width(), body.top() + body.height() * 0.12,
                            body.width() * 0.18, body.height() * 0.76));
  }
}

void prcDrawHollowChip(QPainter& painter, const QRectF& body) {
  painter.setPen(QPen(QColor(196, 205, 190, 120), fncScale() * 0.8));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(body, body.height() / 2.4, body.height() / 2.4);
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
  const int most = intColumnHigh * static_cast<int>(rect.width() / (dblChipPitch * scale) + 0.5);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const auto* chip = std::begin(clrChips);
  for (int drawn = 0; intChips > 0 && drawn < most; ++drawn, intChips -= chip->Chips) {
    chip = std::find_if(chip, std::end(clrChips),
                        [&](const ChipColours& next) { return next.Chips <= intChips; });
    const double x = rect.left() + (drawn / intColumnHigh * dblChipPitch + 1) * scale;
    const double y =
        rect.bottom() + 1 - ((drawn % intColumnHigh + 1) * (dblChipThick + 0.6) + 0.8) * scale;
    const QRectF body(x, y, dblChipWide * scale, dblChipThick * scale);
    blnHollow ? prcDrawHollowChip(painter, body) : prcDrawStackedChip(painter, body, *chip);
  }
  painter.restore();
}

void prcDrawChipLight(QPainter& painter, const QRectF& rect) {
  const double unit = rect.width() / 15;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor(255, 243, 205), 1.3 * unit));
  painter.setBrush(QColor(255, 255, 255, 40));
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
