#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QScreen>
#include <QTimer>
#include <algorithm>
#include <array>
#include <chrono>
#include <optional>
#include <random>

#include "assets/Pictures.h"
#include "platform/Procedure.h"
#include "platform/UserInput.h"
#include "platform/platform.h"
#include "platform/qt/Accessible.h"
#include "platform/qt/Closing.h"
#include "platform/qt/InputRouter.h"
#include "platform/qt/Loop.h"
#include "platform/qt/OneInstance.h"
#include "platform/qt/Pictures.h"
#include "platform/qt/Scale.h"
#include "platform/qt/Screen.h"
#include "platform/qt/Session.h"
#include "platform/qt/Style.h"
#include "platform/qt/WindowViews.h"

namespace qt {

namespace {

/// Chooses the scale from the primary screen.
void prcChooseScale() {
  const QScreen* screen = QGuiApplication::primaryScreen();
  if (screen != nullptr) {
    const double ratio = screen->devicePixelRatio();
    prcSetScale(fncFittingScale(QSizeF(screen->availableSize()) * ratio, ratio));
  }
}

/// While it lives the toolkit is told of no desktop scale factor: the program is fitted to the
/// pixels of the screen as it is, and a factor on top would only round type and lines to coarser
/// steps. Programs started from here find the factor again.
class ScreenPixels {
 public:
  ScreenPixels() {
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    for (std::size_t i = 0; i < strNames.size(); ++i) {
      bytKept.at(i) = qgetenv(strNames.at(i));
      qunsetenv(strNames.at(i));
    }
    qputenv(strNames[0], "0");
  }
  ~ScreenPixels() {
    qunsetenv(strNames[0]);
    for (std::size_t i = 0; i < strNames.size(); ++i) {
      if (!bytKept.at(i).isNull()) {
        qputenv(strNames.at(i), bytKept.at(i));
      }
    }
  }
  Q_DISABLE_COPY_MOVE(ScreenPixels)

 private:
  static constexpr std::array<const char*, 3> strNames{
      "QT_ENABLE_HIGHDPI_SCALING", "QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS"};
  std::array<QByteArray, 3> bytKept;
};

/// The program ends when its last window is gone, as after it has been closed from the start
/// screen.
void prcEndWithoutWindows() {
  if (!fncEnded() && fncWindows().empty()) {
    prcNoteEnd();
  }
}

}  // namespace

void prcBringUpPlatform() {
  QGuiApplication::setQuitOnLastWindowClosed(false);
  prcChooseScale();
  prcDressApplication();
  QGuiApplication::setWindowIcon(fncIcon(picIcon, 64));
  new InputRouter(qApp);
  prcInstallRoles();
}

void prcTakeDownPlatform() {
  prcClearScreen();
  // No event loop will run any more to delete what a handler was still inside of.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  prcForgetPictures();
}

}  // namespace qt

namespace platform {

int Run(int argc, char** argv, bool (*start)()) {
  QApplication::setApplicationName(QStringLiteral("Velmora"));
  QGuiApplication::setDesktopFileName(QStringLiteral("velmora"));
  QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
      Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
  std::optional<qt::ScreenPixels> pixels(std::in_place);
  QApplication application(argc, argv);
  pixels.reset();
  qt::prcBringUpPlatform();
  qt::prcWatchOutside();
  bool blnStarted = false;
  qt::prcServe([&] { blnStarted = start(); });
  if (blnStarted && !qt::fncEnded()) {
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock,
                     &application, [] { qt::prcEndWithoutWindows(); });
    QApplication::exec();
  }
  qt::prcTakeDownPlatform();
  qt::prcGiveUpLock();
  return 0;
}

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

std::uint32_t TickCount() {
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  return static_cast<std::uint32_t>(
      std::chrono::duration_cast<std::chrono::milliseconds>(now).count());
}

std::uint64_t RandomSeed() {
  static std::random_device device;
  static std::uint64_t calls = 0;
  const auto now = std::chrono::high_resolution_clock::now().time_since_epoch().count();
  const std::uint64_t chance = (std::uint64_t{device()} << 32U) ^ device();
  return (static_cast<std::uint64_t>(now) * 0x9E3779B97F4A7C15ULL + ++calls) ^ chance;
}

void RepaintNow(Control& control) {
  if (control.Form != nullptr && !qt::fncEnded()) {
    qt::prcPaintNow(*control.Form);
  }
}

void RunModal(Window& window) {
  qt::prcThrowIfEnded();
  const Window* before = qt::fncActiveWindow();
  const std::int32_t handle = window.hWnd;
  {
    const qt::Modal modal(window);
    qt::prcSyncAll();
    qt::prcBringUp(window);
    qt::prcServeUntil([&] { return !window.Visible || std::int32_t{window.hWnd} != handle; });
    qt::prcSyncAll();
  }
  const auto& loaded = fncWindows();
  const auto found = std::find(loaded.begin(), loaded.end(), before);
  if (found != loaded.end() && (*found)->Visible) {
    qt::prcBringUp(**found);
  }
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

void End() {
  qt::prcNoteEnd();
  throw EndOfProgram{};
}

}  // namespace platform
