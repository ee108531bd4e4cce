#include <gtest/gtest.h>

#include <QApplication>
#include <cstdio>

#include "platform/platform.h"
#include "platform/qt/windows/Session.h"

// The window tests bring up one application object for all of them; each test resets what it shows.

namespace {

/// The part of the second process in OneInstanceTest.cpp.
int fncActSecondInstance() {
  std::putchar(platform::ActivateOtherInstance() ? 'o' : 'f');
  std::fflush(stdout);
  return QApplication::exec();
}

}  // namespace

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
  if (qEnvironmentVariableIsSet("VELMORA_SECOND_INSTANCE")) {
    return fncActSecondInstance();
  }
  qt::prcBringUpPlatform();
  const int result = RUN_ALL_TESTS();
  qt::prcTakeDownPlatform();
  return result;
}
