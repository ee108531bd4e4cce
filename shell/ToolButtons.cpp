#include "shell/ToolButtons.h"

#include <algorithm>

Control* tlbrRef = &MDIForm1.tlbrMDIForm1;

namespace {

Control& fncNamed(const Control& toolbar, const std::string& key) {
  Table<Control, intToolButtons>& buttons = fncButtons(toolbar);
  auto* const found = std::ranges::find(buttons, key, &Control::Name);
  if (found == buttons.end()) {
    throw faultSubscript;
  }
  return *found;
}

/// The group of a button runs from separator to separator.
void prcReleaseGroup(Control& button) {
  Table<Control, intToolButtons>& buttons = fncButtons(*button.Container);
  const std::ptrdiff_t place = &button - &buttons[0];
  const auto release = [&](std::ptrdiff_t at, int step) {
    for (at += step; at >= 0 && at < intToolButtons; at += step) {
      if (buttons[at].Style != ButtonStyle::Group) {
        return;
      }
      buttons[at].Value = 0;
    }
  };
  release(place, -1);
  release(place, 1);
}

}  // namespace

Table<Control, intToolButtons>& fncButtons(const Control& toolbar) {
  return &toolbar == &MDIForm1.tlbrMDIForm2 ? MDIForm1.tlbrButtons2 : MDIForm1.tlbrButtons1;
}

Control& fncToolButton(const std::string& key) { return fncNamed(*tlbrRef, key); }

void prcSetButton(Control& button, int value) {
  if (value == 1 && button.Style == ButtonStyle::Group) {
    prcReleaseGroup(button);
  }
  button.Value = value;
}

void prcSetButton(const std::string& key, int value) { prcSetButton(fncToolButton(key), value); }

void prcMoveButton(const std::string& key) {
  prcSetButton(key, fncToolButton(key).Value == 1 ? 0 : 1);
}

void prcUseToolbar(bool blnLarge) {
  MDIForm1.mnuLargeButtons.Value = blnLarge ? 1 : 0;
  MDIForm1.tlbrMDIForm1.Visible = MDIForm1.tlbrMDIForm1.Enabled = blnLarge;
  MDIForm1.tlbrMDIForm2.Visible = MDIForm1.tlbrMDIForm2.Enabled = !blnLarge;
  tlbrRef = blnLarge ? &MDIForm1.tlbrMDIForm1 : &MDIForm1.tlbrMDIForm2;
}

void prcHideButton(const std::string& key) {
  for (const Control* toolbar : {&MDIForm1.tlbrMDIForm1, &MDIForm1.tlbrMDIForm2}) {
    Control& button = fncNamed(*toolbar, key);
    button.Visible = button.Enabled = false;
  }
}
