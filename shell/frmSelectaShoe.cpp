#include "shell/frmSelectaShoe.h"

#include <array>

#include "platform/Layout.h"

SelectaShoeWindow frmSelectaShoe;

namespace {

constexpr std::array<const char*, intShoes> strNumbers{"1", "2", "3", "4", "5", "6", "7", "8", "9"};
constexpr int intShoesInRow = 3;

void Form_Load(Window& form) {
  SelectaShoeWindow& w = frmSelectaShoe;
  prcLayOut(form, {});
  for (int i = 0; i < intShoes; ++i) {
    const int row = i / intShoesInRow;
    prcPlace(form, {&w.chkSelectaShoe[i], "chkSelectaShoe", i, ControlKind::CheckBox,
                    150.0 + 600 * (i % intShoesInRow), 120.0 + 360 * row, 540, 300,
                    strNumbers.at(static_cast<std::size_t>(i)), "Click to open a shoe"});
  }
  const Place rows[] = {
      {&w.chkOnTop, "chkOnTop", -1, ControlKind::CheckBox, 150, 1260, 1500, 285, "Keep on top"},
      {&w.fraAutoDeal, "fraAutoDeal", -1, ControlKind::Frame, 90, 1650, 1890, 1950, "AUTO DEAL"},
      {&w.optAutoDeal[0], "optAutoDeal", 0, ControlKind::OptionButton, 150, 300, 750, 285, "Yes"},
      {&w.optAutoDeal[1], "optAutoDeal", 1, ControlKind::OptionButton, 960, 300, 750, 285, "No"},
      {&w.Label1, "Label1", -1, ControlKind::Label, 150, 750, 690, 240, "DELAY"},
      {&w.lblDelaySecs, "lblDelaySecs", -1, ControlKind::Label, 870, 750, 300, 240, "30"},
      {&w.Label2, "Label2", -1, ControlKind::Label, 1200, 750, 480, 240, "Secs"},
      {&w.sldAutoDeal, "sldAutoDeal", -1, ControlKind::Slider, 150, 1080, 1590, 345},
      {&w.Label3[0], "Label3", 0, ControlKind::Label, 180, 1500, 300, 240, "5"},
      {&w.Label3[1], "Label3", 1, ControlKind::Label, 1440, 1500, 300, 240, "30"},
  };
  for (const Place& row : rows) {
    prcPlace(form, row);
    if (row.Target != &w.chkOnTop && row.Target != &w.fraAutoDeal) {
      row.Target->Container = &w.fraAutoDeal;
    }
  }
  w.sldAutoDeal.Min = 5;
  w.sldAutoDeal.Max = w.sldAutoDeal.Value = 30;
}

constexpr WindowEvents evtSelectaShoe{.Load = Form_Load};

}  // namespace

void prcPrepareSelectaShoe() {
  Window& form = frmSelectaShoe.Form;
  form.Name = "frmSelectaShoe";
  form.Kind = WindowKind::Float;
  form.On = &evtSelectaShoe;
  form.Caption = "  SHOE";
  form.FixedInner = true;
  form.ScaleWidth = 2070;
  form.ScaleHeight = 3720;
}
