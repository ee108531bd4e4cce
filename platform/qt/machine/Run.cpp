#include <QAbstractEventDispatcher>
#include <QApplication>
#include <vector>

#include "platform/platform.h"
#include "platform/qt/machine/Closing.h"
#include "platform/qt/machine/OneInstance.h"
#include "platform/qt/windows/Loop.h"
#include "platform/qt/windows/Reports.h"
#include "platform/qt/windows/Session.h"

namespace qt {

namespace {

struct Variable {
  const char* Name;
  QByteArray Value;  ///< A null one takes the variable away.
};

/// What the toolkit is told while it comes up, whatever the desktop says. The program is fitted to
/// the pixels of the screen as it is: a scale factor or a font resolution on top would only round
/// type and lines to coarser steps, or make them too large for their places. And where X11 is there
/// beside Wayland it is taken, as Wayland neither tells nor takes the places of windows.
std::vector<Variable> fncForToolkit() {
  std::vector<Variable> rows{{"QT_ENABLE_HIGHDPI_SCALING", "0"},
                             {"QT_SCALE_FACTOR", {}},
                             {"QT_SCREEN_SCALE_FACTORS", {}},
                             {"QT_FONT_DPI", "96"}};
#if defined(Q_OS_UNIX) && !defined(Q_OS_MACOS)
  if (qEnvironmentVariableIsSet("DISPLAY") && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
    rows.push_back({"QT_QPA_PLATFORM", "xcb;wayland"});
  }
#endif
  return rows;
}

/// Puts variables into the environment and returns what stood there.
std::vector<Variable> fncExchange(const std::vector<Variable>& rows) {
  std::vector<Variable> before;
  for (const auto& [name, value] : rows) {
    before.push_back({name, qgetenv(name)});
    value.isNull() ? qunsetenv(name) : qputenv(name, value);
  }
  return before;
}

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
  const std::vector<qt::Variable> before = qt::fncExchange(qt::fncForToolkit());
  QApplication application(argc, argv);
  qt::fncExchange(before);  // Programs started from here find the desktop's own.
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
