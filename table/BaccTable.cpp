#include "table/BaccTable.h"

#include <cmath>

#include "assets/Pictures.h"
#include "betting/Funds.h"
#include "learn/CardNeed.h"
#include "marking/MarkCard.h"
#include "platform/Places.h"
#include "platform/Procedure.h"
#include "platform/Texts.h"
#include "platform/platform.h"
#include "reveal/CardReveal.h"
#include "reveal/KeyboardReveal.h"
#include "shell/Closing.h"
#include "shell/MDIForm1.h"
#include "shell/SettingsStore.h"
#include "table/Bets.h"

BaccTableWindow BaccTable;

namespace {

const std::string strSection = "frmBaccTable";

void prcApplyPlace() {
  Window& form = BaccTable.Form;
  form.Top = fncGetSetting(strSection, "Top");
  form.Height = fncGetSetting(strSection, "Height");
  form.Width = fncGetSetting(strSection, "Width");
  prcMendPlace(form);
  form.Left = (MDIForm1.Form.Width - form.Width) / 2;
}

void prcLoadSeat(Integer i) {
  const std::string section = fncSeatSection(i);
  const auto stake = std::nearbyint(fncGetSetting(section, "Stake"));
  dblPlayerWin[i] = fncGetSetting(section, "Win");
  dblPlayerTotal[i] = stake + dblPlayerWin[i];
  prcShowMoney(BaccTable.lblPlayerWinnings[i], dblPlayerWin[i]);
  prcShowMoney(BaccTable.lblPlayerTotal[i], dblPlayerTotal[i]);
}

/// The captions of the Deal buttons; those of elements 1 to 3 begin with the number of hands that
/// they deal.
constexpr std::array<const char*, 4> strDealCaptions{"Deal", "5 hands", "10 hands", "20 hands"};

void Form_Load(Window&) {
  Guarded("Baccarat table Form_Load", [] {
    At(10);
    prcLayOutBaccTable();
    prcApplyPlace();
    At(20);
    BaccTable.intCardHeight = fncInteger(BaccTable.pctCardBack[0].Height);
    BaccTable.intCardWidth = fncInteger(BaccTable.pctCardBack[0].Width);
    At(30);
    blnEndOfShoe.fill(true);
    At(40);
    for (int i = 0; i < intSeats; ++i) {
      for (const BetSide side : betSides) {
        fncBet(side, i).Box.Text = "0";
      }
    }
    At(50);
    for (Control& back : BaccTable.pctCardBack) {
      back.Picture = picCardBack;
    }
    At(60);
    for (int i = 0; i < intSeats; ++i) {
      prcLoadSeat(i);
    }
    At(70);
    BaccTable.maisyk.Text = "Shuffle";
    At(80);
    if (fncEqualNoCase(fncGetPrivateProfileString("File", "Learn"), "True")) {
      prcShowLearnPanels(true);
    }
    At(90);
    BaccTable.txtUnitValue.Text = fncPlainNumberText(fncGetSetting("Misc", "UnitValue"));
    At(100);
    blnTableLoaded = true;
    At(110);
    for (int i = 0; i < intShoes; ++i) {
      intMarkCardShoe[i] = i;
    }
    At(120);
    NewCardViewForm(0, 0);
    At(130);
    BaccTable.maisyk.Visible = true;
    At(140);
    for (int i = 0; i < BaccTable.duokkortos.size(); ++i) {
      BaccTable.duokkortos[i].Text = strDealCaptions.at(static_cast<std::size_t>(i));
    }
    At(150);
    blnShoePlayerBlue.fill(blnPlayerBlue);
  });
}

void Form_Unload(Window& form, bool& /*blnCancel*/) {
  Guarded("Baccarat table Form_Unload", [&] {
    At(10);
    prcWriteSetting(strSection, "Top", form.Top);
    prcWriteSetting(strSection, "Left", form.Left);
    prcWriteSetting(strSection, "Height", form.Height);
    prcWriteSetting(strSection, "Width", form.Width);
    At(20);
    // A shuffle that outlives the window tests this bound on every pass, and ends.
    intLastCard[intShoeNumber] = 0;
    At(30);
    prcReturnBets();
  });
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

void Form_KeyDown(Window&, const std::string& strKey, int /*intShift*/) { prcRevealKey(strKey); }

void Form_MouseMove(Window&, const Mouse&) { BaccTable_MouseMove(); }

constexpr WindowEvents evtBaccTable{.Load = Form_Load,
                                    .Unload = Form_Unload,
                                    .CloseAsked = Form_CloseAsked,
                                    .KeyDown = Form_KeyDown,
                                    .MouseMove = Form_MouseMove};

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
