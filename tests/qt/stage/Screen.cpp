#include <QApplication>
#include <cstdio>

#include "judges/Adapter.h"
#include "platform/qt/windows/Session.h"
#include "tests/qt/stage/Clock.h"

// The real widgets on an offscreen display, the machine on paper, and the clock in our hands.

int user::Play(int argc, char** argv, const std::function<int()>& run) {
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& text) {
    // The offscreen display says at each window what it cannot do.
    if (!text.startsWith(QLatin1String("This plugin does not support"))) {
      std::fprintf(stderr, "%s\n", qPrintable(text));
    }
  });
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" VELMORA_STAGE_SCREEN);
  QCoreApplication::setEventDispatcher(stage::fncEventLoop());
  QApplication::setApplicationName(QStringLiteral("Velmora"));
  QApplication application(argc, argv);
  QApplication::setCursorFlashTime(0);
  qt::prcBringUpPlatform();
  const int result = run();
  qt::prcTakeDownPlatform();
  return result;
}
