#include "evening/Hands.h"

#include <algorithm>
#include <array>
#include <string>

#include "evening/Csv.h"
#include "evening/HandRows.h"
#include "evening/HandWords.h"
#include "evening/Reasons.h"
#include "platform/Grid.h"
#include "platform/Layout.h"
#include "platform/Procedure.h"
#include "platform/Texts.h"
#include "shell/WindowPlace.h"
#include "table/Cards.h"

HandsWindow frmHands;

namespace {

constexpr Colour clrIvory{255, 253, 245};
constexpr Colour clrGold{230, 196, 90};
constexpr Colour clrFelt{34, 120, 84};

HandFilter fncFilter() {
  constexpr std::array<char, 4> letters{0, 'B', 'P', 'T'};
  const auto chosen = std::ranges::find(frmHands.optResult, 1, &Control::Value);
  return {fncChosenShoe(frmHands.Shoe),
          letters.at(static_cast<std::size_t>(chosen - frmHands.optResult.begin()))};
}

// --- The chosen hand ---

int fncChosenHand() {
  const Control& grid = frmHands.grdHands;
  const bool blnChosen = grid.Grid != nullptr && grid.ListIndex >= 0 &&
                         static_cast<std::size_t>(grid.ListIndex) < grid.Grid->Rows.size();
  return blnChosen ? grid.Grid->Rows[static_cast<std::size_t>(grid.ListIndex)] : 0;
}

void prcShowSide(const EveningHand& hand, Side side) {
  const bool blnBanker = side == Side::Banker;
  Control& head = frmHands.lblSide[blnBanker ? 1 : 0];
  head.Text =
      std::string(blnBanker ? "BANKER  " : "PLAYER  ") + std::to_string(fncTotalOf(hand, side));
  head.ForeColor = hand.Result == (blnBanker ? 'B' : 'P') ? clrGold : clrIvory;
  for (int at = blnBanker ? 3 : 0; at < (blnBanker ? 6 : 3); ++at) {
    Control& card = frmHands.pctCard[at];
    card.Picture = hand.Cards.at(static_cast<std::size_t>(at));
    card.Visible = card.Picture != 0;
    card.Spoken = card.Visible ? fncCardName(card.Picture) : "";
  }
}

void prcShowChosen() {
  HandsWindow& w = frmHands;
  const int number = fncChosenHand();
  for (Control& head : w.lblSide) {
    head.Visible = number != 0;
  }
  if (number == 0) {
    for (Control& card : w.pctCard) {
      card.Visible = false;
    }
    w.lblHand.Text = colEveningHands.empty() ? "No hand has been settled yet." : "No such hand.";
    w.lblReasons.Text.clear();
    return;
  }
  const EveningHand& hand = fncEveningHand(number);
  prcShowSide(hand, Side::Player);
  prcShowSide(hand, Side::Banker);
  w.lblHand.Text = "Hand " + std::to_string(number) + ", shoe " + std::to_string(hand.Shoe) +
                   (hand.Result == 'T' ? ": a tie" : ": " + fncResultName(hand.Result) + " wins");
  w.lblReasons.Text.clear();
  for (const std::string& line : fncReasons(hand)) {
    w.lblReasons.Text += line + strLineBreak;
  }
}

/// Puts the wanted hands into the list. The chosen one stays chosen; where it is not in the list,
/// the last one is, as it is when blnLast asks for it.
void prcFill(bool blnLast) {
  HandsWindow& w = frmHands;
  const int before = fncChosenHand();
  prcShowShoeChoice(w.Shoe);
  std::shared_ptr<const GridData> grid = fncHandRows(fncFilter());
  const auto at = std::ranges::lower_bound(grid->Rows, before);
  const bool blnKept = !blnLast && at != grid->Rows.end() && *at == before;
  w.grdHands.ListIndex =
      static_cast<int>(blnKept ? at - grid->Rows.begin() : std::ssize(grid->Rows) - 1);
  w.lblCount.Text = fncCounted(static_cast<int>(grid->Rows.size()), "hand");
  w.grdHands.Grid = std::move(grid);
  prcShowChosen();
}

// --- What the user does ---

std::string fncShownCsv() {
  std::vector<int> numbers(frmHands.grdHands.Grid->Rows.begin(),
                           frmHands.grdHands.Grid->Rows.end());
  return fncHandsCsv(numbers);
}

void prcSaveHands() {
  constexpr platform::FileKind kinds[] = {{"Comma separated values", "csv"}};
  prcSaveAs("Save Hands of the Evening", "Hands.csv", kinds,
            [](const std::string& path) { return platform::SaveFile(path, fncShownCsv()); });
}

constexpr ControlEvents evtFilter{
    .Click = [](Control&) { Guarded("frmHands_Filter", [] { prcFill(false); }); },
    .Change = [](Control&) { Guarded("frmHands_Filter", [] { prcFill(false); }); }};
constexpr ControlEvents evtGrid{
    .Change = [](Control&) { Guarded("grdHands_Change", prcShowChosen); }};
constexpr ControlEvents evtCopy{
    .Click = [](Control&) { Guarded("frmHands_Copy", [] { platform::CopyText(fncShownCsv()); }); }};
constexpr ControlEvents evtSave{.Click = [](Control&) { Guarded("frmHands_Save", prcSaveHands); }};
constexpr ControlEvents evtClose{.Click = [](Control&) { fncUnload(frmHands.Form); }};
constexpr ControlEvents evtFollow{.Timer = [](Control& timer) {
  timer.Enabled = false;
  // Who looks at the last hand goes on to the new one.
  const Control& grid = frmHands.grdHands;
  Guarded("frmHands_Follow", [&] { prcFill(grid.ListIndex + 1 == std::ssize(grid.Grid->Rows)); });
}};

// --- Layout ---

void prcLayOutFilter(Window& form) {
  HandsWindow& w = frmHands;
  prcLayOutShoeChoice(form, w.Shoe, 150, 120, evtFilter);
  prcPlace(form, {&w.lblResultCaption, "lblResultCaption", -1, ControlKind::Label, 4650, 165, 750,
                  255, "Result:"});
  constexpr std::array<const char*, 4> names{"All", "Banker", "Player", "Tie"};
  for (int i = 0; i < w.optResult.size(); ++i) {
    prcPlace(form, {&w.optResult[i], "optResult", i, ControlKind::OptionButton, 5400.0 + 1125 * i,
                    135, 1080, 300, names.at(static_cast<std::size_t>(i))});
    w.optResult[i].On = &evtFilter;
  }
  w.optResult[0].Value = 1;
  prcPlace(form, {&w.lblCount, "lblCount", -1, ControlKind::Label, 9900, 165, 1950, 255});
  w.lblCount.Align = Alignment::Right;
}

void prcLayOutChosen(Window& form) {
  HandsWindow& w = frmHands;
  const Place rows[] = {
      {&w.shpMat, "shpMat", -1, ControlKind::Shape, 150, 5265, 11700, 2250},
      {&w.lblSide[0], "lblSide", 0, ControlKind::Label, 375, 5385, 3345, 285},
      {&w.lblSide[1], "lblSide", 1, ControlKind::Label, 4095, 5385, 3345, 285},
      {&w.lblHand, "lblHand", -1, ControlKind::Label, 7845, 5385, 3900, 285},
      {&w.lblReasons, "lblReasons", -1, ControlKind::Label, 7845, 5790, 3900, 1590},
  };
  for (const Place& row : rows) {
    prcPlace(form, row);
    row.Target->ForeColor = clrIvory;
    row.Target->Face = {.Size = 9.75F};
  }
  for (Control* head : {&w.lblSide[0], &w.lblSide[1], &w.lblHand}) {
    head->Face.Bold = true;
  }
  for (int i = 0; i < w.pctCard.size(); ++i) {
    prcPlace(form, {&w.pctCard[i], "pctCard", i, ControlKind::Picture,
                    375.0 + 1140 * i + (i >= 3 ? 300 : 0), 5775, 1065, 1440});
    w.pctCard[i].Dress = Look::Card;
  }
  w.shpMat.FillColor = clrFelt;
  w.shpMat.Dress = Look::Mat;
  w.shpMat.Form2D = ShapeForm::Rounded;
  w.lblHand.Announce = w.lblReasons.Announce = true;
}

void prcLayOutHands(Window& form) {
  HandsWindow& w = frmHands;
  prcClearControls(form);
  prcLayOutFilter(form);
  prcPlace(form, {&w.grdHands, "grdHands", -1, ControlKind::Grid, 150, 555, 11700, 4575});
  w.grdHands.Spoken = "Hands of the evening";
  w.grdHands.On = &evtGrid;
  prcLayOutChosen(form);
  const Place rows[] = {
      {&w.cmdCopy, "cmdCopy", -1, ControlKind::Button, 150, 7650, 1500, 405, "Copy",
       "Copy the hands of the list to the clipboard"},
      {&w.cmdSave, "cmdSave", -1, ControlKind::Button, 1800, 7650, 2100, 405, "Save as CSV...",
       "Save the hands of the list as a table for other programs"},
      {&w.cmdClose, "cmdClose", -1, ControlKind::Button, 10350, 7650, 1500, 405, "Close"},
      {&w.tmrFollow, "tmrFollow", -1, ControlKind::Timer, 0, 0, 0, 0},
  };
  for (const Place& row : rows) {
    prcPlace(form, row);
  }
  w.cmdCopy.On = &evtCopy;
  w.cmdSave.AccessKey = 'S';
  w.cmdCopy.AccessKey = 'C';
  w.cmdSave.On = &evtSave;
  w.cmdClose.On = &evtClose;
  w.cmdClose.CancelButton = true;
  w.tmrFollow.On = &evtFollow;
  w.tmrFollow.Interval = 100;
  w.tmrFollow.Enabled = false;
}

constexpr WindowEvents evtHands{.Load =
                                    [](Window& form) {
                                      Guarded("frmHands_Form_Load", [&] {
                                        prcLayOutHands(form);
                                        prcPlaceEveningWindow(form);
                                        prcFill(true);
                                      });
                                    },
                                .Unload =
                                    [](Window& form, bool&) {
                                      Guarded("frmHands_Form_Unload",
                                              [&] { prcWritePlace(form, form.Name); });
                                    }};

}  // namespace

void prcShowHands() {
  prcOpenEveningWindow(frmHands.Form);
  fncSetFocus(frmHands.grdHands);
}

void prcShowHand(int number) {
  HandsWindow& w = frmHands;
  prcLoad(w.Form);
  if (!fncFilter().fncWants(fncEveningHand(number))) {
    w.Shoe.sldShoe.Value = 0;
    for (Control& option : w.optResult) {
      option.Value = &option == &w.optResult[0] ? 1 : 0;
    }
    prcFill(false);
  }
  const std::vector<std::int32_t>& rows = w.grdHands.Grid->Rows;
  w.grdHands.ListIndex = static_cast<int>(std::ranges::lower_bound(rows, number) - rows.begin());
  prcShowChosen();
  prcShowHands();
}

void prcFollowHands() {
  if (frmHands.Form.hWnd != 0) {
    frmHands.tmrFollow.Enabled = true;
  }
}

void prcPrepareHands() {
  prcPrepareEveningWindow(frmHands.Form, "frmHands", "Hands of the Evening", 12000, 8205, evtHands);
}
