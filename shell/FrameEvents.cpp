#include "shell/FrameEvents.h"

#include "assets/Pictures.h"
#include "marking/MarkCard.h"
#include "platform/Layout.h"
#include "platform/Procedure.h"
#include "platform/platform.h"
#include "shell/Closing.h"
#include "shell/FrameMenus.h"
#include "shell/MDIForm1.h"
#include "shell/SettingsStore.h"
#include "shell/ShoeSize.h"
#include "shell/StartScreen.h"
#include "shell/Switches.h"
#include "shell/ToolButtons.h"
#include "shell/Toolbar.h"
#include "table/BaccTable.h"

namespace {

/// The marking card stays clear of the frame's border and hangs a little to the left. Twips.
constexpr double dblCardMargin = 500;
constexpr double dblCardShift = 150;

void Timer1_Timer(Control& timer) {
  Guarded("MDIForm1_Timer1_Timer", [&] {
    At(10);
    timer.Enabled = false;
    At(20);
    prcMarkShoeSize();
    At(30);
    prcUseArrows(fncSwitchedOn("Reveal", "Arrows"));
  });
}

constexpr ControlEvents evtTimer{.Timer = Timer1_Timer};

void prcLayOutFrame() {
  Window& form = MDIForm1.Form;
  prcLayOut(form, {});
  prcLayOutMenus();
  prcLayOutToolbars();
  prcPlace(form, {&MDIForm1.Timer1, "Timer1", -1, ControlKind::Timer, 0, 0, 0, 0});
  MDIForm1.Timer1.Interval = 1;
  MDIForm1.Timer1.Enabled = false;
  MDIForm1.Timer1.On = &evtTimer;
}

void MDIForm1_Load(Window& form) {
  Guarded("MDIForm1_Load", [&] {
    prcLayOutFrame();
    At(10);
    strHelpFile = fncHelpFilePath();
    At(20);
    prcUseToolbar(fncSwitchedOn("Options", "Large Buttons"));
    At(30);
    form.Maximised = true;
    form.Width = platform::ScreenWidth();
    form.Height = platform::ScreenHeight();
    At(40);
    form.Picture = picTile;
    form.PictureTiled = true;
    At(50);
    prcSetMenusAndButtons();
    At(60);
    prcShow(BaccTable.Form);
    At(70);
    fncUnload(Plauk.Form);
  });
}

void MDIForm_Resize(Window& form) {
  Guarded("MDIForm_Resize", [&] {
    At(10);
    if (blnTableLoaded) {
      BaccTable.Form.Left = (form.Width - BaccTable.Form.Width) / 2;
    }
    At(20);
    MarkCardWindow* card = blnMarkCardLoaded ? fncMarkCard(intShoeNumber) : nullptr;
    if (card != nullptr) {
      card->Form.Width = form.Width - dblCardMargin;
      card->Form.Left = (form.Width - card->Form.Width) / 2 - dblCardShift;
    }
  });
}

constexpr WindowEvents evtFrame{.Load = MDIForm1_Load,
                                .Unload = [](Window&, bool&) { MDIForm1_Unload(); },
                                .Resize = MDIForm_Resize};

}  // namespace

void prcPrepareFrame() {
  Window& form = MDIForm1.Form;
  form.Name = "MDIForm1";
  form.Kind = WindowKind::Frame;
  form.On = &evtFrame;
  form.Caption = "Velmora";
  form.Sizable = true;
  form.BackColor = clrWhite;
}
