#include <QApplication>

#include "platform/qt/views/ControlViews.h"
#include "platform/qt/windows/InFront.h"
#include "platform/qt/windows/Reports.h"
#include "platform/qt/windows/Screen.h"

namespace qt {

namespace {

/// Whether a dialog or message holds the user elsewhere: assistive tools reach below it.
bool fncBelowDialog(const ControlView& view) {
  const QWidget* modal = QApplication::activeModalWidget();
  return modal != nullptr && modal != view.Home.Shell;
}

}  // namespace

void prcAct(ControlView& view, const std::function<void(Control&)>& act) {
  Control* control = fncLive(view);
  if (control == nullptr || fncSyncing()) {
    return;
  }
  const QPointer<QWidget> widget = view.Widget;
  if (!fncBelowDialog(view)) {
    if (control->Form->Kind != WindowKind::Frame && fncActiveWindow() != control->Form) {
      prcBringUp(*control->Form);
    }
    prcServe([&] { act(*control); });
  }
  // The handlers may have taken the control away, and its view with it.
  if (ControlView* left = widget != nullptr ? fncControlViewOf(widget) : nullptr;
      left != nullptr && left->Widget == widget) {
    if (const Control* shown = fncLive(*left); shown != nullptr) {
      prcUpdateControl(*left, *shown);
    }
  }
}

void prcAct(const Control& control, const std::function<void(Control&)>& act) {
  if (ControlView* view = fncViewOf(control); view != nullptr) {
    prcAct(*view, act);
  }
}

}  // namespace qt
