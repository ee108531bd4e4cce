#include "tests/qt/RealUser.h"

#include <QAction>
#include <QApplication>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <cmath>
#include <deque>
#include <memory>
#include <stdexcept>

#include "platform/Procedure.h"
#include "platform/UserInput.h"
#include "platform/qt/looks/Scale.h"
#include "platform/qt/windows/Loop.h"
#include "platform/qt/windows/Screen.h"
#include "tests/conformance/Adapter.h"

namespace {

std::deque<std::function<void()>> actModal;
std::deque<platform::Answer> ansNext;
std::vector<user::Box> boxShown;
std::unique_ptr<QTimer> tmrModal;

platform::Icon fncIconOf(QMessageBox::Icon icon) {
  switch (icon) {
    case QMessageBox::Critical:
      return platform::Icon::Stop;
    case QMessageBox::Warning:
      return platform::Icon::Exclamation;
    case QMessageBox::Information:
      return platform::Icon::Information;
    default:
      return platform::Icon::None;
  }
}

void prcAnswer(QMessageBox& box) {
  const bool blnCancel = box.standardButtons().testFlag(QMessageBox::Cancel);
  QString text = box.text();
  text.replace(QStringLiteral("\n"), QStringLiteral("\r\n"));
  boxShown.push_back(
      {text.toStdString(), box.windowTitle().toStdString(), fncIconOf(box.icon()), blnCancel,
       box.defaultButton() == box.button(QMessageBox::Cancel) ? platform::Answer::Cancel
                                                              : platform::Answer::Ok});
  if (ansNext.empty()) {
    QTest::keyClick(&box, Qt::Key_Return);
    return;
  }
  const platform::Answer answer = ansNext.front();
  ansNext.pop_front();
  if (answer == platform::Answer::Cancel) {
    QTest::keyClick(&box, Qt::Key_Escape);
  } else {
    QTest::mouseClick(box.button(QMessageBox::Ok), Qt::LeftButton);
  }
}

/// Serves an open message box or modal window: the script first, then the answer.
void prcServeModal() {
  QWidget* open = QApplication::activeModalWidget();
  if (open == nullptr || qt::fncEnded()) {
    return;
  }
  tmrModal->stop();
  if (!actModal.empty()) {
    const std::function<void()> act = std::move(actModal.front());
    actModal.pop_front();
    act();
    open = QApplication::activeModalWidget();
  }
  tmrModal->start(1);
  if (auto* box = qobject_cast<QMessageBox*>(open); box != nullptr) {
    prcAnswer(*box);
  } else if (open != nullptr) {
    open->close();
  }
}

Qt::MouseButton fncButton(int button) {
  switch (button) {
    case intRightButton:
      return Qt::RightButton;
    case intMiddleButton:
      return Qt::MiddleButton;
    default:
      return Qt::LeftButton;
  }
}

/// A pointer that comes to where it is already moves nothing: every second hover is a little aside.
float fncAside() {
  static bool blnAside = false;
  blnAside = !blnAside;
  return blnAside ? 15 : 0;
}

QWindow& fncWindow(const Control& control) {
  return *real::Ground(*control.Form).window()->windowHandle();
}

QPoint fncInWindow(const Control& control, float x, float y) {
  return fncWindow(control).mapFromGlobal(real::Global(control, x, y));
}

}  // namespace

namespace real {

QWidget& Widget(const Control& control) {
  const qt::ControlView* view = qt::fncViewOf(control);
  if (view == nullptr || view->Widget == nullptr) {
    throw std::logic_error(std::string("not on the screen: ") + control.Name);
  }
  return *view->Widget;
}

QAction& Action(const Control& entry) {
  const qt::ControlView* view = qt::fncViewOf(entry);
  auto* action = view == nullptr ? nullptr : qobject_cast<QAction*>(view->Helper);
  if (action == nullptr) {
    throw std::logic_error(std::string("not in the menu: ") + entry.Name);
  }
  return *action;
}

QWidget& Ground(const Window& window) {
  const qt::WindowView* view = qt::fncViewOf(window);
  if (view == nullptr) {
    throw std::logic_error(std::string("not on the screen: ") + window.Name);
  }
  return *view->Ground;
}

void Key(const Window& window, int key, Qt::KeyboardModifiers modifiers) {
  QTest::keyClick(Ground(window).window()->windowHandle(), static_cast<Qt::Key>(key), modifiers);
}

QPoint Global(const Control& control, float x, float y) {
  const QPoint inside(qt::fncPixels(double{x}), qt::fncPixels(double{y}));
  return Widget(control).mapToGlobal(inside);
}

}  // namespace real

namespace user {

void Reset(const std::string& /*folder*/) {
  qt::prcForgetEnd();
  for (const std::vector<Window*> loaded = fncWindows(); Window * window : loaded) {
    prcForgetWindow(*window);
  }
  qt::prcSyncAll();
  actModal.clear();
  ansNext.clear();
  boxShown.clear();
  tmrModal = std::make_unique<QTimer>();
  QObject::connect(tmrModal.get(), &QTimer::timeout, prcServeModal);
  tmrModal->start(1);
}

void Wait(std::uint32_t milliseconds) {
  QElapsedTimer clock;
  clock.start();
  try {
    while (clock.elapsed() < milliseconds) {
      platform::WaitEvents(1);
    }
  } catch (const EndOfProgram&) {
    return;
  }
}

void Settle() {
  qt::prcSyncAll();
  Wait(2);
}

bool Press(Control& control, float x, float y, int button) {
  Settle();
  QTest::mousePress(&fncWindow(control), fncButton(button), {}, fncInWindow(control, x, y));
  return !Ended();
}

void Drag(Control& control, float x, float y) {
  QTest::mouseMove(&fncWindow(control), fncInWindow(control, x, y));
}

void Release(Control& control, float x, float y, int button) {
  QTest::mouseRelease(&fncWindow(control), fncButton(button), {}, fncInWindow(control, x, y));
}

bool Click(Control& control, int button) {
  Settle();
  if (control.Kind == ControlKind::MenuEntry) {
    real::Action(control).trigger();
    return true;
  }
  const QPoint at = fncInWindow(control, static_cast<float>(control.Width / 2),
                                static_cast<float>(control.Height / 2));
  QTest::mouseClick(&fncWindow(control), fncButton(button), {}, at);
  return true;
}

void Hover(Control& control) {
  Settle();
  Drag(control, static_cast<float>(control.Width / 2) + fncAside(),
       static_cast<float>(control.Height / 2));
}

void Hover(Window& window) {
  Settle();
  QWidget& ground = real::Ground(window);
  QWindow* handle = ground.window()->windowHandle();
  const QPoint corner = ground.mapToGlobal(
      QPoint(ground.width() - 2, ground.height() - 2 - static_cast<int>(fncAside())));
  QTest::mouseMove(handle, handle->mapFromGlobal(corner));
}

bool Type(Control& box, const std::string& text) {
  Click(box);
  if (box.Form->ActiveControl != &box) {
    return false;
  }
  QWidget& widget = real::Widget(box);
  QTest::keyClick(&widget, Qt::Key_A, Qt::ControlModifier);
  if (text.empty()) {
    QTest::keyClick(&widget, Qt::Key_Delete);
  }
  QTest::keyClicks(&widget, QString::fromStdString(text));
  return true;
}

bool Tab(Window& window) {
  Settle();
  real::Key(window, Qt::Key_Tab);
  return true;
}

void Key(Window& window, const std::string& key, int /*shift*/) {
  Settle();
  real::Key(window, QKeySequence(QString::fromStdString(key))[0].key());
}

void Close(Window& window) {
  Settle();
  if (const qt::WindowView* view = qt::fncViewOf(window); view != nullptr) {
    view->Shell->close();
  }
}

void WhileModal(std::function<void()> act) { actModal.push_back(std::move(act)); }
void Answer(platform::Answer answer) { ansNext.push_back(answer); }
const std::vector<Box>& Boxes() { return boxShown; }
void ForgetBoxes() { boxShown.clear(); }

void AtNextTurn(std::function<void()> handler) {
  QTimer::singleShot(0, [handler = std::move(handler)] { qt::prcServe(handler); });
}

bool Ended() { return qt::fncEnded(); }

}  // namespace user
