#include <QApplication>
#include <QScreen>
#include <QTimer>
#include <algorithm>

#include "platform/Procedure.h"
#include "platform/platform.h"
#include "platform/qt/looks/Scale.h"
#include "platform/qt/windows/InFront.h"
#include "platform/qt/windows/Loop.h"
#include "platform/qt/windows/Sync.h"

// What the game asks of the screen: turns of the event loop, waits, modal windows, sizes, the end.

namespace platform {

void DoEvents() {
  qt::prcThrowIfEnded();
  qt::prcSyncIfDue();
  QCoreApplication::processEvents(QEventLoop::AllEvents);
  qt::prcThrowIfEnded();
}

void WaitEvents(std::uint32_t milliseconds) {
  qt::prcThrowIfEnded();
  qt::prcSyncAll();
  qt::prcThrowIfEnded();
  static QTimer* alarm = nullptr;  // Its time-out is the event that ends the wait.
  if (alarm == nullptr) {
    alarm = new QTimer(qApp);
    alarm->setSingleShot(true);
    alarm->setTimerType(Qt::PreciseTimer);
    QObject::connect(alarm, &QObject::destroyed, [] { alarm = nullptr; });
  }
  alarm->start(static_cast<int>(std::min(milliseconds, 1U << 30)));
  QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
  qt::prcThrowIfEnded();
}

void RepaintNow(Control& control) {
  if (!qt::fncEnded()) {
    qt::prcPaintNow(control);
  }
}

void RunModal(Window& window) {
  qt::prcThrowIfEnded();
  const std::int32_t handle = window.hWnd;
  qt::prcSyncAll();
  qt::prcBringUp(window);
  qt::prcServeUntil([&] { return !window.Visible || std::int32_t{window.hWnd} != handle; });
  qt::prcSyncAll();
}

void Activate(Window& window) {
  qt::prcSyncAll();
  qt::prcBringUp(window);
}

double ScreenWidth() {
  const QScreen* screen = QGuiApplication::primaryScreen();
  return qt::fncTwips(screen != nullptr ? screen->size().width() : 1024);
}

double ScreenHeight() {
  const QScreen* screen = QGuiApplication::primaryScreen();
  return qt::fncTwips(screen != nullptr ? screen->size().height() : 700);
}

Desk WholeDesk() {
  const QScreen* screen = QGuiApplication::primaryScreen();
  const QRect all = screen != nullptr ? screen->virtualGeometry() : QRect(0, 0, 1024, 700);
  return {qt::fncTwips(all.left()), qt::fncTwips(all.top()), qt::fncTwips(all.width()),
          qt::fncTwips(all.height())};
}

void End() {
  qt::prcNoteEnd();
  throw EndOfProgram{};
}

}  // namespace platform
