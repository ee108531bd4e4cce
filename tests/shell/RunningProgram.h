#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "platform/ProfileFile.h"
#include "platform/headless/Headless.h"
#include "shell/MDIForm1.h"
#include "shell/Program.h"
#include "shell/SettingsStore.h"
#include "shell/StartScreen.h"
#include "table/TableState.h"

/// The whole program on the headless platform, with a settings file of the test's own.
class RunningProgram : public testing::Test {
 protected:
  void SetUp() override {
    const auto* test = testing::UnitTest::GetInstance()->current_test_info();
    strFolder = testing::TempDir() + "velmora." + test->test_suite_name() + "." + test->name();
    prcStopped();
  }
  void TearDown() override { std::filesystem::remove_all(strFolder); }

  /// An empty folder and a platform that has just come up.
  void prcStopped() {
    std::filesystem::remove_all(strFolder);
    std::filesystem::create_directories(strFolder);
    headless::Reset(strFolder);
    strIniFile = strFolder + "/VELMORA.INI";
  }

  /// Starts the program up to its start screen, on a settings file of these contents.
  void prcStart(const std::string& contents) {
    prcStopped();
    prcWriteFile(contents);
    platform::Run(0, nullptr, fncStartProgram);
  }

  /// The same, on to the table; the frame's one tick has passed.
  void prcPlay(const std::string& contents = "") {
    prcStart(contents);
    headless::Key(Plauk.Form, "s");
    headless::Wait(5);
  }

  void prcWriteFile(const std::string& contents) const {
    std::ofstream(strIniFile, std::ios::binary) << contents;
  }

  std::string fncFile() const {
    std::ifstream file(strIniFile, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  static std::string fncKey(const std::string& section, const std::string& key) {
    return fncReadProfile(strIniFile, section, key, "(none)");
  }

  /// A shoe is in play from its shuffle to its end.
  static void prcShoeInPlay() {
    blnShuffled[0] = true;
    blnEndOfShoe[0] = false;
  }

  std::string strFolder;
};
