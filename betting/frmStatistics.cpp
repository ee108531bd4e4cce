#include "betting/frmStatistics.h"

#include <cmath>
#include <string>

#include "platform/Layout.h"
#include "platform/Procedure.h"
#include "platform/Texts.h"
#include "platform/platform.h"
#include "shell/MDIForm1.h"
#include "shell/SettingsStore.h"
#include "shell/ToolButtons.h"
#include "shell/WindowPlace.h"
#include "table/Bets.h"
#include "table/Hooks.h"
#include "table/TableState.h"

StatisticsWindow frmStatistics;

namespace {

constexpr double dblMostStake = 10'000'000;
constexpr int intStakeDigits = 8;
constexpr const char* strBadStake = "Stake Money must be 0 to $10,000,000";
constexpr const char* strLowStake = "Cannot reduce stake money below player's total";
constexpr Colour clrGround{250, 247, 236};

/// All that a seat owns: off the table and on it.
double fncCurrentMoney(Integer i) {
  return dblPlayerTotal[i] + lngBankerBet[i] + lngTieBet[i] + lngPlayerBet[i];
}

void prcRefuse(Control& box, bool& Cancel, const char* message) {
  platform::MsgBox(message);
  fncSetFocus(box);
  Cancel = true;
}

bool fncResetWanted() {
  return platform::MsgBox("Are you sure you want ALL the statistics set to ZERO",
                          platform::Icon::Exclamation, "Velmora", platform::Buttons::OkCancel,
                          platform::Answer::Cancel) == platform::Answer::Ok;
}

/// The seat starts again from its stake. What stands on the table goes without a refund.
void prcResetSeat(Integer i) {
  const std::string section = fncSeatSection(i);
  prcShowMoney(frmStatistics.lblCurrentMoney[i], fncGetSetting(section, keyStake));
  prcShowMoney(frmStatistics.lblWinningsStat[i], 0);
  prcWriteSetting(section, keyWin, 0);
  prcShowMoney(frmStatistics.lblTurnover[i], 0);
  prcWriteSetting(section, keyTurnover, 0);
  for (const BetSide side : betSides) {
    prcTakeOff(fncBet(side, i));
    prcHideValue(fncBet(side, i), "0");
  }
  dblPlayerTotal[i] = fncVal(frmStatistics.mskSteak[i].Text);
  prcShowMoney(BaccTable.lblPlayerTotal[i], dblPlayerTotal[i]);
  dblPlayerWin[i] = 0;
  prcShowMoney(BaccTable.lblPlayerWinnings[i], dblPlayerWin[i]);
}

constexpr ControlEvents evtReset{.Click = [](Control&) { cmdResetStats_Click(); }};
void Command1_Click(Control& /*button*/) { fncUnload(frmStatistics.Form); }

constexpr ControlEvents evtOk{.Click = Command1_Click};
constexpr ControlEvents evtStake{
    .GotFocus = [](Control& box) { mskSteak_GotFocus(box.Index); },
    .Validate = [](Control& box, bool& Cancel) { mskSteak_Validate(box.Index, Cancel); }};

void prcLayOutCounts(Window& form) {
  StatisticsWindow& w = frmStatistics;
  const Place rows[] = {
      {&w.Frame3, "Frame3", -1, ControlKind::Frame, 120, 120, 1350, 900, "Hands"},
      {&w.lblHandsPlayed, "lblHandsPlayed", -1, ControlKind::Label, 90, 510, 1170, 255},
      {&w.frmShoesPlayed, "frmShoesPlayed", -1, ControlKind::Frame, 1590, 120, 4410, 900,
       "Shoes Played"},
      {&w.Label5, "Label5", -1, ControlKind::Label, 90, 270, 825, 240, "1 Deck"},
      {&w.Label7, "Label7", -1, ControlKind::Label, 945, 270, 825, 240, "2 Decks"},
      {&w.Label8, "Label8", -1, ControlKind::Label, 1800, 270, 825, 240, "4 Decks"},
      {&w.Label9, "Label9", -1, ControlKind::Label, 2655, 270, 825, 240, "6 Decks"},
      {&w.Label10, "Label10", -1, ControlKind::Label, 3510, 270, 825, 240, "8 Decks"},
  };
  prcLayOut(form, rows);
  w.lblHandsPlayed.Container = &w.Frame3;
  for (int i = 0; i < w.lblShoesPlayedDecks.size(); ++i) {
    prcPlace(form, {&w.lblShoesPlayedDecks[i], "lblShoesPlayedDecks", i, ControlKind::Label,
                    90.0 + 855 * i, 510, 825, 255});
    w.lblShoesPlayedDecks[i].Container = &w.frmShoesPlayed;
    w.lblShoesPlayedDecks[i].Align = Alignment::Centre;
  }
  w.lblHandsPlayed.Spoken = "Hands played";
  int i = 0;
  for (Control* head : {&w.Label5, &w.Label7, &w.Label8, &w.Label9, &w.Label10}) {
    head->Container = &w.frmShoesPlayed;
    head->Align = Alignment::Centre;
    w.lblShoesPlayedDecks[i++].Spoken = "Shoes played, " + head->Text;
  }
  w.lblHandsPlayed.Align = Alignment::Centre;
}

void prcLayOutSeat(Window& form, int i) {
  StatisticsWindow& w = frmStatistics;
  const double left = 2220.0 + 1830 * i;
  const Place rows[] = {
      {&w.mskSteak[i], "mskSteak", i, ControlKind::MaskedEdit, left, 600, 1650, 315, "",
       "Enter between $1 and $10,000,000 (use Tab key to exit)"},
      {&w.lblCurrentMoney[i], "lblCurrentMoney", i, ControlKind::Label, left, 1065, 1650, 255},
      {&w.lblWinningsStat[i], "lblWinningsStat", i, ControlKind::Label, left, 1485, 1650, 255},
      {&w.lblTurnover[i], "lblTurnover", i, ControlKind::Label, left, 1905, 1650, 255},
  };
  for (const Place& row : rows) {
    prcPlace(form, row);
    row.Target->Container = &w.Frame2;
    row.Target->Align = Alignment::Right;
  }
  Control& box = w.mskSteak[i];
  box.Mask = "$99999999";
  box.Format = "$0";
  const std::string seat = i == 0 ? ", PLAYER 3" : ", PLAYER 4";
  box.Spoken = "Initial Stake" + seat;
  w.lblCurrentMoney[i].Spoken = "Current Money" + seat;
  w.lblWinningsStat[i].Dress = Look::Money;
  w.lblWinningsStat[i].Spoken = "Winnings" + seat;
  w.lblTurnover[i].Spoken = "Turnover" + seat;
  box.On = &evtStake;
}

void prcLayOutSeats(Window& form) {
  StatisticsWindow& w = frmStatistics;
  prcPlace(form, {&w.Frame2, "Frame2", -1, ControlKind::Frame, 120, 1140, 5880, 2340,
                  "Player Statistics"});
  const Place rows[] = {
      {&w.Label6, "Label6", -1, ControlKind::Label, 2220, 270, 1650, 240, "PLAYER 3"},
      {&w.Label1, "Label1", -1, ControlKind::Label, 4050, 270, 1650, 240, "PLAYER 4"},
      {&w.Label2, "Label2", -1, ControlKind::Label, 150, 645, 1950, 255, "Initial Stake:"},
      {&w.Label3, "Label3", -1, ControlKind::Label, 150, 1065, 1950, 255, "Current Money:"},
      {&w.Label4, "Label4", -1, ControlKind::Label, 150, 1485, 1950, 255, "Winnings:"},
      {&w.Label12, "Label12", -1, ControlKind::Label, 150, 1905, 1950, 255, "Turnover:"},
  };
  for (const Place& row : rows) {
    prcPlace(form, row);
    row.Target->Container = &w.Frame2;
  }
  w.Label6.Align = w.Label1.Align = Alignment::Right;
  for (int i = 0; i < intSeats; ++i) {
    prcLayOutSeat(form, i);
  }
}

void prcLayOutStatistics(Window& form) {
  StatisticsWindow& w = frmStatistics;
  prcLayOutCounts(form);
  prcLayOutSeats(form);
  prcPlace(form, {&w.cmdResetStats, "cmdResetStats", -1, ControlKind::Button, 120, 3600, 2100, 405,
                  "&Reset Statistics"});
  prcPlace(form, {&w.Command1, "Command1", -1, ControlKind::Button, 4740, 3600, 1260, 405, "OK"});
  w.cmdResetStats.On = &evtReset;
  w.Command1.On = &evtOk;
  w.Command1.CancelButton = true;
}

void Form_Load(Window& form) {
  prcLayOutStatistics(form);
  form.Topmost = true;
  prcReadPlace(form, secStatistics);
  prcStatisticsRefresh();
}

void Form_Unload(Window& form, bool&) {
  const Procedure running("frmStatistics_Form_Unload");
  prcWritePlace(form, secStatistics);
  running.Step(2);
  MDIForm1.mnuStatistics.Value = 0;
  running.Step(3);
  prcSetButton("Statistics", 0);
}

/// Enter leaves a stake, whose check may keep it.
void Form_KeyDown(Window& form, const std::string& strKey, int /*intShift*/) {
  if (strKey == "Enter" && form.ActiveControl != nullptr && form.ActiveControl->On == &evtStake) {
    fncSetFocus(frmStatistics.Command1);
  }
}

constexpr WindowEvents evtStatistics{
    .Load = Form_Load, .Unload = Form_Unload, .KeyDown = Form_KeyDown};

}  // namespace

void prcStatisticsRefresh() {
  const Procedure running("prcStatisticsRefresh");
  StatisticsWindow& w = frmStatistics;
  w.lblHandsPlayed.Text = fncGetPrivateProfileString(secPlayed, keyHands);
  running.Step(2);
  for (int i = 0; i < w.lblShoesPlayedDecks.size(); ++i) {
    w.lblShoesPlayedDecks[i].Text = fncGetPrivateProfileString(
        secPlayed, fncDecksKey(intShoeSizes.at(static_cast<std::size_t>(i))));
  }
  running.Step(3);
  for (int i = 0; i < intSeats; ++i) {
    const std::string section = fncSeatSection(i);
    prcSetMasked(w.mskSteak[i],
                 fncPlainNumberText(std::nearbyint(fncGetSetting(section, keyStake))));
    prcShowMoney(w.lblWinningsStat[i], fncGetSetting(section, keyWin));
    prcShowMoney(w.lblCurrentMoney[i], fncCurrentMoney(i));
    prcShowMoney(w.lblTurnover[i], fncGetSetting(section, keyTurnover));
  }
}

void cmdResetStats_Click() {
  const Procedure running("frmStatistics_cmdResetStats_Click");
  StatisticsWindow& w = frmStatistics;
  if (!fncResetWanted()) {
    return;
  }
  prcWriteTogether([&] {
    running.Step(2);
    w.lblHandsPlayed.Text = "0";
    prcWriteSetting(secPlayed, keyHands, 0);
    running.Step(3);
    for (int i = 0; i < w.lblShoesPlayedDecks.size(); ++i) {
      w.lblShoesPlayedDecks[i].Text = "0";
      prcWriteSetting(secPlayed, fncDecksKey(intShoeSizes.at(static_cast<std::size_t>(i))), 0);
    }
    running.Step(4);
    for (int i = 0; i < intSeats; ++i) {
      prcResetSeat(i);
    }
  });
  hooks.StatisticsReset();
}

void mskSteak_GotFocus(Integer Index) {
  Control& box = frmStatistics.mskSteak[Index];
  box.SelLength = intStakeDigits;
  frmStatistics.dblOldStake = fncVal(box.Text);
}

void mskSteak_Validate(Integer Index, bool& Cancel) {
  const Procedure running("frmStatistics_mskSteak_Validate");
  Control& box = frmStatistics.mskSteak[Index];
  if (!fncIsNumeric(box.Text)) {
    prcRefuse(box, Cancel, strBadStake);
    box.Text = "0";
    return;
  }
  const double stake = fncVal(box.Text);
  running.Step(2);
  if (stake < 0 || stake > dblMostStake) {
    prcRefuse(box, Cancel, strBadStake);
    return;
  }
  running.Step(3);
  if (frmStatistics.dblOldStake - stake > dblPlayerTotal[Index]) {
    prcRefuse(box, Cancel, strLowStake);
    return;
  }
  running.Step(4);
  prcWritePrivateProfileString(fncSeatSection(Index), keyStake, box.Text);
  running.Step(5);
  dblPlayerTotal[Index] += stake - frmStatistics.dblOldStake;
  // A check can come twice while the focus stays: the change must not be booked again.
  frmStatistics.dblOldStake = stake;
  running.Step(6);
  prcShowMoney(BaccTable.lblPlayerTotal[Index], dblPlayerTotal[Index]);
  running.Step(7);
  prcShowMoney(frmStatistics.lblCurrentMoney[Index], fncCurrentMoney(Index));
  hooks.StakeChanged();
}

void prcPrepareStatistics() {
  Window& form = frmStatistics.Form;
  form.Name = "frmStatistics";
  form.Kind = WindowKind::Dialog;
  form.On = &evtStatistics;
  form.Caption = "                    S  T  A  T  I  S  T  I  C  S";
  form.FixedInner = true;
  form.ScaleWidth = 6120;
  form.ScaleHeight = 4125;
  form.BackColor = clrGround;
}
