#include <gtest/gtest.h>

#include <QApplication>

#include "platform/qt/windows/Session.h"

// The tests of the real machine bring up one application object for all of them.

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication::setApplicationName(QStringLiteral("Velmora"));
  const QApplication application(argc, argv);
  qt::prcBringUpPlatform();
  const int result = RUN_ALL_TESTS();
  qt::prcTakeDownPlatform();
  return result;
}
