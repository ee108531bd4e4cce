#include "platform/qt/views/Chart.h"

#include <QFontMetricsF>
#include <algorithm>
#include <cmath>
#include <vector>

#include "platform/Chart.h"
#include "platform/Picking.h"
#include "platform/Texts.h"
#include "platform/qt/looks/Palette.h"
#include "platform/qt/looks/Scale.h"
#include "platform/qt/views/Captions.h"

namespace qt {

namespace {

constexpr QRgb rgbGrid = 0xFFE9E1CB;
constexpr int intBandAlpha = 44;
constexpr double dblDot = 3.5, dblBelow = 6;  // Pixels at scale 1: of a dot, above the texts below.

/// A chart being drawn: its plot in pixels from the painter's origin.
struct Sheet {
  QPainter& Painter;
  const ChartData& Data;
  ChartPlot Plot;
  double Pixel;  ///< One pixel of the design.
  QFontMetricsF Metrics;

  QPointF fncAt(const ChartPoint& point) const { return {Plot.fncX(point.X), Plot.fncY(point.Y)}; }
  /// The middle of the column, a pixel broad, in which a place lies.
  double fncMiddle(double x) const { return (std::floor(x / Pixel) + 0.5) * Pixel; }
  double fncRight() const { return Plot.Left + Plot.Width; }
  double fncBottom() const { return Plot.Top + Plot.Height; }
  QRectF fncField() const { return {Plot.Left, Plot.Top, Plot.Width, Plot.Height}; }
};

ChartPlot fncInPixels(ChartPlot plot) {
  const double pixel = fncScale() / 15;
  plot.Left *= pixel;
  plot.Top *= pixel;
  plot.Width *= pixel;
  plot.Height *= pixel;
  return plot;
}

/// What of a row of places falls on one column, a pixel broad: the first and the last of them, and
/// the lowest and the highest, which are all that can be seen.
struct Column {
  QPointF First, Last, Low, High;
  bool blnLowFirst = false;

  explicit Column(QPointF at) : First(at), Last(at), Low(at), High(at) {}
  void prcAdd(QPointF at) {
    Last = at;
    if (at.y() > Low.y()) {
      Low = at;
      blnLowFirst = false;
    } else if (at.y() < High.y()) {
      High = at;
      blnLowFirst = true;
    }
  }
};

/// The columns of a row of places that are made of values.
template <class Values, class Place>
std::vector<Column> fncColumns(const Sheet& sheet, const Values& values, Place place) {
  std::vector<Column> columns;
  for (const auto& value : values) {
    const QPointF at = sheet.fncAt(place(value));
    if (!columns.empty() &&
        std::floor(at.x() / sheet.Pixel) == std::floor(columns.back().First.x() / sheet.Pixel)) {
      columns.back().prcAdd(at);
    } else {
      columns.emplace_back(at);
    }
  }
  return columns;
}

/// Lowest and highest places in their order, so that a step is upright.
QPolygonF fncThinned(const std::vector<Column>& columns) {
  QPolygonF row;
  for (const Column& column : columns) {
    row.append(column.blnLowFirst ? column.Low : column.High);
    if (column.Low != column.High) {
      row.append(column.blnLowFirst ? column.High : column.Low);
    }
  }
  return row;
}

QPen fncPen(const Sheet& sheet, const QColor& ink, double width, bool blnDashed) {
  QPen pen(ink, width * sheet.Pixel);
  pen.setCapStyle(blnDashed ? Qt::FlatCap : Qt::RoundCap);
  pen.setJoinStyle(Qt::BevelJoin);
  if (blnDashed) {
    pen.setDashPattern({4, 3});
  }
  return pen;
}

QString fncHeight(const ChartData& data, double y) {
  return fncText(data.YText != nullptr ? data.YText(y) : fncPlainNumberText(y));
}

void prcDrawHeights(const Sheet& sheet) {
  const ChartPlot& plot = sheet.Plot;
  const double step = fncChartStep(plot.YHigh - plot.YLow, 8);
  for (double y = std::ceil(plot.YLow / step) * step; y <= plot.YHigh + step / 1000; y += step) {
    // A line of the grid lies on whole pixels: half on each of two it would be a grey smear.
    const double at = std::floor(plot.fncY(y)) + 0.5;
    sheet.Painter.setPen(QPen(QColor::fromRgb(rgbGrid), sheet.Pixel));
    sheet.Painter.drawLine(QPointF(plot.Left, at), QPointF(sheet.fncRight(), at));
    sheet.Painter.setPen(QColor::fromRgb(rgbFaded));
    sheet.Painter.drawText(QRectF(0, at - sheet.Metrics.height() / 2, plot.Left - 6 * sheet.Pixel,
                                  sheet.Metrics.height()),
                           Qt::AlignRight | Qt::AlignVCenter,
                           fncHeight(sheet.Data, std::abs(y) < step / 1000 ? 0 : y));
  }
}

/// A text below the lines. One that would touch its left neighbour is left out. Returns whether it
/// was drawn.
bool fncDrawBelow(const Sheet& sheet, double x, const QString& text, int row, double& free) {
  const double width = sheet.Metrics.horizontalAdvance(text);
  const double left = std::clamp(x - width / 2, 0.0, sheet.fncRight() - width);
  if (left < free) {
    return false;
  }
  free = left + width + 8 * sheet.Pixel;
  const double base = sheet.fncBottom() + dblBelow * sheet.Pixel + sheet.Metrics.ascent();
  sheet.Painter.drawText(QPointF(left, base + row * sheet.Metrics.height()), text);
  return true;
}

void prcDrawSteps(const Sheet& sheet) {
  const ChartPlot& plot = sheet.Plot;
  sheet.Painter.setPen(QColor::fromRgb(rgbFaded));
  const double step = std::max(1.0, fncChartStep(plot.XHigh - plot.XLow, 10));
  const QString name = fncText(sheet.Data.AxisName);
  double free = sheet.Metrics.horizontalAdvance(name) + 14 * sheet.Pixel;
  sheet.Painter.drawText(
      QPointF(6 * sheet.Pixel, sheet.fncBottom() + dblBelow * sheet.Pixel + sheet.Metrics.ascent()),
      name);
  for (double x = std::ceil(plot.XLow / step) * step; x <= plot.XHigh + step / 1000; x += step) {
    fncDrawBelow(sheet, plot.fncX(x), fncText(fncPlainNumberText(std::round(x))), 0, free);
  }
}

/// A step that has its name below goes through all of the chart, the others only nick its edge. All
/// lie on whole pixels, which need no smoothing.
void prcDrawTicks(const Sheet& sheet) {
  double free = 0;
  sheet.Painter.setRenderHint(QPainter::Antialiasing, false);
  for (const ChartTick& tick : sheet.Data.Ticks) {
    const double x = std::floor(sheet.Plot.fncX(tick.X)) + 0.5;
    sheet.Painter.setPen(QColor::fromRgb(rgbInk));
    const bool blnNamed = fncDrawBelow(sheet, x, fncText(tick.Text), 1, free);
    sheet.Painter.setPen(fncPen(sheet, QColor::fromRgb(rgbOutline), 1, blnNamed));
    const double top = blnNamed ? sheet.Plot.Top : sheet.fncBottom() - 5 * sheet.Pixel;
    sheet.Painter.drawLine(QPointF(x, top), QPointF(x, sheet.fncBottom()));
  }
  sheet.Painter.setRenderHint(QPainter::Antialiasing);
}

void prcDrawBand(const Sheet& sheet, const ChartBand& band) {
  QPolygonF field = fncThinned(fncColumns(sheet, band.Spans, [](const ChartSpan& span) {
    return ChartPoint{span.X, span.High};
  }));
  const QPolygonF back = fncThinned(fncColumns(sheet, band.Spans, [](const ChartSpan& span) {
    return ChartPoint{span.X, span.Low};
  }));
  std::copy(back.rbegin(), back.rend(), std::back_inserter(field));
  QColor tint = fncColour(band.Tint);
  tint.setAlpha(intBandAlpha);
  sheet.Painter.setPen(Qt::NoPen);
  sheet.Painter.setBrush(tint);
  sheet.Painter.drawPolygon(field);
}

/// A long line in short pieces with round ends: the toolkit's time for a broad line that goes up
/// and down grows with the square of its corners.
void prcStroke(QPainter& painter, const QPolygonF& row) {
  constexpr qsizetype intPiece = 8;
  for (qsizetype at = 0; at + 1 < row.size() || at == 0; at += intPiece - 1) {
    painter.drawPolyline(row.mid(at, intPiece));
  }
}

/// Whether a line has a point in every column that it goes through.
bool fncDense(const Sheet& sheet, const std::vector<Column>& columns) {
  const double across = columns.back().First.x() - columns.front().First.x();
  return columns.size() > 1 && across < static_cast<double>(columns.size()) * sheet.Pixel;
}

/// A dense line as an upright stroke in each column: it looks as if it had been drawn from point to
/// point, in a small part of the time.
void prcStrokeColumns(const Sheet& sheet, const std::vector<Column>& columns, double width) {
  const double half = width / 2;
  QList<QLineF> strokes;
  strokes.reserve(std::ssize(columns));
  double before = columns.front().First.y();
  for (const Column& column : columns) {
    const double x = sheet.fncMiddle(column.First.x());
    strokes.append(
        {x, std::min(column.High.y(), before) - half, x, std::max(column.Low.y(), before) + half});
    before = column.Last.y();
  }
  sheet.Painter.drawLines(strokes);
}

void prcDrawLine(const Sheet& sheet, const ChartLine& line) {
  const std::vector<Column> columns =
      fncColumns(sheet, line.Points, [](const ChartPoint& point) { return point; });
  QPen pen = fncPen(sheet, fncColour(line.Ink), line.Width, line.blnDashed);
  if (fncDense(sheet, columns)) {
    pen.setCapStyle(Qt::FlatCap);
    sheet.Painter.setPen(pen);
    prcStrokeColumns(sheet, columns, pen.widthF());
    return;
  }
  sheet.Painter.setPen(pen);
  prcStroke(sheet.Painter, fncThinned(columns));
}

void prcDrawDot(const Sheet& sheet, QPointF at, const QColor& ink) {
  sheet.Painter.setPen(QPen(QColor::fromRgb(rgbPaper), 1.5 * sheet.Pixel));
  sheet.Painter.setBrush(ink);
  sheet.Painter.drawEllipse(at, dblDot * sheet.Pixel, dblDot * sheet.Pixel);
}

/// Where the text of a mark lies: to the right of its dot, or to the left where there is no room,
/// and as little above or below as keeps it off the texts before it.
QRectF fncPlate(const Sheet& sheet, QPointF at, QSizeF size, const std::vector<QRectF>& taken) {
  const double gap = 8 * sheet.Pixel;
  const bool blnRight = at.x() + gap + size.width() <= sheet.fncRight();
  const double left = blnRight ? at.x() + gap : at.x() - gap - size.width();
  const auto plate = [&](int row) {
    const double top = at.y() + (row - 0.5) * size.height();
    return QRectF(QPointF(left, std::clamp(top, sheet.Plot.Top, sheet.fncBottom() - size.height())),
                  size);
  };
  for (const int row : {0, 1, -1, 2, -2, 3, -3}) {
    if (std::ranges::none_of(taken,
                             [&](const QRectF& other) { return other.intersects(plate(row)); })) {
      return plate(row);
    }
  }
  return plate(0);
}

/// Dots, and beside each its text on a plate of paper so that lines do not run through it.
void prcDrawMarks(const Sheet& sheet) {
  QColor paper = QColor::fromRgb(rgbPaper);
  paper.setAlpha(225);
  std::vector<QRectF> taken;
  for (const ChartMark& mark : sheet.Data.Marks) {
    const QString text = fncText(mark.Text);
    const QSizeF size(sheet.Metrics.horizontalAdvance(text) + 8 * sheet.Pixel,
                      sheet.Metrics.height() + 2 * sheet.Pixel);
    const QRectF plate = fncPlate(sheet, sheet.fncAt(mark.At), size, taken);
    taken.push_back(plate);
    sheet.Painter.setPen(Qt::NoPen);
    sheet.Painter.setBrush(paper);
    sheet.Painter.drawRoundedRect(plate, 3 * sheet.Pixel, 3 * sheet.Pixel);
    sheet.Painter.setPen(fncColour(mark.Ink));
    sheet.Painter.drawText(plate, Qt::AlignCenter, text);
  }
  for (const ChartMark& mark : sheet.Data.Marks) {
    prcDrawDot(sheet, sheet.fncAt(mark.At), fncColour(mark.Ink));
  }
}

/// What has a name, in a row above the lines: bands by a patch, lines by a stroke.
void prcDrawLegend(const Sheet& sheet) {
  const double middle = sheet.Plot.Top / 2, swatch = 18 * sheet.Pixel;
  double left = sheet.Plot.Left;
  const auto name = [&](const std::string& text) {
    sheet.Painter.setPen(QColor::fromRgb(rgbInk));
    left += swatch + 5 * sheet.Pixel;
    sheet.Painter.drawText(
        QPointF(left, middle + (sheet.Metrics.ascent() - sheet.Metrics.descent()) / 2),
        fncText(text));
    left += sheet.Metrics.horizontalAdvance(fncText(text)) + 16 * sheet.Pixel;
  };
  for (const ChartLine& line : sheet.Data.Lines) {
    if (!line.Name.empty()) {
      sheet.Painter.setPen(fncPen(sheet, fncColour(line.Ink), line.Width, line.blnDashed));
      sheet.Painter.drawLine(QPointF(left, middle), QPointF(left + swatch, middle));
      name(line.Name);
    }
  }
  int nested = 0;
  for (const ChartBand& band : sheet.Data.Bands) {
    ++nested;
    if (!band.Name.empty()) {
      QColor tint = fncColour(band.Tint);
      tint.setAlpha(std::min(255, intBandAlpha * nested));
      const double half = 5 * sheet.Pixel;
      sheet.Painter.fillRect(QRectF(left, middle - half, swatch, 2 * half), tint);
      name(band.Name);
    }
  }
}

/// The point that the user has picked: a line through it, and a dot on every named line there.
void prcDrawPicked(const Sheet& sheet, int picked) {
  if (picked < 0 || sheet.Data.Lines.empty() ||
      static_cast<std::size_t>(picked) >= sheet.Data.Lines.front().Points.size()) {
    return;
  }
  const double x = sheet.Data.Lines.front().Points[static_cast<std::size_t>(picked)].X;
  const double at = std::floor(sheet.Plot.fncX(x)) + 0.5;
  sheet.Painter.setPen(QPen(QColor::fromRgb(rgbDarkGold), sheet.Pixel));
  sheet.Painter.drawLine(QPointF(at, sheet.Plot.Top), QPointF(at, sheet.fncBottom()));
  for (const ChartLine& line : sheet.Data.Lines) {
    const auto point = std::ranges::lower_bound(line.Points, x, {}, &ChartPoint::X);
    if (!line.Name.empty() && !line.blnDashed && point != line.Points.end() && point->X == x) {
      prcDrawDot(sheet, sheet.fncAt(*point), fncColour(line.Ink));
    }
  }
}

}  // namespace

void prcDrawChart(QPainter& painter, const Control& control, const QRectF& rect) {
  painter.save();
  painter.translate(rect.topLeft());
  painter.setRenderHint(QPainter::Antialiasing);
  const double pixel = fncScale();
  const QFont font = fncFont(control.Face);
  painter.setFont(font);
  painter.setPen(QPen(QColor::fromRgb(rgbOutline), pixel));
  painter.setBrush(QColor::fromRgb(rgbPaper));
  const double half = pixel / 2;
  painter.drawRoundedRect(QRectF(QPointF(0, 0), rect.size()).adjusted(half, half, -half, -half),
                          5 * pixel, 5 * pixel);
  if (fncPickable(control) > 0) {
    const Sheet sheet{painter, *control.Chart, fncInPixels(fncChartPlot(control)), pixel,
                      QFontMetricsF(font)};
    prcDrawHeights(sheet);
    prcDrawSteps(sheet);
    prcDrawTicks(sheet);
    painter.setClipRect(sheet.fncField().adjusted(-dblDot * pixel, -dblDot * pixel, dblDot * pixel,
                                                  dblDot * pixel));
    for (const ChartBand& band : sheet.Data.Bands) {
      prcDrawBand(sheet, band);
    }
    for (const ChartLine& line : sheet.Data.Lines) {
      prcDrawLine(sheet, line);
    }
    prcDrawMarks(sheet);
    prcDrawPicked(sheet, control.ListIndex);
    painter.setClipping(false);
    prcDrawLegend(sheet);
  }
  painter.restore();
}

}  // namespace qt
