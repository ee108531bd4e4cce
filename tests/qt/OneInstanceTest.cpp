#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include "judges/Adapter.h"
#include "platform/platform.h"
#include "platform/qt/machine/OneInstance.h"
#include "platform/qt/windows/Screen.h"

// The one-instance rule between real processes. The second one is this program again: main.cpp
// makes it ask for the lock, tell by one letter whether it has got it, and keep it until it is
// killed.

namespace {

class OneInstance : public testing::Test {
 protected:
  void SetUp() override {
    user::Reset();
    ASSERT_TRUE(folder_.isValid());
    before_ = qgetenv("XDG_DATA_HOME");
    prcBeUser("anna");
  }
  void TearDown() override {
    qt::prcGiveUpLock();
    before_.isNull() ? qunsetenv("XDG_DATA_HOME") : qputenv("XDG_DATA_HOME", before_);
    user::Reset();
  }

  /// Another user has another folder of their own.
  void prcBeUser(const char* name) { qputenv("XDG_DATA_HOME", folder_.filePath(name).toUtf8()); }

  /// Starts a second process. Returns what it tells: "o" where another instance runs, "f" where it
  /// is the first.
  static std::string fncStart(QProcess& second) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("VELMORA_SECOND_INSTANCE"), QStringLiteral("1"));
    second.setProcessEnvironment(environment);
    second.start(QCoreApplication::applicationFilePath(), {});
    const bool blnTold = QTest::qWaitFor([&] { return second.bytesAvailable() > 0; }, 20000);
    return blnTold ? second.read(1).toStdString() : "nothing";
  }

 private:
  QTemporaryDir folder_;
  QByteArray before_;
};

TEST_F(OneInstance, TheSecondBringsTheFirstToTheFront) {
  Window start;
  start.Name = "Start";
  start.Kind = WindowKind::Start;
  start.FixedInner = true;
  start.ScaleWidth = start.ScaleHeight = 3000;
  prcShow(start);
  user::Settle();
  ASSERT_FALSE(platform::ActivateOtherInstance());
  QWidget& window = *qt::fncViewOf(start)->Shell;
  window.showMinimized();
  QProcess second;
  EXPECT_EQ(fncStart(second), "o");
  EXPECT_TRUE(QTest::qWaitFor([&] { return !window.isMinimized(); }, 5000));
  second.kill();
  second.waitForFinished();
  prcForgetWindow(start);
}

TEST_F(OneInstance, ACrashLeavesNoLockAndUsersDoNotShareOne) {
  QProcess first;
  EXPECT_EQ(fncStart(first), "f");
  QProcess second;
  EXPECT_EQ(fncStart(second), "o");
  second.kill();
  second.waitForFinished();
  prcBeUser("berta");
  QProcess other;
  EXPECT_EQ(fncStart(other), "f");
  other.kill();
  other.waitForFinished();
  prcBeUser("anna");
  first.kill();
  first.waitForFinished();
  QProcess next;
  EXPECT_EQ(fncStart(next), "f") << "the killed process must not hold the lock";
  next.kill();
  next.waitForFinished();
}

}  // namespace
