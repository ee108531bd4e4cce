#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include "platform/platform.h"
#include "platform/qt/machine/OneInstance.h"
#include "platform/qt/windows/Screen.h"
#include "platform/qt/windows/Sync.h"

// The one-instance rule between real processes; the second one is this program again.

namespace {

/// Whose program it is: another user has another folder of their own.
class OneInstance : public testing::Test {
 protected:
  void SetUp() override { prcBeUser("anna"); }
  void TearDown() override {
    qt::prcGiveUpLock();
    qunsetenv("XDG_DATA_HOME");
  }

  void prcBeUser(const char* name) { qputenv("XDG_DATA_HOME", folder_.filePath(name).toUtf8()); }

  /// Starts another process, which is killed with its object. Returns what it tells: "o" where
  /// another instance runs, "f" where it is the first.
  static std::string fncStart(QProcess& process) {
    process.start(QCoreApplication::applicationFilePath(), {QStringLiteral("second")});
    const bool blnTold = QTest::qWaitFor([&] { return process.bytesAvailable() > 0; }, 20000);
    return blnTold ? process.read(1).toStdString() : "nothing";
  }

 private:
  QTemporaryDir folder_;
};

TEST_F(OneInstance, TheSecondBringsTheFirstToTheFront) {
  Window start;
  start.Kind = WindowKind::Start;
  start.ScaleWidth = start.ScaleHeight = 3000;
  prcShow(start);
  qt::prcSyncAll();
  ASSERT_FALSE(platform::ActivateOtherInstance());
  QWidget& window = *qt::fncViewOf(start)->Shell;
  window.showMinimized();
  QProcess second;
  EXPECT_EQ(fncStart(second), "o");
  EXPECT_TRUE(QTest::qWaitFor([&] { return !window.isMinimized(); }, 5000));
  prcForgetWindow(start);
  qt::prcSyncAll();
}

TEST_F(OneInstance, ACrashLeavesNoLockAndUsersDoNotShareOne) {
  QProcess first, second, other, next;
  EXPECT_EQ(fncStart(first), "f");
  EXPECT_EQ(fncStart(second), "o");
  prcBeUser("berta");
  EXPECT_EQ(fncStart(other), "f");
  prcBeUser("anna");
  first.kill();
  first.waitForFinished();
  EXPECT_EQ(fncStart(next), "f") << "the killed process must not hold the lock";
}

}  // namespace
