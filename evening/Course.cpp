#include "evening/Course.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "evening/CourseChart.h"
#include "evening/Hands.h"
#include "evening/Luck.h"
#include "evening/LuckWords.h"
#include "evening/Reckoning.h"
#include "platform/Grid.h"
#include "platform/Layout.h"
#include "platform/Procedure.h"
#include "platform/Texts.h"
#include "shell/SettingsStore.h"
#include "shell/WindowPlace.h"

CourseWindow frmCourse;

namespace {

constexpr int intOddsTopic = 2;  // The number of the page in the help's index.

// Milliseconds until the window follows: the play, and the reckoning of a long evening.
constexpr int intFollowPlay = 100, intFollowReckoning = 1;

bool blnPlayed = false;  // Something has happened since the window was filled.

Luck lckShown;  // Of the scope that the window shows.

// --- The table of what the house edge costs: a row for each bet, and one for all ---

struct BetRow {
  BetSide Side;
  const char* Name;
};
constexpr std::array<BetRow, 3> betRows{
    {{betBanker, "Banker"}, {betPlayer, "Player"}, {betTie, "Tie"}}};
constexpr std::int32_t rowAll = 3;

constexpr GridColumn edgeColumns[] = {{" Bet", 1050},
                                      {"Staked", 1350, Alignment::Right},
                                      {"House edge", 1350, Alignment::Right},
                                      {"Costs", 1200, Alignment::Right}};

double fncOfRow(const std::array<double, 3>& amounts, std::int32_t row) {
  return row == rowAll
             ? fncOfAll(amounts)
             : amounts.at(static_cast<std::size_t>(betRows.at(static_cast<std::size_t>(row)).Side));
}

/// A share as percent with two places, such as "1.06 %"; below 0 where a bet won by more than was
/// paid for it.
std::string fncPercent(double share) {
  const long hundredths = std::lround(std::abs(share) * 10000);
  const long places = hundredths % 100;
  return (share < 0 ? "-" : "") + std::to_string(hundredths / 100) + (places < 10 ? ".0" : ".") +
         std::to_string(places) + " %";
}

std::string fncEdgeCell(std::int32_t row, int column) {
  const double staked = fncOfRow(lckShown.Staked, row);
  const double cost = fncOfRow(lckShown.Cost, row);
  switch (column) {
    case 0:
      return std::string(" ") +
             (row == rowAll ? "All" : betRows.at(static_cast<std::size_t>(row)).Name);
    case 1:
      return fncCurrency(staked);
    case 2:
      return staked == 0 ? "" : fncPercent(cost / staked);
    default:
      return fncCurrency(cost);
  }
}

void prcShowLuck(const Scope& scope) {
  CourseWindow& w = frmCourse;
  lckShown = fncLuck(scope);
  auto grid = std::make_shared<GridData>();
  grid->Columns = edgeColumns;
  grid->Rows = {0, 1, 2, rowAll};
  grid->Cell = fncEdgeCell;
  w.grdEdge.Grid = std::move(grid);
  w.lblOutcome.Text = fncOutcomeWords(lckShown);
  w.lblOutcome.ForeColor = fncMoneyInk(lckShown.Won);
  w.lblLuck.Text = fncLuckWords(scope, lckShown);
}

// --- What is shown ---

Scope fncScope() {
  const CourseWindow& w = frmCourse;
  const auto chosen = std::ranges::find(w.optSeat, 1, &Control::Value) - w.optSeat.begin();
  return {chosen < intSeats ? static_cast<int>(chosen) : -1, fncChosenShoe(w.Shoe)};
}

std::string fncPointedWords() {
  const Control& chart = frmCourse.crtMoney;
  if (chart.Chart->Lines.empty()) {
    return chart.Spoken;
  }
  if (chart.ListIndex < 0) {
    return "Point at the curve, or use the arrow keys, to be told of a hand.";
  }
  if (chart.ListIndex == 0) {
    const int shoe = fncScope().Shoe;
    return "Before the first hand" + (shoe == 0 ? "" : " of shoe " + std::to_string(shoe));
  }
  return fncHandSentence(fncHandOfPoint(*chart.Chart, chart.ListIndex));
}

void prcShowPointed() { frmCourse.lblPointed.Text = fncPointedWords(); }

void prcFill() {
  CourseWindow& w = frmCourse;
  prcShowShoeChoice(w.Shoe);
  const Scope scope = fncScope();
  const bool blnReckoned = fncReckonOn(scope.Shoe);
  blnPlayed = false;
  w.tmrFollow.Interval = intFollowReckoning;
  w.tmrFollow.Enabled = !blnReckoned;
  Control& chart = w.crtMoney;
  const int pointed = chart.ListIndex < 0 ? 0 : fncHandOfPoint(*chart.Chart, chart.ListIndex);
  chart.Chart = fncCourseChart(scope);
  chart.Spoken = fncCourseSentence(scope);
  // The hand pointed at stays so while it is in sight.
  const int first = chart.Chart->Lines.empty() ? 0 : fncHandOfPoint(*chart.Chart, 0);
  const bool blnInSight = chart.ListIndex >= 0 && pointed >= first &&
                          pointed - first < std::ssize(chart.Chart->Lines.front().Points);
  chart.ListIndex = blnInSight ? pointed - first : -1;
  prcShowPointed();
  prcShowLuck(scope);
}

// --- What the user does ---

void prcSaveCourse() {
  constexpr platform::FileKind kinds[] = {{"Picture", "png"}, {"Drawing", "svg"}};
  prcSaveAs("Save Course of the Money", "Course.png", kinds, [](const std::string& path) {
    return platform::SavePicture(frmCourse.crtMoney, path);
  });
}

void prcPrintCourse() {
  const std::string failure = platform::PrintPicture(frmCourse.crtMoney, "Course of the Money");
  if (!failure.empty()) {
    platform::MsgBox("The chart could not be printed: " + failure, platform::Icon::Exclamation);
  }
}

void prcOpenPointed() {
  const Control& chart = frmCourse.crtMoney;
  if (chart.ListIndex > 0) {
    prcShowHand(fncHandOfPoint(*chart.Chart, chart.ListIndex));
  }
}

constexpr ControlEvents evtScope{.Click = [](Control&) { Guarded("frmCourse_Scope", prcFill); },
                                 .Change = [](Control&) { Guarded("frmCourse_Scope", prcFill); }};
constexpr ControlEvents evtChart{
    .Click = [](Control&) { Guarded("crtMoney_Click", prcOpenPointed); },
    .Change = [](Control&) { Guarded("crtMoney_Change", prcShowPointed); }};
constexpr ControlEvents evtSave{
    .Click = [](Control&) { Guarded("frmCourse_Save", prcSaveCourse); }};
constexpr ControlEvents evtPrint{
    .Click = [](Control&) { Guarded("frmCourse_Print", prcPrintCourse); }};
constexpr ControlEvents evtOdds{
    .Click = [](Control&) { platform::ShowHelp(strHelpFile, intOddsTopic); }};
constexpr ControlEvents evtClose{.Click = [](Control&) { fncUnload(frmCourse.Form); }};

/// Shows at once what was played, and the bands and the luck of it when all hands are reckoned.
void prcFollow() {
  if (blnPlayed || fncReckonOn(fncScope().Shoe)) {
    prcFill();
  } else {
    frmCourse.tmrFollow.Enabled = true;
  }
}

constexpr ControlEvents evtFollow{.Timer = [](Control& timer) {
  timer.Enabled = false;
  Guarded("frmCourse_Follow", prcFollow);
}};

// --- Layout ---

void prcLayOutScope(Window& form) {
  CourseWindow& w = frmCourse;
  constexpr std::array<const char*, 3> names{"Player 1", "Player 2", "Both"};
  for (int i = 0; i < w.optSeat.size(); ++i) {
    prcPlace(form, {&w.optSeat[i], "optSeat", i, ControlKind::OptionButton, 150.0 + 1275 * i, 5490,
                    1200, 300, names.at(static_cast<std::size_t>(i))});
    w.optSeat[i].On = &evtScope;
  }
  w.optSeat[2].Value = 1;
  prcLayOutShoeChoice(form, w.Shoe, 4650, 5475, evtScope);
}

void prcLayOutLuck(Window& form) {
  CourseWindow& w = frmCourse;
  prcPlace(form, {&w.fraLuck, "fraLuck", -1, ControlKind::Frame, 150, 5910, 13200, 2310,
                  "Luck and edge"});
  const Place rows[] = {
      {&w.grdEdge, "grdEdge", -1, ControlKind::Grid, 180, 375, 5055, 1710},
      {&w.lblOutcome, "lblOutcome", -1, ControlKind::Label, 5505, 345, 7545, 330},
      {&w.lblLuck, "lblLuck", -1, ControlKind::Label, 5505, 750, 7545, 1470},
  };
  for (const Place& row : rows) {
    prcPlace(form, row);
    row.Target->Container = &w.fraLuck;
  }
  w.grdEdge.Spoken = "What the house edge costs, by bet";
  w.lblOutcome.Face = {.Size = 13, .Bold = true};
  w.lblLuck.Face.Size = 9.75F;
}

void prcLayOutCourse(Window& form) {
  CourseWindow& w = frmCourse;
  const Place chart[] = {
      {&w.crtMoney, "crtMoney", -1, ControlKind::Chart, 150, 150, 13200, 4875},
      {&w.lblPointed, "lblPointed", -1, ControlKind::Label, 150, 5100, 13200, 270},
  };
  prcLayOut(form, chart);
  w.crtMoney.On = &evtChart;
  w.lblPointed.Announce = true;
  prcLayOutScope(form);
  prcLayOutLuck(form);
  const Place rows[] = {
      {&w.cmdSave, "cmdSave", -1, ControlKind::Button, 150, 8370, 1650, 405, "Save chart...",
       "Save the chart as a picture (PNG) or a drawing (SVG)"},
      {&w.cmdPrint, "cmdPrint", -1, ControlKind::Button, 1950, 8370, 1500, 405, "Print..."},
      {&w.cmdOdds, "cmdOdds", -1, ControlKind::Button, 3600, 8370, 1800, 405, "Exact odds",
       "Read where these figures come from"},
      {&w.cmdClose, "cmdClose", -1, ControlKind::Button, 11850, 8370, 1500, 405, "Close"},
      {&w.tmrFollow, "tmrFollow", -1, ControlKind::Timer, 0, 0, 0, 0},
  };
  for (const Place& row : rows) {
    prcPlace(form, row);
  }
  w.cmdSave.AccessKey = 'S';
  w.cmdPrint.AccessKey = 'P';
  w.cmdOdds.AccessKey = 'X';
  w.cmdSave.On = &evtSave;
  w.cmdPrint.On = &evtPrint;
  w.cmdOdds.On = &evtOdds;
  w.cmdClose.On = &evtClose;
  w.cmdClose.CancelButton = true;
  w.tmrFollow.On = &evtFollow;
}

constexpr WindowEvents evtCourse{.Load =
                                     [](Window& form) {
                                       Guarded("frmCourse_Form_Load", [&] {
                                         prcLayOutCourse(form);
                                         prcPlaceEveningWindow(form);
                                         prcFill();
                                       });
                                     },
                                 .Unload =
                                     [](Window& form, bool&) {
                                       Guarded("frmCourse_Form_Unload",
                                               [&] { prcWritePlace(form, form.Name); });
                                     }};

}  // namespace

void prcShowCourse() {
  prcOpenEveningWindow(frmCourse.Form);
  fncSetFocus(frmCourse.crtMoney);
}

void prcFollowCourse() {
  if (frmCourse.Form.hWnd != 0) {
    blnPlayed = true;
    frmCourse.tmrFollow.Interval = intFollowPlay;
    frmCourse.tmrFollow.Enabled = true;
  }
}

void prcPrepareCourse() {
  prcPrepareEveningWindow(frmCourse.Form, "frmCourse", "Course of the Money", 13500, 8925,
                          evtCourse);
}
