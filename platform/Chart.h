#pragma once

#include <string>
#include <vector>

#include "platform/Control.h"

// What a chart shows, as plain data: made by the game as a whole and handed to a control, never
// changed afterwards. X counts steps such as hands and rises along a line; Y is any measure, such
// as money.

struct ChartPoint {
  double X, Y;
  bool operator==(const ChartPoint&) const = default;
};

/// Points joined by straight lines. Width is in pixels at scale 1. A line without a name is not in
/// the legend.
struct ChartLine {
  std::string Name = {};
  Colour Ink = clrBlack;
  double Width = 1.5;
  bool blnDashed = false;
  std::vector<ChartPoint> Points = {};
};

/// From Low to High at X.
struct ChartSpan {
  double X, Low, High;
};

/// A tint behind the lines. Bands that lie over one another grow darker there.
struct ChartBand {
  std::string Name = {};
  Colour Tint = clrBlack;
  std::vector<ChartSpan> Spans = {};
};

/// A step of the axis below the lines, such as a new shoe.
struct ChartTick {
  double X;
  std::string Text;
};

/// A dot at a place, with a short text beside it.
struct ChartMark {
  ChartPoint At;
  Colour Ink;
  std::string Text;
};

/// A chart. The user's pointer goes from point to point of the first line; Control::ListIndex
/// holds the point, -1 for none yet.
struct ChartData {
  std::string AxisName;  ///< What X counts, such as "Hand".
  std::vector<ChartLine> Lines;
  std::vector<ChartBand> Bands;
  std::vector<ChartTick> Ticks;
  std::vector<ChartMark> Marks;
  std::string (*YText)(double y) = nullptr;  ///< Writes a height; none means plain numbers.
};

/// Where the lines lie in a chart of some size, in twips from its corner, and the values at the
/// edges. High is above Low on both axes, also where all is one point.
struct ChartPlot {
  double Left, Top, Width, Height;
  double XLow, XHigh, YLow, YHigh;

  double fncX(double x) const { return Left + (x - XLow) / (XHigh - XLow) * Width; }
  double fncY(double y) const { return Top + (YHigh - y) / (YHigh - YLow) * Height; }
};

/// The plot of a chart control. The Y axis ends on whole steps.
ChartPlot fncChartPlot(const Control& chart);

/// The distance of the lines of a grid: 1, 2 or 5 times a power of ten, so that span holds at most
/// most of them.
double fncChartStep(double span, int most);

/// The point of the first line nearest to x twips from the chart's left edge; -1 where it has none.
int fncChartPointAt(const Control& chart, double x);
