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

struct Variable {
  const char* Name;
  const char* Value;     ///< None takes the variable away.
  bool IfUnset = false;  ///< What the user has set stays.
};

/// What the toolkit is told while it comes up, whatever the desktop says. The program is fitted to
/// the pixels of the screen as it is: a scale factor or a font resolution on top would only round
/// type and lines to coarser steps, or make them too large for their places. And only X11 has the
/// places of windows, which Wayland alone neither tells nor takes.
constexpr std::array vrbRows {
  Variable{"QT_ENABLE_HIGHDPI_SCALING", "0"}, Variable{"QT_SCALE_FACTOR", nullptr},
      Variable{"QT_SCREEN_SCALE_FACTORS", nullptr}, Variable{"QT_FONT_DPI", "96"},
#if defined(Q_OS_UNIX) && !defined(Q_OS_MACOS)
      Variable{"QT_QPA_PLATFORM", "xcb;wayland", true},
#endif
};

/// While it lives the variables above hold. Programs started from here find their own again.
class ToolkitVariables {
 public:
  ToolkitVariables() {
    for (std::size_t i = 0; i < vrbRows.size(); ++i) {
      bytKept.at(i) = qgetenv(vrbRows.at(i).Name);
      if (!vrbRows.at(i).IfUnset || bytKept.at(i).isNull()) {
        prcPut(vrbRows.at(i).Name, vrbRows.at(i).Value);
      }
    }
  }
  ~ToolkitVariables() {
    for (std::size_t i = 0; i < vrbRows.size(); ++i) {
      prcPut(vrbRows.at(i).Name, bytKept.at(i).isNull() ? nullptr : bytKept.at(i).constData());
    }
  }
  Q_DISABLE_COPY_MOVE(ToolkitVariables)

 private:
  static void prcPut(const char* name, const char* value) {
    value != nullptr ? qputenv(name, value) : qunsetenv(name);
  }
  std::array<QByteArray, vrbRows.size()> bytKept;
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
  std::optional<qt::ToolkitVariables> variables(std::in_place);
  QApplication application(argc, argv);
  variables.reset();
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
