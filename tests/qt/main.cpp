#include <gtest/gtest.h>

#include <QApplication>
#include <cstdio>
#include <string_view>

#include "platform/platform.h"
#include "platform/qt/windows/Session.h"

// The tests of the real machine bring up one application object for all of them. With the argument
// "second" this is the second process in OneInstanceTest.cpp: it asks for the lock, tells by one
// letter whether another instance runs, and keeps it until it is killed.

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (testing::GTEST_FLAG(list_tests)) {
    return RUN_ALL_TESTS();
  }
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
  QApplication::setApplicationName(QStringLiteral("Velmora"));
  QApplication application(argc, argv);
  if (argc > 1 && std::string_view(argv[1]) == "second") {
    std::putchar(platform::ActivateOtherInstance() ? 'o' : 'f');
    std::fflush(stdout);
    return QApplication::exec();
  }
  qt::prcBringUpPlatform();
  const int result = RUN_ALL_TESTS();
  qt::prcTakeDownPlatform();
  return result;
}
