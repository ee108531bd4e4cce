#include <QAbstractEventDispatcher>
#include <QApplication>
#include <array>
#include <optional>

#include "platform/platform.h"
#include "platform/qt/machine/Closing.h"
#include "platform/qt/machine/OneInstance.h"
#include "platform/qt/windows/Loop.h"
#include "platform/qt/windows/Session.h"

namespace qt {

namespace {

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

}  // namespace platform
