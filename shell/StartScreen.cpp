#include "shell/StartScreen.h"

#include <array>
#include <string>

#include "Version.h"
#include "assets/Pictures.h"
#include "platform/Layout.h"
#include "platform/Procedure.h"
#include "platform/platform.h"
#include "shell/MDIForm1.h"
#include "shell/SettingsStore.h"
#include "shell/WebSite.h"

PlaukWindow Plauk;

namespace {

constexpr Colour clrGround{255, 255, 192};
constexpr Colour clrTitle{0, 0, 192};
constexpr Colour clrTitleShadow{128, 128, 128};
constexpr Colour clrLink{0, 0, 192};
constexpr Type tpeTitle{.Size = 27.75F, .Bold = true};
constexpr Type tpePoint{.Size = 11};

constexpr int intFirstTopic = 1;

/// The picture on the ground takes as long to draw as all else: it comes when the screen stands.
constexpr int intArtDelay = 40;

/// Tops of the three bullets and of the texts beside them, twips.
constexpr std::array<double, 3> dblBulletTops{960, 1548, 2136};
constexpr std::array<double, 3> dblPointTops{990, 1485, 2175};
constexpr double dblBulletLeft = 3480;
constexpr double dblPointLeft = 3885;

void prcShowHelp() { platform::ShowHelp(strHelpFile, intFirstTopic); }

/// No window remains behind the start screen, so the program goes with it.
void prcLeave() {
  fncUnload(Plauk.Form);
  platform::End();
}

void cmdStart_Click(Control&) { prcShowFrame(); }

void cmdHelp_Click(Control&) { prcShowHelp(); }

void cmdQuit_Click(Control&) { prcLeave(); }

void Nerodik_Click(Control& box) {
  prcWritePrivateProfileString(secMisc, keyNerodik, box.Value == 1 ? "1" : "0");
}

void Label6_Click(Control&) { DisplayURL(strWebSite, "Velmora"); }

void Label6_MouseMove(Control& link, const Mouse&) { link.MousePointer = Pointer::HandLink; }

void tmrArt_Timer(Control& timer) {
  timer.Enabled = false;
  Plauk.Picture1.Picture = picWelcome;
}

constexpr ControlEvents evtArt{.Timer = tmrArt_Timer};
constexpr ControlEvents evtStart{.Click = cmdStart_Click};
constexpr ControlEvents evtHelp{.Click = cmdHelp_Click};
constexpr ControlEvents evtQuit{.Click = cmdQuit_Click};
constexpr ControlEvents evtNerodik{.Click = Nerodik_Click};
constexpr ControlEvents evtLink{.Click = Label6_Click, .MouseMove = Label6_MouseMove};

void prcDressTitle(Control& label, Colour colour) {
  label.Face = tpeTitle;
  label.ForeColor = colour;
}

void prcLayOutPlauk() {
  PlaukWindow& w = Plauk;
  constexpr const char* strNoDisplay = "Do not show this screen again";
  const Place rows[] = {
      {&w.Picture1, "Picture1", -1, ControlKind::Picture, 0, 0, 8685, 5190},
      {&w.Label5, "Label5", -1, ControlKind::Label, 2400, 60, 4935, 705, "Velmora"},
      {&w.Label2, "Label2", -1, ControlKind::Label, 2370, 30, 5925, 705, "Velmora"},
      {&w.cmdStart, "cmdStart", -1, ControlKind::Button, 420, 945, 2745, 2715, "",
       "Click to START Velmora"},
      {&w.Image2[0], "Image2", 0, ControlKind::Picture, 0, 0, 300, 300},
      {&w.Image2[1], "Image2", 1, ControlKind::Picture, 0, 0, 300, 300},
      {&w.Image2[2], "Image2", 2, ControlKind::Picture, 0, 0, 300, 300},
      {&w.Label1[0], "Label1", 0, ControlKind::Label, 0, 0, 4700, 600,
       "Learn how Baccarat is played"},
      {&w.Label1[1], "Label1", 1, ControlKind::Label, 0, 0, 4700, 600,
       "Try BETTING STRATEGIES and MONEY MANAGEMENT without risking money"},
      {&w.Label1[2], "Label1", 2, ControlKind::Label, 0, 0, 4700, 600,
       "Many other features to make you a pro"},
      {&w.lblVersion, "lblVersion", -1, ControlKind::Label, 5520, 3915, 1695, 240},
      {&w.cmdHelp, "cmdHelp", -1, ControlKind::Button, 5430, 4230, 1605, 525, "&HELP"},
      {&w.cmdQuit, "cmdQuit", -1, ControlKind::Button, 7140, 4230, 1125, 525, "&Exit"},
      {&w.Nerodik, "Nerodik", -1, ControlKind::CheckBox, 255, 4350, 3300, 315, strNoDisplay},
      {&w.Label6, "Label6", -1, ControlKind::Label, 5460, 4890, 2355, 285, strWebSite},
      {&w.tmrArt, "tmrArt", -1, ControlKind::Timer, 0, 0, 0, 0},
  };
  prcLayOut(w.Form, rows);
  w.Picture1.BackColor = clrGround;
  prcDressTitle(w.Label5, clrTitleShadow);
  w.Label5.Dress = Look::Shadow;
  prcDressTitle(w.Label2, clrTitle);
  w.cmdStart.Picture = picStart;
  w.cmdStart.Spoken = "Start";
  for (Control& bullet : w.Image2) {
    bullet.Picture = picBullet;
  }
  for (Control& point : w.Label1) {
    point.Face = tpePoint;
  }
  w.Nerodik.Visible = false;
  w.tmrArt.Enabled = false;
  w.tmrArt.Interval = intArtDelay;
  w.tmrArt.On = &evtArt;
  w.Label6.Dress = Look::Link;
  w.Label6.Face.Underline = true;
  w.Label6.Align = Alignment::Centre;
  w.Label6.ForeColor = clrLink;
  w.cmdStart.On = &evtStart;
  w.cmdHelp.On = &evtHelp;
  w.cmdQuit.On = &evtQuit;
  w.Nerodik.On = &evtNerodik;
  w.Label6.On = &evtLink;
}

void prcPlacePoints() {
  for (int i = 0; i < Plauk.Image2.size(); ++i) {
    Plauk.Image2[i].Left = dblBulletLeft;
    Plauk.Image2[i].Top = dblBulletTops.at(static_cast<std::size_t>(i));
    Plauk.Label1[i].Left = dblPointLeft;
    Plauk.Label1[i].Top = dblPointTops.at(static_cast<std::size_t>(i));
  }
}

void Form_Load(Window& form) {
  const Procedure running("Plauk_Form_Load");
  prcLayOutPlauk();
  prcFixPaths();
  running.Step(2);
  Plauk.lblVersion.Text =
      "Version " + std::to_string(intVersionMajor) + "." + std::to_string(intVersionMinor);
  running.Step(3);
  form.Caption = "Welcome to Velmora";
  running.Step(4);
  prcPlacePoints();
  running.Step(5);
  if (fncGetPrivateProfileString(secMisc, keyNerodik) == "1") {
    prcShowFrame();
    return;
  }
  running.Step(6);
  Plauk.Nerodik.Visible = true;
  form.Visible = true;
  fncSetFocus(Plauk.cmdStart);
  Plauk.tmrArt.Enabled = true;
}

void Form_KeyPress(Window&, char chrKey) {
  const Procedure running("Plauk_Form_KeyPress");
  switch (chrKey) {
    case 'S':
    case 's':
      prcShowFrame();
      break;
    case 'H':
    case 'h':
      prcShowHelp();
      break;
    case 'E':
    case 'e':
      prcLeave();
      break;
    default:
      break;
  }
}

void Form_CloseAsked(Window&) { prcLeave(); }

constexpr WindowEvents evtPlauk{
    .Load = Form_Load, .CloseAsked = Form_CloseAsked, .KeyPress = Form_KeyPress};

}  // namespace

void prcPrepareStartScreen() {
  Window& form = Plauk.Form;
  form.Name = "Plauk";
  form.Kind = WindowKind::Start;
  form.On = &evtPlauk;
  form.FixedInner = true;
  form.ScaleWidth = 8685;
  form.ScaleHeight = 5190;
  form.Centred = true;
  form.BackColor = clrGround;
}
