#include "evening/EveningWindow.h"

#include <algorithm>

#include "evening/Record.h"
#include "platform/Layout.h"
#include "shell/SettingsStore.h"
#include "shell/WindowPlace.h"

namespace {

constexpr Colour clrEveningGround{243, 239, 228};
constexpr Colour clrGain{20, 92, 60};

}  // namespace

Colour fncMoneyInk(double net) { return net < 0 ? clrLoss : net > 0 ? clrGain : clrBlack; }

void prcPrepareEveningWindow(Window& form, const char* name, const char* caption, double width,
                             double height, const WindowEvents& events) {
  form.Name = name;
  form.Kind = WindowKind::Float;
  form.BeforeFrame = true;
  form.On = &events;
  form.Caption = caption;
  form.FixedInner = true;
  form.ScaleWidth = width;
  form.ScaleHeight = height;
  form.BackColor = clrEveningGround;
}

void prcPlaceEveningWindow(Window& form) {
  if (fncGetPrivateProfileString(form.Name, keyTop) == "No") {
    form.Left = (platform::ScreenWidth() - form.ScaleWidth) / 2;
    form.Top = (platform::ScreenHeight() - form.ScaleHeight) / 2;
  } else {
    prcReadPlace(form, form.Name);
  }
}

void prcOpenEveningWindow(Window& form) {
  prcShow(form);
  prcToFront(form);
  platform::Activate(form);
}

void prcLayOutShoeChoice(Window& form, ShoeChoice& choice, double left, double top,
                         const ControlEvents& events) {
  const Place rows[] = {
      {&choice.lblCaption, "lblShoeCaption", -1, ControlKind::Label, left, top + 45, 600, 255,
       "Shoe:"},
      {&choice.sldShoe, "sldShoe", -1, ControlKind::Slider, left + 600, top, 2400, 345, "",
       "Choose a shoe with the arrow keys"},
      {&choice.lblShoe, "lblShoe", -1, ControlKind::Label, left + 3105, top + 45, 1200, 255},
  };
  for (const Place& row : rows) {
    prcPlace(form, row);
  }
  choice.sldShoe.Spoken = "Shoe";
  choice.sldShoe.On = &events;
  choice.lblShoe.Announce = true;
}

void prcShowShoeChoice(ShoeChoice& choice) {
  choice.sldShoe.Max = fncEveningShoes();
  choice.sldShoe.Value = std::min(choice.sldShoe.Value, choice.sldShoe.Max);
  const int shoe = fncChosenShoe(choice);
  choice.lblShoe.Text =
      shoe == 0 ? "All shoes"
                : "Shoe " + std::to_string(shoe) + " of " + std::to_string(fncEveningShoes());
}

void prcSaveAs(const std::string& title, const std::string& name,
               std::span<const platform::FileKind> kinds,
               const std::function<std::string(const std::string& path)>& save) {
  const std::string path = platform::AskSavePath(title, name, kinds);
  const std::string failure = path.empty() ? std::string() : save(path);
  if (!failure.empty()) {
    platform::MsgBox("The file could not be saved: " + failure, platform::Icon::Exclamation);
  }
}

std::string fncSeatName(int seat) { return "Player " + std::to_string(seat + 1); }

std::string fncCounted(int count, const std::string& thing) {
  return std::to_string(count) + " " + thing + (count == 1 ? "" : "s");
}
