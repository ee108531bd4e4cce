#pragma once

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <fstream>

#include "platform/platform.h"
#include "platform/qt/machine/OneInstance.h"
#include "shell/Program.h"
#include "shell/SettingsStore.h"
#include "tests/conformance/Adapter.h"

/// The whole program on real widgets, started on a settings file of its own: the start screen
/// waits.
class Evening : public testing::Test {
 protected:
  void SetUp() override {
    user::Reset();
    before_ = qgetenv("XDG_DATA_HOME");
    qputenv("XDG_DATA_HOME", folder_.path().toUtf8());
    QFile::remove(fncStartSettings());
    ASSERT_TRUE(fncStartProgram());
    strIniFile = folder_.filePath("VELMORA.INI").toStdString();
    std::ofstream(strIniFile)
        << "[File]\nLearn=True\n[Card Options]\nCard Face Up=False\n[Deal]\nDelay=False\n"
           "Animation=False\n[Shoe Size]\nDecks=4\n[frmBaccTable]\nHeight=5400\nWidth=10770\n"
           "[frmStatistics]\nTop=600\nLeft=600\n[Misc]\nUnitValue=10\n[Player1Stats]\nStake=1000\n"
           "[Player2Stats]\nStake=1000\n";
    user::Settle();
  }
  void TearDown() override {
    user::Reset();
    QFile::remove(fncStartSettings());
    qt::prcGiveUpLock();
    before_.isNull() ? qunsetenv("XDG_DATA_HOME") : qputenv("XDG_DATA_HOME", before_);
  }

 private:
  static QString fncStartSettings() {
    return QString::fromStdString(platform::DataFolder() + "/VELMORA.INI");
  }

  QTemporaryDir folder_;
  QByteArray before_;
};
