#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <utility>

#include "judges/Adapter.h"
#include "platform/Chart.h"
#include "platform/Layout.h"

// What every platform, and the model they share, must do alike, and no evening shows. The suite is
// compiled once for each of them.

namespace {

Window frmBench;
Control crtCurve, lblStrip;
std::string strLog;

std::string fncTaken() { return std::exchange(strLog, {}); }

class Seam : public testing::Test {
 protected:
  void SetUp() override {
    user::Reset();
    frmBench.Kind = WindowKind::Float;
    frmBench.FixedInner = true;
    frmBench.ScaleWidth = 9000;
    frmBench.ScaleHeight = 3600;
    const Place rows[] = {{&crtCurve, "crtCurve", -1, ControlKind::Chart, 0, 0, 9000, 3000},
                          {&lblStrip, "lblStrip", -1, ControlKind::Label, 3000, 3300, 1065, 150}};
    prcLayOut(frmBench, rows);
  }
  void TearDown() override { user::Reset(); }

  static void Show(Control& control, const ControlEvents& events) {
    control.On = &events;
    prcShow(frmBench);
    user::Settle();
  }
};

TEST_F(Seam, APressHoldsTheMouseEvenOutsideAndWhenHidden) {
  static const ControlEvents held{.MouseMove =
                                      [](Control&, const Mouse& m) {
                                        strLog += std::to_string(std::lround(m.X)) + ' ' +
                                                  std::to_string(std::lround(m.Y)) + ' ';
                                      },
                                  .MouseUp = [](Control&, const Mouse&) { strLog += "up"; }};
  Show(lblStrip, held);
  user::Press(lblStrip, 150, 75);
  fncTaken();
  user::Drag(lblStrip, -2700, -1650);
  lblStrip.Visible = false;
  user::Settle();
  user::Drag(lblStrip, 150, -750);
  user::Release(lblStrip, 150, -750);
  EXPECT_EQ(fncTaken(), "-2700 -1650 150 -750 up");
}

TEST_F(Seam, APointOfAChartIsPickedByThePointerAndByKeys) {
  static const ControlEvents picked{
      .Click = [](Control& c) { strLog += "click " + std::to_string(c.ListIndex) + ' '; },
      .Change = [](Control& c) { strLog += std::to_string(c.ListIndex) + ' '; }};
  Show(crtCurve, picked);
  user::Hover(crtCurve);
  EXPECT_EQ(fncTaken(), "") << "there are no points";
  auto chart = std::make_shared<ChartData>();
  chart->Lines.push_back({.Name = "Money", .Points = {{0, 100}, {1, 90}, {2, 110}, {10, 80}}});
  crtCurve.Chart = chart;
  user::Tab(frmBench);
  for (const char* key : {"Right", "Right", "End", "Right", "Left", "Home", "Left"}) {
    user::Key(frmBench, key);
  }
  EXPECT_EQ(fncTaken(), "0 1 3 2 0 ");
  const ChartPlot plot = fncChartPlot(crtCurve);
  const auto at = [&](double x) { return static_cast<float>(plot.fncX(x)); };
  user::Press(crtCurve, at(0.4), 1500);
  fncTaken();
  for (const double x : {0.6, 5.9, 6.1, -0.5, 10.2, 10.1}) {
    user::Drag(crtCurve, at(x), 1500);
  }
  user::Release(crtCurve, at(10.1), 1500);
  EXPECT_EQ(fncTaken(), "1 2 3 0 3 click 3 ");
}

TEST(Values, SetFromCodeStayWithinTheirBoundsAndTellOnce) {
  static int intTold = 0;
  static const ControlEvents told{.Change = [](Control&) { ++intTold; }};
  Control bar;
  bar.Kind = ControlKind::HScrollBar;
  bar.Max = 1000;
  bar.On = &told;
  for (const double value : {400, 400, 5000}) {
    prcSetValue(bar, value);
  }
  EXPECT_EQ(intTold, 2);
  EXPECT_EQ(bar.Value, 1000);
}

TEST(ChartPlot, StepsAreRoundAndHoldTheCurve) {
  constexpr int most = 7;
  for (const auto& [span, step] :
       {std::pair{7.0, 1.0}, {7.1, 2.0}, {14.1, 5.0}, {350.0, 50.0}, {351.0, 100.0}, {0.7, 0.1}}) {
    EXPECT_DOUBLE_EQ(fncChartStep(span, most), step) << span;
  }
  Control chart;
  chart.Width = chart.Height = 6000;
  auto data = std::make_shared<ChartData>();
  data->Lines.push_back({.Points = {{0, 1000}}});
  data->Bands.push_back({.Spans = {{0, -333, 1999}}});
  chart.Chart = data;
  EXPECT_EQ(fncChartPlot(chart).YLow, -500);
  EXPECT_EQ(fncChartPlot(chart).YHigh, 2000);
  data->Bands.clear();
  EXPECT_EQ(fncChartPlot(chart).YLow, 994) << "so flat a curve has whole heights too";
}

}  // namespace
