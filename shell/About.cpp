#include "shell/About.h"

#include <string>

#include "Version.h"
#include "assets/Pictures.h"
#include "platform/Layout.h"
#include "platform/Procedure.h"

KasSitasWindow KasSitas;

namespace {

constexpr Colour clrGround{255, 255, 204};

constexpr const char* strDescription =
    "Improve your Betting Strategy and Money Management by using the marking card to practise the "
    "trend spotting skills that are necessary for successful baccarat. At the same time have some "
    "fun revealing the face of the cards as done in the casinos. Please spend some time reading "
    "the HELP screens for the many other features of Velmora.";

void cmdOK_Click(Control&) { fncUnload(KasSitas.Form); }

constexpr ControlEvents evtOk{.Click = cmdOK_Click};

void prcLayOutAbout() {
  KasSitasWindow& w = KasSitas;
  const Place rows[] = {
      {&w.Image1, "Image1", -1, ControlKind::Picture, 360, 90, 2700, 2700},
      {&w.lblVersion, "lblVersion", -1, ControlKind::Label, 4140, 60, 2655, 285},
      {&w.lblDescription, "lblDescription", -1, ControlKind::Label, 3390, 390, 4245, 2160,
       strDescription},
      {&w.cmdOK, "cmdOK", -1, ControlKind::Button, 5520, 3330, 1260, 345, "OK"},
  };
  prcLayOut(w.Form, rows);
  w.Image1.Picture = picLogo;
  w.lblDescription.Face.Size = 9.75F;
  w.Image1.Spoken = "Velmora";
  w.cmdOK.Default = w.cmdOK.CancelButton = true;
  w.cmdOK.On = &evtOk;
}

void Form_Load(Window& form) {
  const Procedure running("KasSitas_Form_Load");
  prcLayOutAbout();
  KasSitas.lblVersion.Text = "Version  " + std::to_string(intVersionMajor) + " . " +
                             std::to_string(intVersionMinor) + " . " +
                             std::to_string(intVersionRevision);
  running.Step(2);
  form.Caption = "About Velmora";
}

constexpr WindowEvents evtAbout{.Load = Form_Load};

}  // namespace

void prcPrepareAbout() {
  Window& form = KasSitas.Form;
  form.Name = "KasSitas";
  form.Kind = WindowKind::Dialog;
  form.On = &evtAbout;
  form.FixedInner = true;
  form.ScaleWidth = 7830;
  form.ScaleHeight = 3975;
  form.Centred = true;
  form.BackColor = clrGround;
}
