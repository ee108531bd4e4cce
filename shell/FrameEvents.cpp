#include "shell/FrameEvents.h"

#include "assets/Pictures.h"
#include "marking/MarkCardEvents.h"
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

void Timer1_Timer(Control& timer) {
  const Procedure running("MDIForm1_Timer1_Timer");
  timer.Enabled = false;
  running.Step(2);
  prcMarkShoeSize();
  running.Step(3);
  prcUseArrows(fncSwitchedOn(secReveal, keyArrows));
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
  const Procedure running("MDIForm1_Load");
  prcLayOutFrame();
  strHelpFile = fncHelpFilePath();
  running.Step(2);
  prcUseToolbar(fncSwitchedOn(secOptions, keyLargeButtons));
  running.Step(3);
  form.Maximised = true;
  form.Width = platform::ScreenWidth();
  form.Height = platform::ScreenHeight();
  running.Step(4);
  form.Picture = picTile;
  form.PictureTiled = true;
  running.Step(5);
  prcSetMenusAndButtons();
  running.Step(6);
  prcShow(BaccTable.Form);
  running.Step(7);
  fncUnload(Plauk.Form);
}

void MDIForm_Resize(Window& form) {
  const Procedure running("MDIForm_Resize");
  if (blnTableLoaded) {
    BaccTable.Form.Left = (form.Width - BaccTable.Form.Width) / 2;
  }
  running.Step(2);
  MarkCardWindow* card = blnMarkCardLoaded ? fncMarkCard(intShoeNumber) : nullptr;
  if (card != nullptr) {
    prcPlaceAcross(card->Form);
  }
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
