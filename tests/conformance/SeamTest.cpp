#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <utility>

#include "judges/Adapter.h"
#include "platform/Chart.h"
#include "platform/Layout.h"

// What every platform must do alike, and no evening shows. The suite is compiled once for each of
// them; what the handlers saw is compared, so that order counts.

namespace {

struct Bench {
  Window Form;
  Control cmdFirst, lblStrip, pctBack, barRoll, chkOn, crtCurve, tmrFast, tmrSlow;
};
Bench bench;
std::string strLog;

void prcNote(const std::string& what, const Control& control) {
  strLog += what + ' ' + control.Name + ". ";
}

const ControlEvents evtLogged{.Click = [](Control& c) { prcNote("click", c); },
                              .MouseMove =
                                  [](Control& c, const Mouse& m) {
                                    prcNote("move " + std::to_string(std::lround(m.X)) + ' ' +
                                                std::to_string(std::lround(m.Y)),
                                            c);
                                  },
                              .MouseUp = [](Control& c, const Mouse&) { prcNote("up", c); },
                              .Change = [](Control& c) { prcNote("change", c); },
                              .Timer = [](Control& c) { prcNote("tick", c); }};

const Place plcRows[] = {
    {&bench.cmdFirst, "cmdFirst", -1, ControlKind::Button, 0, 2700, 1500, 375, "First"},
    {&bench.pctBack, "pctBack", -1, ControlKind::Picture, 3000, 150, 1065, 1440},
    {&bench.lblStrip, "lblStrip", -1, ControlKind::Label, 3000, 1650, 1065, 150},
    {&bench.barRoll, "barRoll", -1, ControlKind::HScrollBar, 3000, 2700, 1500, 225},
    {&bench.chkOn, "chkOn", -1, ControlKind::CheckBox, 150, 2100, 1500, 300, "On"},
    {&bench.crtCurve, "crtCurve", -1, ControlKind::Chart, 0, 3300, 9000, 3000},
    {&bench.tmrFast, "tmrFast", -1, ControlKind::Timer, 0, 0, 0, 0},
    {&bench.tmrSlow, "tmrSlow", -1, ControlKind::Timer, 0, 0, 0, 0},
};

class Seam : public testing::Test {
 protected:
  void SetUp() override {
    user::Reset();
    bench.Form = Window{};
    bench.Form.Name = "Bench";
    bench.Form.Kind = WindowKind::Float;
    bench.Form.FixedInner = true;
    bench.Form.ScaleWidth = 9000;
    bench.Form.ScaleHeight = 6500;
    prcLayOut(bench.Form, plcRows);
    for (Control* control : bench.Form.Controls) {
      control->On = &evtLogged;
    }
    bench.cmdFirst.On = &evtNone;
    bench.barRoll.Max = 1000;
    bench.tmrFast.Enabled = bench.tmrSlow.Enabled = false;
    prcShow(bench.Form);
    user::Settle();
    strLog.clear();
  }
  void TearDown() override { user::Reset(); }

  static std::string fncTaken() { return std::exchange(strLog, {}); }
};

TEST_F(Seam, APressHoldsTheMouseEvenOutsideAndWhenHidden) {
  user::Press(bench.lblStrip, 150, 75);
  fncTaken();
  user::Drag(bench.lblStrip, 150, -1500);
  user::Drag(bench.lblStrip, -2700, -1650);
  EXPECT_EQ(fncTaken(), "move 150 -1500 lblStrip. move -2700 -1650 lblStrip. ");
  bench.lblStrip.Visible = false;
  user::Settle();
  user::Drag(bench.lblStrip, 150, -750);
  user::Release(bench.lblStrip, 150, -750);
  EXPECT_EQ(fncTaken(), "move 150 -750 lblStrip. up lblStrip. ") << "and no click";
  user::Hover(bench.pctBack);
  EXPECT_TRUE(fncTaken().ends_with("pctBack. ")) << "the capture ends with the release";
}

TEST_F(Seam, ValuesSetFromCodeFireLikeTheUsersAndOnlyOnce) {
  for (const double value : {400, 400, 5000}) {
    prcSetValue(bench.barRoll, value);
  }
  prcSetValue(bench.chkOn, 1);
  user::Settle();
  EXPECT_EQ(bench.barRoll.Value, 1000);
  bench.barRoll.Value = 10;  // A value written as such tells nobody.
  user::Settle();
  EXPECT_EQ(fncTaken(), "change barRoll. change barRoll. click chkOn. ");
}

TEST_F(Seam, TimersTickInTheirOrderAndStopAtOnce) {
  static ControlEvents once;
  once.Timer = [](Control& c) {
    prcNote("last", c);
    bench.tmrSlow.Enabled = bench.tmrFast.Enabled = false;
  };
  bench.tmrFast.Interval = 40;
  bench.tmrSlow.Interval = 100;
  bench.tmrSlow.On = &once;
  bench.tmrFast.Enabled = bench.tmrSlow.Enabled = true;
  user::Wait(250);
  EXPECT_EQ(fncTaken(), "tick tmrFast. tick tmrFast. last tmrSlow. ");
}

TEST_F(Seam, APointOfAChartIsPickedByThePointerAndByKeys) {
  static const ControlEvents picked{
      .Click = [](Control& c) { strLog += "click " + std::to_string(c.ListIndex) + ' '; },
      .Change = [](Control& c) { strLog += std::to_string(c.ListIndex) + ' '; }};
  bench.crtCurve.On = &picked;
  user::Hover(bench.crtCurve);
  EXPECT_EQ(fncTaken(), "") << "there are no points";
  auto chart = std::make_shared<ChartData>();
  chart->Lines.push_back({.Name = "Money", .Points = {{0, 100}, {1, 90}, {2, 110}, {10, 80}}});
  bench.crtCurve.Chart = chart;
  user::Tab(bench.Form);
  while (bench.Form.ActiveControl != &bench.crtCurve) {
    user::Tab(bench.Form);
  }
  for (const char* key : {"Right", "Right", "End", "Right", "Left", "Home", "Left"}) {
    user::Key(bench.Form, key);
  }
  EXPECT_EQ(fncTaken(), "0 1 3 2 0 ");
  const ChartPlot plot = fncChartPlot(bench.crtCurve);
  const auto at = [&](double x) { return static_cast<float>(plot.fncX(x)); };
  user::Press(bench.crtCurve, at(0.4), 1500);
  fncTaken();
  for (const double x : {0.6, 5.9, 6.1, -0.5, 10.2, 10.1}) {
    user::Drag(bench.crtCurve, at(x), 1500);
  }
  user::Release(bench.crtCurve, at(10.1), 1500);
  EXPECT_EQ(fncTaken(), "1 2 3 0 3 click 3 ");
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
}

}  // namespace
