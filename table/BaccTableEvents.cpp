#include "table/BaccTableEvents.h"

#include <algorithm>
#include <cmath>

#include "assets/Pictures.h"
#include "betting/BetEntry.h"
#include "betting/Funds.h"
#include "betting/TableLimits.h"
#include "learn/CardNeed.h"
#include "marking/MarkCardEvents.h"
#include "platform/Procedure.h"
#include "platform/Texts.h"
#include "platform/platform.h"
#include "reveal/CardReveal.h"
#include "reveal/KeyboardReveal.h"
#include "shell/Closing.h"
#include "shell/MDIForm1.h"
#include "shell/SettingsStore.h"
#include "shell/WindowPlace.h"
#include "table/Adornments.h"
#include "table/BaccTableLayout.h"
#include "table/Bets.h"
#include "table/DealCommand.h"
#include "table/Shoe.h"
#include "table/TableStatus.h"
#include "table/TableTimer.h"

namespace {

void prcApplyPlace() {
  Window& form = BaccTable.Form;
  prcReadPlace(form, secBaccTable, PlaceKeys::Whole);
  form.Left = (MDIForm1.Form.Width - form.Width) / 2;
}

void prcLoadSeat(Integer i) {
  const std::string section = fncSeatSection(i);
  const auto stake = std::nearbyint(fncGetSetting(section, keyStake));
  dblPlayerWin[i] = fncGetSetting(section, keyWin);
  dblPlayerTotal[i] = stake + dblPlayerWin[i];
  prcShowMoney(BaccTable.lblPlayerWinnings[i], dblPlayerWin[i]);
  prcShowMoney(BaccTable.lblPlayerTotal[i], dblPlayerTotal[i]);
}

/// The captions of the Deal buttons; those of elements 1 to 3 begin with the number of hands that
/// they deal.
constexpr std::array<const char*, 4> strDealCaptions{"Deal", "5 hands", "10 hands", "20 hands"};

/// A chip label's place among the twelve of its seat tells its side and its chips.
struct Chip {
  BetSide Side;
  int Chips;  ///< 0 clears the bet.
};

Chip fncChip(const Control& label) {
  const std::array<Control*, 12> chips = fncChips(label.Index);
  const auto place = static_cast<std::size_t>(std::ranges::find(chips, &label) - chips.begin());
  return {betSides.at(place / intChipSizes.size()), intChipSizes.at(place % intChipSizes.size())};
}

void lblBetInc_Click(Control& label) {
  const Chip chip = fncChip(label);
  prcBetInc(chip.Side, label.Index, BaccTable.intAddSub * chip.Chips);
}

void lblBetInc0_Click(Control& label) {
  const Chip chip = fncChip(label);
  prcBetInc(chip.Side, label.Index, fncInteger(-fncBetChips(chip.Side, label.Index)));
}

constexpr ControlEvents evtChip{
    .Click = lblBetInc_Click,
    .MouseDown = [](Control&, const Mouse& mouse) { prcAddSub(mouse.Button); }};
constexpr ControlEvents evtClear{.Click = lblBetInc0_Click};

constexpr std::array<ControlEvents, 3> evtBoxes{
    {{.GotFocus = [](Control& box) { txtTieBet_GotFocus(box.Index); },
      .Validate = [](Control& box, bool& Cancel) { txtTieBet_Validate(box.Index, Cancel); }},
     {.GotFocus = [](Control& box) { txtBankerBet_GotFocus(box.Index); },
      .Validate = [](Control& box, bool& Cancel) { txtBankerBet_Validate(box.Index, Cancel); }},
     {.GotFocus = [](Control& box) { txtPlayerBet_GotFocus(box.Index); },
      .Validate = [](Control& box, bool& Cancel) { txtPlayerBet_Validate(box.Index, Cancel); }}}};

constexpr ControlEvents evtCardBack{
    .Click = [](Control& card) { pctCardBack_Click(card.Index); },
    .MouseMove = [](Control& card, const Mouse& /*mouse*/) { pctCardBack_MouseMove(card.Index); },
};

constexpr ControlEvents evtCardBottom{
    .MouseMove = [](Control& strip,
                    const Mouse& mouse) { lblCardBottom_MouseMove(strip.Index, mouse.Y); },
    .MouseUp = [](Control& strip, const Mouse& /*mouse*/) { lblCardBottom_MouseUp(strip.Index); },
};

constexpr ControlEvents evtCardRight{
    .MouseMove = [](Control& strip,
                    const Mouse& mouse) { lblCardRight_MouseMove(strip.Index, mouse.X); },
    .MouseUp = [](Control& strip, const Mouse& /*mouse*/) { lblCardRight_MouseUp(strip.Index); },
};

constexpr ControlEvents evtUnit{.GotFocus = [](Control&) { txtUnitValue_GotFocus(); },
                                .LostFocus = [](Control&) { txtUnitValue_LostFocus(); }};
constexpr ControlEvents evtHands{.GotFocus = [](Control&) { mskHandsAtaTime_GotFocus(); },
                                 .LostFocus = [](Control&) { mskHandsAtaTime_LostFocus(); }};
constexpr ControlEvents evtDeal{.Click = [](Control& button) { duokkortos_Click(button.Index); }};
constexpr ControlEvents evtShuffle{.Click = [](Control&) { maisyk_Click(); }};
constexpr ControlEvents evtTimer{.Timer = [](Control&) { Timer1_Timer(); }};

void prcTieSeat(Integer i) {
  for (const BetSide side : betSides) {
    fncBet(side, i).Box.On = &evtBoxes.at(static_cast<std::size_t>(side));
  }
  for (Control* label : fncChips(i)) {
    label->On = fncChip(*label).Chips == 0 ? &evtClear : &evtChip;
  }
}

void prcTieEvents() {
  BaccTableWindow& table = BaccTable;
  for (int i = 0; i < intSeats; ++i) {
    prcTieSeat(i);
  }
  for (int n = 0; n < intPositions; ++n) {
    table.pctCardBack[n].On = &evtCardBack;
    table.lblCardBottom[n].On = &evtCardBottom;
    table.lblCardRight[n].On = &evtCardRight;
  }
  table.txtUnitValue.On = &evtUnit;
  table.mskHandsAtaTime.On = &evtHands;
  for (Control& button : table.duokkortos) {
    button.On = &evtDeal;
  }
  table.maisyk.On = &evtShuffle;
  table.Timer1.On = &evtTimer;
}

void Form_Load(Window&) {
  const Procedure running("Baccarat table Form_Load");
  prcLayOutBaccTable();
  prcTieEvents();
  prcApplyPlace();
  running.Step(2);
  BaccTable.intCardHeight = fncInteger(BaccTable.pctCardBack[0].Height);
  BaccTable.intCardWidth = fncInteger(BaccTable.pctCardBack[0].Width);
  running.Step(3);
  blnEndOfShoe.fill(true);
  running.Step(4);
  for (int i = 0; i < intSeats; ++i) {
    for (const BetSide side : betSides) {
      fncBet(side, i).Box.Text = "0";
    }
  }
  running.Step(5);
  for (Control& back : BaccTable.pctCardBack) {
    back.Picture = picCardBack;
  }
  running.Step(6);
  for (int i = 0; i < intSeats; ++i) {
    prcLoadSeat(i);
  }
  running.Step(7);
  BaccTable.maisyk.Text = "Shuffle";
  running.Step(8);
  if (fncEqualNoCase(fncGetPrivateProfileString(secFile, keyLearn), "True")) {
    prcShowLearnPanels(true);
  }
  running.Step(9);
  BaccTable.txtUnitValue.Text = fncPlainNumberText(fncGetSetting(secMisc, keyUnitValue));
  running.Step(10);
  blnTableLoaded = true;
  running.Step(11);
  for (int i = 0; i < intShoes; ++i) {
    intMarkCardShoe[i] = i;
  }
  running.Step(12);
  NewCardViewForm(0, 0);
  running.Step(13);
  BaccTable.maisyk.Visible = true;
  running.Step(14);
  for (int i = 0; i < BaccTable.duokkortos.size(); ++i) {
    BaccTable.duokkortos[i].Text = strDealCaptions.at(static_cast<std::size_t>(i));
  }
  running.Step(15);
  blnShoePlayerBlue.fill(blnPlayerBlue);
  prcFocusNextStep();
}

void Form_Unload(Window& form, bool& /*blnCancel*/) {
  const Procedure running("Baccarat table Form_Unload");
  prcWritePlace(form, secBaccTable, PlaceKeys::Whole);
  running.Step(2);
  // A shuffle that outlives the window tests this bound on every pass, and ends.
  intLastCard[intShoeNumber] = 0;
  running.Step(3);
  prcReturnBets();
}

/// The table asked to close on its own, not by the frame: in the middle of a hand or shuffle it
/// must wait; otherwise the program has no use without it and closes.
void Form_CloseAsked(Window&) {
  if (blnBusy) {
    platform::MsgBox("Must wait for hand or shuffle to end.", platform::Icon::Exclamation,
                     "Velmora");
    return;
  }
  MDIForm1_Unload();
}

/// Enter leaves a box, whose check may keep it, for what comes next.
void prcLeaveBox(const Window& form) {
  if (form.ActiveControl != nullptr && form.ActiveControl->Kind == ControlKind::MaskedEdit) {
    fncSetFocus(BaccTable.duokkortos[0].Visible ? BaccTable.duokkortos[0] : BaccTable.maisyk);
  }
}

void Form_KeyDown(Window& form, const std::string& strKey, int /*intShift*/) {
  prcRevealKey(strKey);
  if (strKey == "Enter") {
    prcLeaveBox(form);
  }
}

void Form_MouseMove(Window&, const Mouse&) { BaccTable_MouseMove(); }

constexpr WindowEvents evtBaccTable{.Load = Form_Load,
                                    .Unload = Form_Unload,
                                    .CloseAsked = Form_CloseAsked,
                                    .KeyDown = Form_KeyDown,
                                    .MouseMove = Form_MouseMove,
                                    .Adorn = [](Window&) { prcAdornTable(); }};

}  // namespace

void prcPrepareBaccTable() {
  Window& form = BaccTable.Form;
  form = Window{};
  form.Name = "BaccTable";
  form.Kind = WindowKind::Child;
  form.On = &evtBaccTable;
  form.Caption = "Velmora";
  form.TitleBar = false;
  form.MinWidth = 10770;
  form.MinHeight = 5400;
  form.Picture = picFelt;
  form.BackColor = {16, 40, 37};  // The frame's ground, seen behind the felt's round corners.
}
