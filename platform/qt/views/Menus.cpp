#include "platform/qt/views/Menus.h"

#include <QAction>
#include <QCoreApplication>
#include <QEvent>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <algorithm>

#include "platform/UserInput.h"
#include "platform/qt/looks/Palette.h"
#include "platform/qt/looks/Pictures.h"
#include "platform/qt/looks/Scale.h"
#include "platform/qt/views/Buttons.h"
#include "platform/qt/views/Captions.h"
#include "platform/qt/windows/Reports.h"

namespace qt {

namespace {

/// Bars as high as this have large pictures and captions. Twips.
constexpr double dblLargeBar = 540;

/// The menu that an entry belongs to; none stands for the menu bar itself.
QMenu* fncMenuOf(ControlView& view) {
  if (view.Source->Container == nullptr) {
    return nullptr;
  }
  ControlView* holder = view.Home.ByControl[view.Source->Container];
  return holder != nullptr ? qobject_cast<QMenu*>(holder->Helper) : nullptr;
}

bool fncHasEntries(const ControlView& view) {
  return std::ranges::any_of(view.Home.Source->Controls, [&](const Control* other) {
    return other->Kind == ControlKind::MenuEntry && other->Container == view.Source;
  });
}

QAction* fncAction(const ControlView& view) {
  if (auto* menu = qobject_cast<QMenu*>(view.Helper); menu != nullptr) {
    return menu->menuAction();
  }
  return qobject_cast<QAction*>(view.Helper);
}

/// Shows the check mark as the model has it, whatever the toolkit made of the click.
void prcShowCheck(QAction& action, const Control& control) {
  action.setCheckable(control.Max >= 1 || control.Value != 0);
  action.setChecked(control.Value != 0);
}

void prcTriggered(ControlView& view) {
  const QPointer<QAction> action = fncAction(view);
  prcAct(view, prcUserClick);
  if (const Control* entry = action != nullptr ? fncLive(view) : nullptr; entry != nullptr) {
    prcShowCheck(*action, *entry);
  }
}

/// Separators stand only between buttons that are seen.
void prcTidySeparators(const QToolBar& bar) {
  QAction* separator = nullptr;
  bool blnBefore = false;
  for (QAction* action : bar.actions()) {
    if (action->isSeparator()) {
      action->setVisible(false);
      separator = blnBefore ? action : separator;
    } else if (action->isVisible()) {
      if (separator != nullptr) {
        separator->setVisible(true);
        separator = nullptr;
      }
      blnBefore = true;
    }
  }
}

}  // namespace

QAction* fncMenuEntryOf(int key, Qt::KeyboardModifiers modifiers) {
  const WindowView* frame = fncFrameView();
  const QKeySequence pressed(static_cast<int>(modifiers) | key);
  if (frame == nullptr || frame->Shell == nullptr) {
    return nullptr;
  }
  for (QAction* action : frame->Shell->findChildren<QAction*>()) {
    if (action->shortcut() == pressed && action->isVisible() && action->isEnabled()) {
      return action;
    }
  }
  return nullptr;
}

void prcMakeMenu(ControlView& view) {
  auto* window = qobject_cast<QMainWindow*>(view.Home.Shell);
  if (window == nullptr) {
    return;
  }
  QMenu* holder = fncMenuOf(view);
  if (fncHasEntries(view)) {
    view.Helper =
        holder == nullptr ? window->menuBar()->addMenu(QString()) : holder->addMenu(QString());
  } else {
    auto* action = new QAction(window);
    action->setMenuRole(QAction::NoRole);
    view.Helper = action;
    holder == nullptr ? window->menuBar()->addAction(action) : holder->addAction(action);
    QObject::connect(action, &QAction::triggered, action, [&view] { prcTriggered(view); });
  }
  fncAction(view)->setObjectName(fncObjectName(*view.Source));
}

void prcUpdateMenu(ControlView& view, const Control& control) {
  QAction* action = fncAction(view);
  if (action == nullptr) {
    return;
  }
  action->setSeparator(control.Text == "-");
  action->setText(control.Text == "-" ? QString() : fncText(control.Text));
  action->setVisible(control.Visible);
  action->setEnabled(control.Enabled);
  action->setToolTip(fncText(control.ToolTip));
  action->setShortcut(QKeySequence(QString::fromLatin1(control.Shortcut)));
  action->setAutoRepeat(false);
  if (qobject_cast<QMenu*>(view.Helper) == nullptr) {
    prcShowCheck(*action, control);
  }
}

void prcMakeToolbar(ControlView& view) {
  auto* window = qobject_cast<QMainWindow*>(view.Home.Shell);
  auto* bar = new QToolBar(view.Home.Shell);
  bar->setMovable(false);
  bar->setContextMenuPolicy(Qt::PreventContextMenu);
  if (window != nullptr) {
    window->addToolBar(Qt::TopToolBarArea, bar);
    window->insertToolBarBreak(bar);
  }
  view.Widget = bar;
}

void prcUpdateToolbar(ControlView& view, const Control& control) {
  auto* bar = qobject_cast<QToolBar*>(view.Widget);
  const bool blnLarge = control.Height >= dblLargeBar;
  const int side = fncScaled(blnLarge ? 24 : 18);
  bar->setIconSize(QSize(side, side));
  bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  bar->setFixedHeight(fncPixels(control.Height));
  bar->setFont(fncFont(control.Face));
  QEvent spaces(QEvent::StyleChange);
  QCoreApplication::sendEvent(bar, &spaces);
}

void prcMakeTool(ControlView& view, QWidget* bar) {
  auto* toolbar = qobject_cast<QToolBar*>(bar);
  if (toolbar == nullptr) {
    return;
  }
  if (view.Source->Style == ButtonStyle::Separator) {
    view.Helper = toolbar->addSeparator();
    return;
  }
  auto* button = new ToolView(toolbar);
  button->setCheckable(true);
  button->setFocusPolicy(Qt::NoFocus);
  view.Widget = button;
  view.Helper = toolbar->addWidget(button);
  prcConnectClick(view, *button);
}

void prcUpdateTool(ControlView& view, const Control& control, bool blnFirst) {
  auto* action = qobject_cast<QAction*>(view.Helper);
  if (action == nullptr) {
    return;
  }
  const bool blnTurned = action->isVisible() != control.Visible;
  auto* button = qobject_cast<QToolButton*>(view.Widget);
  if (button == nullptr) {
    return;
  }
  action->setVisible(control.Visible);
  auto* bar = qobject_cast<QToolBar*>(button->parentWidget());
  if (bar != nullptr && (blnTurned || blnFirst)) {
    prcTidySeparators(*bar);
  }
  const int side = bar != nullptr ? bar->iconSize().width() : fncScaled(18);
  const int height = bar != nullptr ? bar->height() - fncScaled(4) : side + fncScaled(8);
  const bool blnCaption = bar != nullptr &&
                          bar->toolButtonStyle() == Qt::ToolButtonTextBesideIcon &&
                          !control.Text.empty();
  button->setIconSize(QSize(side, side));
  if (blnFirst) {
    button->setIcon(fncIcon(control.Picture, side));
  }
  button->setFont(fncFont(control.Face));
  button->setText(fncText(control.Text));
  button->setToolButtonStyle(blnCaption ? Qt::ToolButtonTextBesideIcon : Qt::ToolButtonIconOnly);
  const int caption =
      blnCaption ? button->fontMetrics().horizontalAdvance(button->text()) + fncScaled(10) : 0;
  button->setFixedSize(side + fncScaled(8) + caption, height);
  const QSignalBlocker quiet(button);
  button->setChecked(control.Value != 0);
  button->setEnabled(control.Enabled);
}

}  // namespace qt
