#include <QAbstractButton>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <cmath>
#include <stdexcept>

#include "judges/Adapter.h"
#include "platform/qt/looks/Pictures.h"
#include "platform/qt/windows/WindowViews.h"
#include "tests/qt/stage/Stage.h"

// The eyes: what a control or window shows, read from its widget.

namespace stage {

QWidget* fncWidget(const Control& control) {
  const qt::ControlView* view = qt::fncViewOf(control);
  return view == nullptr ? nullptr : view->Widget.data();
}

QAction* fncAction(const Control& control) {
  const qt::ControlView* view = qt::fncViewOf(control);
  QObject* helper = view == nullptr ? nullptr : view->Helper.data();
  auto* menu = qobject_cast<QMenu*>(helper);
  return menu != nullptr ? menu->menuAction() : qobject_cast<QAction*>(helper);
}

qt::WindowView& fncView(const Window& window) {
  qt::WindowView* view = qt::fncViewOf(window);
  return view != nullptr ? *view
                         : throw std::logic_error(std::string("not on the screen: ") + window.Name);
}

std::string fncTold(QString text) {
  return text.replace(QLatin1Char('\n'), QLatin1String("\r\n")).toStdString();
}

namespace {

/// Where the screen agrees with the model to the pixel, the model's place is seen.
template <class Placed>
void prcSeePlace(Placed& seen, const QRect& place, const QRect& known) {
  if (known != place) {
    seen.Left = qt::fncTwips(place.left());
    seen.Top = qt::fncTwips(place.top());
    seen.Width = qt::fncTwips(place.width());
    seen.Height = qt::fncTwips(place.height());
  }
}

void prcSeeAction(Control& seen, const QAction& action) {
  seen.Visible = action.isVisible();
  seen.Enabled = action.isVisible() ? action.isEnabled() : seen.Enabled;  // Hidden ones say no.
  seen.Text = action.isSeparator() ? "-" : action.text().toStdString();
  seen.Value = action.isChecked() ? 1 : 0;
}

/// What the widget of its kind shows of a control, beyond what is painted of its view's own copy.
void prcSeeKind(Control& seen, const qt::ControlView& view) {
  QWidget* widget = view.Widget;
  const auto see = [widget](const char* property, double& known) {
    const QVariant shown = widget->property(property);
    known = !shown.isValid() || std::lround(known) == shown.toInt() ? known : shown.toInt();
  };
  see("value", seen.Value);
  see("singleStep", seen.SmallChange);
  see("pageStep", seen.LargeChange);
  if (seen.Max > seen.Min) {  // A bar that goes nowhere has no end to show.
    see("maximum", seen.Max);
  }
  if (const auto* edit = qobject_cast<QLineEdit*>(widget)) {
    const bool blnTyped = view.Home.Source->ActiveControl == view.Source;
    const std::string shown = fncTold(edit->text());
    const bool blnMasked = seen.Kind == ControlKind::MaskedEdit && !blnTyped;
    seen.Text =
        shown == (blnMasked ? fncMaskShown(seen) : seen.Text) ? seen.Text : "shows " + shown;
  } else if (const auto* button = qobject_cast<QAbstractButton*>(widget)) {
    seen.Text = fncTold(button->text());
    seen.Value = button->isCheckable() ? button->isChecked() : seen.Value;
  } else if (const auto* list = qobject_cast<QListWidget*>(widget)) {
    seen.List.clear();
    for (int row = 0; row < list->count(); ++row) {
      seen.List.push_back(list->item(row)->text().toStdString());
    }
    seen.ListIndex = list->currentRow();
  }
}

}  // namespace

}  // namespace stage

namespace user {

Control Seen(const Control& control) {
  const qt::ControlView* view = qt::fncViewOf(control);
  if (view == nullptr) {
    return control;  // Its window has not come up: nothing of it shows.
  }
  Control seen = view->Drawn;
  const QAction* action = stage::fncAction(control);
  if (view->Widget == nullptr) {
    if (action != nullptr) {
      stage::prcSeeAction(seen, *action);
    }
    return seen;
  }
  seen.Visible = action != nullptr ? action->isVisible() : !view->Widget->isHidden();
  if (control.Kind != ControlKind::Toolbar) {  // A bar that cannot be used is hidden.
    seen.Enabled = view->Widget->isEnabledTo(view->Widget->parentWidget());
    if (control.Kind != ControlKind::ToolButton) {
      stage::prcSeePlace(seen, view->Widget->geometry(), qt::fncPlace(seen));
    }
  }
  stage::prcSeeKind(seen, *view);
  return seen;
}

Window Seen(const Window& window) {
  Window seen = window;
  const qt::WindowView* view = qt::fncViewOf(window);
  if (view == nullptr) {
    seen.Visible = false;
    return seen;
  }
  const QWidget& shell = *view->Shell;
  seen.Visible = !shell.isHidden();
  seen.Maximised = shell.isMaximized();
  seen.Topmost = shell.windowHandle() != nullptr &&
                 shell.windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint);
  if (seen.Visible) {
    stage::prcSeePlace(seen, qt::fncOuterPlace(*view),
                       qt::fncPixelRect(seen.Left, seen.Top, seen.Width, seen.Height));
  }
  if (const QWidget* focus = QApplication::focusWidget(); qt::fncWindowViewOf(focus) == view) {
    const qt::ControlView* at = qt::fncControlViewOf(focus);
    seen.ActiveControl = at != nullptr ? at->Source : nullptr;
  }
  return seen;
}

}  // namespace user
