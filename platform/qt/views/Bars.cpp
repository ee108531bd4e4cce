#include "platform/qt/views/Bars.h"

#include <QStyleOptionSlider>
#include <QWheelEvent>

#include "platform/UserInput.h"
#include "platform/qt/windows/Reports.h"
#include "platform/qt/windows/Screen.h"

namespace qt {

namespace {

/// A bar that can be moved and does not stand outside of the window.
bool fncMovable(const Control& bar, const Window& window) {
  return fncSeen(bar) && bar.Enabled && bar.Max > bar.Min && bar.Left < window.ScaleWidth &&
         bar.Top < window.ScaleHeight;
}

Control* fncBarFor(const Window& window, bool blnAcross) {
  Control* found = nullptr;
  for (Control* bar : window.Controls) {
    if (!fncIsBar(*bar) || !fncMovable(*bar, window)) {
      continue;
    }
    const bool blnUpright = bar->Kind == ControlKind::VScrollBar;
    if (blnUpright != blnAcross) {
      return bar;
    }
    found = blnUpright ? found : bar;
  }
  return found;
}

}  // namespace

bool fncIsBar(const Control& control) {
  return control.Kind == ControlKind::VScrollBar || control.Kind == ControlKind::HScrollBar;
}

bool fncTurns(const Control& control) {
  return fncIsBar(control) || control.Kind == ControlKind::Slider;
}

void BarView::prcShowPage(int page) {
  page_ = page;
  update();
}

void BarView::initStyleOption(QStyleOptionSlider* option) const {
  QScrollBar::initStyleOption(option);
  option->pageStep = page_ > 0 ? page_ : option->pageStep;
}

bool fncTurnBar(WindowView& home, Control* control, const QWheelEvent& event) {
  const QPoint turn = event.angleDelta();
  const bool blnAcross = turn.y() == 0 || event.modifiers().testFlag(Qt::ShiftModifier);
  Control* bar =
      control != nullptr && fncTurns(*control) ? control : fncBarFor(*home.Source, blnAcross);
  if (bar == nullptr) {
    return false;
  }
  const double notches = (turn.y() != 0 ? turn.y() : turn.x()) / 120.0;
  const double step = (bar->Kind == ControlKind::Slider ? 1 : -1) * bar->SmallChange;
  // Unlike a press it leaves the keyboard where it is.
  prcServe([&] { prcUserValue(*bar, bar->Value + notches * step); });
  return true;
}

}  // namespace qt
