#include "platform/UserInput.h"

#include <algorithm>
#include <exception>
#include <new>
#include <optional>

#include "platform/Chart.h"
#include "platform/Crossing.h"
#include "platform/Picking.h"
#include "platform/Procedure.h"

namespace {

void prcTellWindow(Window& window, const Mouse& mouse) {
  if (window.On->MouseMove != nullptr) {
    window.On->MouseMove(window, mouse);
  }
}

void prcReleaseFellows(Control& control) {
  if (control.Kind == ControlKind::ToolButton) {
    // A group runs from separator to separator.
    std::vector<Control*> group;
    for (Control* other : control.Form->Controls) {
      if (other->Kind != ControlKind::ToolButton || other->Container != control.Container) {
        continue;
      }
      if (other->Style != ButtonStyle::Separator) {
        group.push_back(other);
        continue;
      }
      if (std::ranges::find(group, &control) != group.end()) {
        break;
      }
      group.clear();
    }
    for (Control* other : group) {
      other->Value = 0;
    }
    return;
  }
  for (Control* other : control.Form->Controls) {
    if (other->Kind == control.Kind && other->Container == control.Container) {
      other->Value = 0;
    }
  }
}

void prcTurnOver(Control& control) {
  switch (control.Kind) {
    case ControlKind::CheckBox:
      control.Value = control.Value == 0 ? 1 : 0;
      break;
    case ControlKind::OptionButton:
      prcReleaseFellows(control);
      control.Value = 1;
      break;
    case ControlKind::ToolButton:
      if (control.Style == ButtonStyle::Group) {
        prcReleaseFellows(control);
        control.Value = 1;
      } else {
        control.Value = control.Value == 0 ? 1 : 0;
      }
      break;
    default:
      break;
  }
}

/// The next control in Tab order behind the focused one, or before it; none if the window has no
/// stop.
Control* fncNextStop(const Window& window, bool blnBackwards) {
  std::vector<Control*> stops;
  for (Control* control : window.Controls) {
    if (control->TabStop && fncTakesFocus(*control) && fncSeen(*control) && fncUsable(*control)) {
      stops.push_back(control);
    }
  }
  if (stops.empty()) {
    return nullptr;
  }
  const auto at = std::ranges::find(stops, window.ActiveControl);
  if (at == stops.end()) {
    return blnBackwards ? stops.back() : stops.front();
  }
  const auto place = static_cast<std::size_t>(at - stops.begin());
  return stops[(place + (blnBackwards ? stops.size() - 1 : 1)) % stops.size()];
}

/// Runs handlers to their end, or to the fault that ends them, which comes back.
std::optional<Fault> fncFaultOf(const std::function<void()>& handlers) {
  prcForgetFault();
  try {
    const Procedure running("Velmora");
    handlers();
    return std::nullopt;
  } catch (const EndOfProgram&) {
    throw;
  } catch (const Fault& raised) {
    return raised;
  } catch (const std::bad_alloc&) {
    return faultOutOfMemory;
  } catch (const std::exception&) {
    return faultInternal;
  }
}

void prcClicked(Control& control) {
  prcTurnOver(control);
  if (control.On->Click != nullptr) {
    control.On->Click(control);
  }
}

}  // namespace

void (*prcUserHelp)(const Window& window) = [](const Window&) {};

void prcDispatch(const std::function<void()>& handlers) {
  try {
    if (const std::optional<Fault> fault = fncFaultOf(handlers)) {
      prcTellFault(*fault);
    }
  } catch (const EndOfProgram&) {
    // The platform has noted the end; its loops stop at their next turn.
    return;
  }
}

bool fncSeen(const Control& control) {
  for (const Control* at = &control; at != nullptr; at = at->Container) {
    if (!at->Visible) {
      return false;
    }
  }
  return control.Form != nullptr && control.Form->hWnd != 0 && control.Form->Visible;
}

bool fncUsable(const Control& control) {
  for (const Control* at = &control; at != nullptr; at = at->Container) {
    if (!at->Enabled) {
      return false;
    }
  }
  return true;
}

bool fncClicksWith(const Control& control, int button) {
  return button == intLeftButton || control.Kind == ControlKind::Label;
}

bool fncUserReach(Control& control) {
  const auto open = [&] { return fncSeen(control) && fncUsable(control); };
  return open() && (fncTakesFocus(control) ? fncSetFocus(control) : fncCheckFocus(*control.Form)) &&
         open();
}

bool fncUserPress(Control& control, const Mouse& mouse) {
  if (!fncUserReach(control)) {
    return false;
  }
  if (control.On->MouseDown != nullptr) {
    control.On->MouseDown(control, mouse);
  }
  return true;
}

void prcUserMove(Control& control, const Mouse& mouse) {
  if (control.Kind == ControlKind::Chart) {
    prcUserPick(control, fncChartPointAt(control, double{mouse.X}));
  }
  if (control.On->MouseMove != nullptr) {
    const bool blnCrosses = fncCrossesGround(control, mouse);
    prcNotePointer(control, mouse);
    if (blnCrosses) {
      prcTellWindow(*control.Form, mouse);
    }
    control.On->MouseMove(control, mouse);
  }
}

void prcUserMove(Window& window, const Mouse& mouse) {
  prcNoteGround();
  prcTellWindow(window, mouse);
}

void prcUserRelease(Control& control, const Mouse& mouse, bool blnInside) {
  prcNotePointer(control, mouse);
  if (control.On->MouseUp != nullptr) {
    control.On->MouseUp(control, mouse);
  }
  // Keys may have gone to a box while the button was held: what they typed is checked before the
  // click acts on it.
  if (blnInside && fncClicksWith(control, mouse.Button) && fncUserReach(control)) {
    prcClicked(control);
  }
}

void prcUserClick(Control& control) {
  if (fncUserPress(control, {intLeftButton})) {
    prcUserRelease(control, {intLeftButton}, true);
  }
}

void prcUserText(Control& box, std::string_view text) {
  if (!fncUserReach(box)) {
    return;
  }
  box.Text = box.Kind == ControlKind::MaskedEdit ? fncMasked(box, text) : std::string(text);
  box.SelLength = 0;  // What was selected has been typed over.
  if (box.On->Change != nullptr) {
    box.On->Change(box);
  }
}

void prcUserValue(Control& control, double value) {
  if (fncUserReach(control)) {
    prcSetValue(control, value);
  }
}

void prcUserClose(Window& window) {
  if (!fncCheckFocus(window)) {
    return;
  }
  if (window.On->CloseAsked != nullptr) {
    window.On->CloseAsked(window);
  } else {
    fncUnload(window);
  }
}

bool fncUserTab(Window& window, bool blnBackwards) {
  Control* next = fncNextStop(window, blnBackwards);
  const bool blnMoved = next != nullptr && fncSetFocus(*next);
  if (window.On->KeyDown != nullptr) {
    window.On->KeyDown(window, "Tab", blnBackwards ? intShiftMask : 0);
  }
  return blnMoved;
}
