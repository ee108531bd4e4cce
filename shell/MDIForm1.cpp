#include "shell/MDIForm1.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <vector>

#include "assets/Pictures.h"
#include "marking/MarkCard.h"
#include "platform/Layout.h"
#include "platform/Procedure.h"
#include "platform/platform.h"
#include "shell/FrameMenus.h"
#include "shell/SettingsStore.h"
#include "shell/ShoeSize.h"
#include "shell/StartScreen.h"
#include "shell/Switches.h"
#include "table/BaccTable.h"
#include "table/TableState.h"

MDIFormWindow MDIForm1;
const char* const strWebSite = "https://velmora.example/";

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

void prcCloseMarkCards() {
  // Each closing takes its window out of the collection.
  std::vector<MarkCardWindow*> open;
  open.reserve(colMarkCards.size());
  for (const auto& [handle, card] : colMarkCards) {
    open.push_back(card);
  }
  for (MarkCardWindow* card : open) {
    fncUnload(card->Form);
  }
}

/// The lists of cards dealt, and what else floats: each window keeps its place.
void prcCloseFloats() {
  // Each closing may take its window off the loaded ones.
  std::vector<Window*> floats;
  std::ranges::copy_if(fncWindows(), std::back_inserter(floats),
                       [](const Window* window) { return window->Kind == WindowKind::Float; });
  for (Window* window : floats) {
    fncUnload(*window);
  }
}

struct BrowserFailure {
  int Code;
  const char* Message;
};

constexpr std::array browserFailures{
    BrowserFailure{0, "Not enough memory to load web browser"},
    BrowserFailure{2, "Unable to locate URL shortcut"},
    BrowserFailure{31, "Unable to locate web browser."},
};

/// Codes above this are success.
constexpr int intLastFailure = 32;

}  // namespace

void prcShowFrame() { prcShow(MDIForm1.Form); }

void MDIForm1_Unload() {
  Guarded("MDIForm1_Unload", [] {
    At(10);
    prcWriteSetting("MDIForm1", "Top", MDIForm1.Form.Top);
    prcWriteSetting("MDIForm1", "Left", MDIForm1.Form.Left);
    prcWriteSetting("MDIForm1", "Height", MDIForm1.Form.Height);
    prcWriteSetting("MDIForm1", "Width", MDIForm1.Form.Width);
    At(20);
    prcCloseFloats();
    fncUnload(BaccTable.Form);
    prcCloseMarkCards();
    // The frame's own unload is what runs here.
    prcForgetWindow(MDIForm1.Form);
    At(30);
    platform::End();
  });
}

void DisplayURL(const std::string& strURL, const std::string& varTitle) {
  Guarded("DisplayURL", [&] {
    At(20);
    const int code = platform::OpenAddress(strURL);
    At(30);
    if (code > intLastFailure) {
      return;
    }
    const auto* const known = std::ranges::find(browserFailures, code, &BrowserFailure::Code);
    platform::MsgBox(
        known != browserFailures.end()
            ? known->Message
            : "Error attempting to start web browser.  Return Code: " + std::to_string(code),
        platform::Icon::None, varTitle);
  });
}

void prcPrepareFrame() {
  Window& form = MDIForm1.Form;
  form.Name = "MDIForm1";
  form.Kind = WindowKind::Frame;
  form.On = &evtFrame;
  form.Caption = "Velmora";
  form.Sizable = true;
  form.BackColor = clrWhite;
}
