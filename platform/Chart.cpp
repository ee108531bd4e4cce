#include "platform/Chart.h"

#include <algorithm>
#include <cmath>

#include "platform/Texts.h"

namespace {

// Room around the lines, in twips: heights at the left, the legend above, the axis below.
constexpr double dblLeast = 1050, dblRight = 225, dblTop = 435, dblBottom = 525;
constexpr double dblLetter = 100, dblAroundText = 200;
constexpr int intMostSteps = 7;
constexpr double dblLeastSpan = 10;  // Less would be written by heights that read alike.

struct Range {
  double Low, High;
  bool blnEmpty = true;

  void prcTake(double value) {
    Low = blnEmpty ? value : std::min(Low, value);
    High = blnEmpty ? value : std::max(High, value);
    blnEmpty = false;
  }
};

/// Room for what a height is written as.
double fncTextRoom(const ChartData& chart, double y) {
  const std::string text = chart.YText != nullptr ? chart.YText(y) : fncPlainNumberText(y);
  const auto letters = std::ranges::count_if(text, [](char part) { return (part & 0xC0) != 0x80; });
  return static_cast<double>(letters) * dblLetter + dblAroundText;
}

}  // namespace

double fncChartStep(double span, int most) {
  const double least = span / most;
  const double power = std::pow(10, std::floor(std::log10(least)));
  for (const double factor : {1.0, 2.0, 5.0}) {
    if (factor * power >= least * (1 - 1e-9)) {
      return factor * power;
    }
  }
  return 10 * power;
}

ChartPlot fncChartPlot(const Control& chart) {
  Range x{}, y{};
  if (chart.Chart != nullptr) {
    for (const ChartLine& line : chart.Chart->Lines) {
      for (const ChartPoint& point : line.Points) {
        x.prcTake(point.X);
        y.prcTake(point.Y);
      }
    }
    for (const ChartBand& band : chart.Chart->Bands) {
      for (const ChartSpan& span : band.Spans) {
        x.prcTake(span.X);
        y.prcTake(span.Low);
        y.prcTake(span.High);
      }
    }
  }
  if (const double missing = dblLeastSpan - (y.High - y.Low); missing > 0) {
    y.Low -= missing / 2;
    y.High += missing / 2;
  }
  const double step = fncChartStep(y.High - y.Low, intMostSteps);
  const double low = std::floor(y.Low / step) * step;
  const double high = std::max(std::ceil(y.High / step) * step, low + step);
  const double left =
      chart.Chart == nullptr
          ? dblLeast
          : std::max({dblLeast, fncTextRoom(*chart.Chart, low), fncTextRoom(*chart.Chart, high)});
  return {left,
          dblTop,
          std::max(chart.Width - left - dblRight, 15.0),
          std::max(chart.Height - dblTop - dblBottom, 15.0),
          x.Low,
          std::max(x.High, x.Low + 1),
          low,
          high};
}

int fncChartPointAt(const Control& chart, double x) {
  if (chart.Chart == nullptr || chart.Chart->Lines.empty() ||
      chart.Chart->Lines.front().Points.empty()) {
    return -1;
  }
  const std::vector<ChartPoint>& points = chart.Chart->Lines.front().Points;
  const ChartPlot plot = fncChartPlot(chart);
  const auto right = std::ranges::partition_point(
      points, [&](const ChartPoint& point) { return plot.fncX(point.X) < x; });
  const auto place = static_cast<int>(right - points.begin());
  if (right == points.begin()) {
    return 0;
  }
  const bool blnLeft =
      right == points.end() || x - plot.fncX((right - 1)->X) < plot.fncX(right->X) - x;
  return blnLeft ? place - 1 : place;
}
