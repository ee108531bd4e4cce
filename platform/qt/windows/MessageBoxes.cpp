#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QWindow>
#include <algorithm>
#include <memory>

#include "platform/platform.h"
#include "platform/qt/looks/Scale.h"
#include "platform/qt/views/Captions.h"
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

}  // namespace

namespace platform {

Answer MsgBox(const std::string& text, Icon icon, const std::string& title, Buttons buttons,
              Answer standard) {
  qt::prcThrowIfEnded();
  qt::prcSyncAll();
  const QPointer<QWidget> parent(fncInput());
  const auto box = std::make_unique<QMessageBox>();
  prcFillBox(*box, text, icon, title, buttons, standard);
  if (parent != nullptr && parent->windowHandle() != nullptr) {
    box->winId();
    box->windowHandle()->setTransientParent(parent->windowHandle());
  }
  box->setWindowModality(Qt::ApplicationModal);
  box->show();
  box->activateWindow();
  qt::prcServeUntil([&] { return !box->isVisible(); });
  if (parent != nullptr) {
    parent->activateWindow();  // Left alone, a window manager may prefer a floating window.
  }
  return box->standardButton(box->clickedButton()) == QMessageBox::Ok ? Answer::Ok : Answer::Cancel;
}

}  // namespace platform
