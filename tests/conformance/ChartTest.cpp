#include <gtest/gtest.h>

#include "judges/Adapter.h"
#include "platform/Chart.h"
#include "platform/Grid.h"
#include "platform/Layout.h"

// Charts and grids, alike on every platform.

namespace {

struct Sheet {
  Window Form;
  Control cmdFirst, crtCurve, grdRows;
};
Sheet sheet;
std::string strAnswers;

const ControlEvents evtHeard{
    .Click = [](Control& c) { strAnswers += std::string("click ") + c.Name + " "; },
    .Change = [](Control& c) { strAnswers += std::to_string(c.ListIndex) + " "; }};

class ChartControl : public testing::Test {
 protected:
  void SetUp() override {
    user::Reset();
    sheet.Form = Window{};
    sheet.Form.Name = "Sheet";
    sheet.Form.Kind = WindowKind::Float;
    sheet.Form.FixedInner = true;
    sheet.Form.ScaleWidth = 9000;
    sheet.Form.ScaleHeight = 6000;
    const Place rows[] = {
        {&sheet.cmdFirst, "cmdFirst", -1, ControlKind::Button, 0, 5400, 1500, 375, "First"},
        {&sheet.crtCurve, "crtCurve", -1, ControlKind::Chart, 0, 0, 9000, 3000},
        {&sheet.grdRows, "grdRows", -1, ControlKind::Grid, 0, 3000, 6000, 2250}};
    prcLayOut(sheet.Form, rows);
    auto chart = std::make_shared<ChartData>();
    chart->Lines.push_back({.Name = "Money", .Points = {{0, 100}, {1, 90}, {2, 110}, {10, 80}}});
    sheet.crtCurve.Chart = chart;
    static constexpr GridColumn columns[] = {{"Number", 1500, Alignment::Right}};
    auto grid = std::make_shared<GridData>();
    grid->Columns = columns;
    grid->Rows = {7, 5, 3};
    grid->Cell = [](std::int32_t row, int) { return std::to_string(row); };
    sheet.grdRows.Grid = grid;
    sheet.crtCurve.On = sheet.grdRows.On = &evtHeard;
    prcShow(sheet.Form);
    user::Settle();
    strAnswers.clear();
  }
  void TearDown() override {
    prcForgetWindow(sheet.Form);
    user::Reset();
  }
};

TEST_F(ChartControl, ThePointerPicksTheNearestPoint) {
  const ChartPlot plot = fncChartPlot(sheet.crtCurve);
  const auto at = [&](double x) { return static_cast<float>(plot.fncX(x)); };
  user::Press(sheet.crtCurve, at(0.4), 1500);
  user::Drag(sheet.crtCurve, at(0.4), 1500);
  strAnswers.clear();
  for (const double x : {0.6, 5.9, 6.1, -0.5, 10.2, 10.1}) {
    user::Drag(sheet.crtCurve, at(x), 1500);
  }
  EXPECT_EQ(strAnswers, "1 2 3 0 3 ");
}

TEST_F(ChartControl, KeysGoAlongAndAClickTellsWhere) {
  user::Tab(sheet.Form);
  user::Tab(sheet.Form);
  ASSERT_EQ(sheet.Form.ActiveControl, &sheet.crtCurve);
  for (const char* key : {"Right", "Right", "End", "Right", "Left", "Home", "Left"}) {
    user::Key(sheet.Form, key);
  }
  EXPECT_EQ(strAnswers, "0 1 3 2 0 ");
  user::Click(sheet.crtCurve);
  EXPECT_TRUE(strAnswers.ends_with("click crtCurve ")) << strAnswers;
}

TEST_F(ChartControl, WithoutPointsNothingIsPicked) {
  sheet.crtCurve.Chart = std::make_shared<ChartData>();
  user::Hover(sheet.crtCurve);
  EXPECT_EQ(strAnswers + std::to_string(sheet.crtCurve.ListIndex), "-1");
}

TEST(ChartPlot, StepsAreRoundAndHoldTheCurve) {
  struct Row {
    double Span;
    int Most;
    double Step;
  };
  for (const Row& row : {Row{7, 7, 1}, Row{7.1, 7, 2}, Row{14.1, 7, 5}, Row{350, 7, 50},
                         Row{351, 7, 100}, Row{0.7, 7, 0.1}}) {
    EXPECT_DOUBLE_EQ(fncChartStep(row.Span, row.Most), row.Step) << row.Span;
  }
  Control chart;
  chart.Width = chart.Height = 6000;
  auto data = std::make_shared<ChartData>();
  data->Lines.push_back({.Points = {{0, 1000}}});
  chart.Chart = data;
  const ChartPlot flat = fncChartPlot(chart);
  EXPECT_LT(flat.YLow, flat.YHigh);
  EXPECT_LT(flat.XLow, flat.XHigh);
  data->Bands.push_back({.Spans = {{0, -333, 1999}}});
  const ChartPlot wide = fncChartPlot(chart);
  EXPECT_EQ(wide.YLow, -500);
  EXPECT_EQ(wide.YHigh, 2000);
}

}  // namespace
