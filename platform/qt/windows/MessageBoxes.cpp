#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QWindow>
#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

#include "platform/platform.h"
#include "platform/qt/looks/Scale.h"
#include "platform/qt/views/Captions.h"
#include "platform/qt/views/Painted.h"
#include "platform/qt/windows/Loop.h"
#include "platform/qt/windows/Screen.h"
#include "platform/qt/windows/Sync.h"

namespace {

QMessageBox::Icon fncBoxIcon(platform::Icon icon) {
  switch (icon) {
    case platform::Icon::Stop:
      return QMessageBox::Critical;
    case platform::Icon::Exclamation:
      return QMessageBox::Warning;
    case platform::Icon::Information:
      return QMessageBox::Information;
    case platform::Icon::None:
      break;
  }
  return QMessageBox::NoIcon;
}

/// The toolkit breaks the lines of a message at a fixed number of pixels: a short one keeps its
/// line at any scale.
void prcWiden(QMessageBox& box) {
  constexpr int intMost = 800;  // The toolkit gives the whole box 1000 at most.
  if (auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label")); label != nullptr) {
    label->setMinimumWidth(std::min({label->sizeHint().width(), qt::fncScaled(380), intMost}));
  }
}

void prcFillBox(QMessageBox& box, const std::string& text, platform::Icon icon,
                const std::string& title, platform::Buttons buttons, platform::Answer standard) {
  box.setObjectName(QStringLiteral("MsgBox"));
  box.setWindowTitle(title.empty() ? QApplication::applicationName() : qt::fncText(title));
  box.setTextFormat(Qt::PlainText);
  box.setText(qt::fncText(text));
  box.setIcon(fncBoxIcon(icon));
  prcWiden(box);
  if (buttons == platform::Buttons::Ok) {
    box.setStandardButtons(QMessageBox::Ok);
    box.setEscapeButton(QMessageBox::Ok);
    return;
  }
  box.setStandardButtons(QMessageBox::Ok | QMessageBox::Cancel);
  box.setEscapeButton(QMessageBox::Cancel);
  box.setDefaultButton(standard == platform::Answer::Ok ? QMessageBox::Ok : QMessageBox::Cancel);
}

/// The window that a message belongs to: the one that has the input, or is to have it where another
/// message has just gone.
QWidget* fncInput() {
  QWidget* active = QApplication::activeWindow();
  const Window* window = qt::fncActiveWindow();
  const qt::WindowView* view = window != nullptr ? qt::fncViewOf(*window) : nullptr;
  return active != nullptr || view == nullptr ? active : view->Shell->window();
}

using Money = std::vector<std::pair<qt::PaintedView*, std::string>>;

/// The labels of money in sight, with the text that each shows.
Money fncMoneyInSight() {
  Money money;
  for (const Window* window : fncWindows()) {
    for (const Control* control : window->Controls) {
      const qt::ControlView* view =
          control->Dress == Look::Money ? qt::fncViewOf(*control) : nullptr;
      auto* label = view != nullptr ? qobject_cast<qt::PaintedView*>(view->Widget) : nullptr;
      if (label != nullptr && label->isVisible()) {
        money.emplace_back(label, view->Drawn.Text);
      }
    }
  }
  return money;
}

/// What has been won or lost just before the message shows: nobody looks there by himself.
void prcFlashChanged(const Money& before, const Money& now) {
  for (const auto& [label, text] : now) {
    const auto was = std::ranges::find(before, label, &Money::value_type::first);
    if (was != before.end() && was->second != text) {
      label->prcFlash();
    }
  }
}

/// In the middle of its window, but above the money that it would hide.
QPoint fncBoxPlace(const QSize& size, const QWidget& parent, const Money& money) {
  QRect place(QPoint(), size);
  place.moveCenter(parent.frameGeometry().center());
  QRect seats;
  for (const auto& [label, text] : money) {
    seats |= QRect(label->mapToGlobal(QPoint()), label->size());
  }
  if (place.intersects(seats)) {
    place.moveBottom(seats.top() - qt::fncScaled(8));
  }
  return {place.left(), std::max(place.top(), parent.frameGeometry().top())};
}

}  // namespace

namespace platform {

Answer MsgBox(const std::string& text, Icon icon, const std::string& title, Buttons buttons,
              Answer standard) {
  qt::prcThrowIfEnded();
  const Money before = fncMoneyInSight();
  qt::prcSyncAll();
  const QPointer<QWidget> parent(fncInput());
  const auto box = std::make_unique<QMessageBox>();
  prcFillBox(*box, text, icon, title, buttons, standard);
  if (parent != nullptr && parent->windowHandle() != nullptr) {
    box->winId();
    box->windowHandle()->setTransientParent(parent->windowHandle());
  }
  box->setWindowModality(Qt::ApplicationModal);
  const Money money = fncMoneyInSight();
  if (parent != nullptr) {
    box->move(fncBoxPlace(box->sizeHint(), *parent->window(), money));
  }
  box->show();
  box->activateWindow();
  prcFlashChanged(before, money);
  qt::prcServeUntil([&] { return !box->isVisible(); });
  if (parent != nullptr) {
    parent->activateWindow();  // Left alone, a window manager may prefer a floating window.
  }
  return box->standardButton(box->clickedButton()) == QMessageBox::Ok ? Answer::Ok : Answer::Cancel;
}

}  // namespace platform
