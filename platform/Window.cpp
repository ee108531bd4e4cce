#include "platform/Window.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "platform/Texts.h"

namespace {

std::vector<Window*> wndLoaded;
std::int32_t lngLastHandle = 0;
std::uint32_t lngLastRaised = 0;
std::uint32_t lngLastSerial = 0;

bool fncHasCheckedValue(ControlKind kind) {
  return kind == ControlKind::CheckBox || kind == ControlKind::OptionButton;
}

}  // namespace

const std::vector<Window*>& fncWindows() { return wndLoaded; }

void prcAddControl(Window& window, Control& control) {
  control.Form = &window;
  control.Serial = ++lngLastSerial;
  window.Controls.push_back(&control);
  if (control.Kind == ControlKind::Timer) {
    window.Timers.push_back(&control);
  }
}

void prcClearControls(Window& window) {
  window.Controls.clear();
  window.Timers.clear();
  window.ActiveControl = nullptr;
}

void prcRemoveControl(Control& control) {
  Window& window = *control.Form;
  if (window.ActiveControl == &control) {
    window.ActiveControl = nullptr;
  }
  std::erase(window.Controls, &control);
  std::erase(window.Timers, &control);
}

void prcControlToFront(Control& control) {
  std::vector<Control*>& stack = control.Form->Controls;
  const auto at = std::ranges::find(stack, &control);
  if (at != stack.end()) {
    std::rotate(at, at + 1, stack.end());
  }
}

void prcLoad(Window& window) {
  if (window.hWnd != 0) {
    return;
  }
  window.hWnd = ++lngLastHandle;
  window.Raised = ++lngLastRaised;
  window.Visible = false;
  wndLoaded.push_back(&window);
  if (window.On->Load != nullptr) {
    window.On->Load(window);
  }
}

void prcShow(Window& window) {
  prcLoad(window);
  window.Visible = true;
}

bool fncUnload(Window& window) {
  if (window.hWnd == 0) {
    return true;
  }
  bool blnCancel = false;
  if (window.On->Unload != nullptr) {
    window.On->Unload(window, blnCancel);
  }
  if (!blnCancel) {
    prcForgetWindow(window);
  }
  return !blnCancel;
}

void prcForgetWindow(Window& window) {
  window.Visible = false;
  window.hWnd = 0;
  window.ActiveControl = nullptr;
  std::erase(wndLoaded, &window);
}

void prcToFront(Window& window) { window.Raised = ++lngLastRaised; }

bool fncTakesFocus(const Control& control) {
  switch (control.Kind) {
    case ControlKind::TextBox:
    case ControlKind::MaskedEdit:
    case ControlKind::Button:
    case ControlKind::CheckBox:
    case ControlKind::OptionButton:
    case ControlKind::ListBox:
    case ControlKind::Grid:
    case ControlKind::Chart:
    case ControlKind::Slider:
      return control.Visible && control.Enabled;
    case ControlKind::Picture:
      return control.TabStop && control.Visible && control.Enabled;
    default:
      return false;
  }
}

bool fncCheckFocus(Window& window) {
  Control* active = window.ActiveControl;
  if (active == nullptr || active->On->Validate == nullptr || !fncTakesFocus(*active)) {
    return true;
  }
  bool blnCancel = false;
  active->On->Validate(*active, blnCancel);
  if (blnCancel) {
    active->SelLength = static_cast<int>(active->Text.size());
    ++window.FocusGiven;
  }
  return !blnCancel;
}

bool fncSetFocus(Control& control) {
  Window& window = *control.Form;
  if (!fncTakesFocus(control)) {
    return false;
  }
  if (window.ActiveControl == &control) {
    return true;
  }
  if (window.ActiveControl != nullptr && !fncTakesFocus(*window.ActiveControl)) {
    window.ActiveControl = nullptr;
  }
  if (!fncCheckFocus(window)) {
    return false;
  }
  // Between the two nobody has the focus: a lost-focus handler that takes it back must not run the
  // check of a box that never got it.
  Control* left = std::exchange(window.ActiveControl, nullptr);
  if (left != nullptr && left->On->LostFocus != nullptr) {
    left->On->LostFocus(*left);
  }
  if (window.ActiveControl != nullptr || !fncTakesFocus(control)) {
    return false;
  }
  window.ActiveControl = &control;
  ++window.FocusGiven;
  if (control.On->GotFocus != nullptr) {
    control.On->GotFocus(control);
  }
  return window.ActiveControl == &control;
}

void prcSetValue(Control& control, double value) {
  const bool blnBox = fncHasCheckedValue(control.Kind);
  const double least = blnBox ? 0 : control.Min;
  const double most = blnBox ? 1 : std::max(control.Min, control.Max);
  value = std::clamp(value, least, most);
  if (control.Value == value) {
    return;
  }
  control.Value = value;
  const auto told = blnBox ? control.On->Click : control.On->Change;
  if (told != nullptr) {
    told(control);
  }
}

void prcResizePicture(Control& control, double width, double height) {
  if (control.Width == width && control.Height == height) {
    return;
  }
  control.Width = width;
  control.Height = height;
  if (control.On->Resize != nullptr) {
    control.On->Resize(control);
  }
}

void prcAddRow(Control& list, std::string row) {
  list.List.push_back(std::move(row));
  list.ListIndex = static_cast<int>(list.List.size()) - 1;
}

bool fncMaskAdmits(const Control& box, std::size_t length, char typed) {
  const std::string_view mask = box.Mask;
  if (mask.empty()) {
    return true;
  }
  const auto places = static_cast<std::size_t>(std::ranges::count(mask, '9'));
  return typed >= '0' && typed <= '9' && length < places;
}

void prcSetMasked(Control& box, std::string_view text) {
  const std::string_view whole = text.substr(0, text.find('.'));
  box.Text.clear();
  std::ranges::copy_if(whole, std::back_inserter(box.Text),
                       [](char letter) { return letter >= '0' && letter <= '9'; });
  if (box.Text.empty() || text.find('-') != std::string_view::npos) {
    box.Text = "0";
  }
}

std::string fncMasked(const Control& box, std::string_view text) {
  std::string kept;
  for (const char letter : text) {
    if (fncMaskAdmits(box, kept.size(), letter)) {
      kept += letter;
    }
  }
  return kept;
}

std::string fncMaskShown(const Control& box) {
  const std::string number = fncIsNumeric(box.Text) ? fncPlainNumberText(fncVal(box.Text)) : "0";
  return std::string_view(box.Format).starts_with('$') ? "$" + number : number;
}
