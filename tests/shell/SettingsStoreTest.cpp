#include <filesystem>

#include "shell/SettingsStore.h"
#include "tests/Game.h"

namespace {

using SettingsStore = Game;

std::string fncJunk() {
  std::string junk;
  for (int i = 0; i < 4096; ++i) {
    junk += static_cast<char>((i * 7919) >> 3);
  }
  return junk;
}

TEST_F(SettingsStore, ReadsWhatADamagedFileStillHolds) {
  const struct {
    const char* Case;
    std::string Contents, Value;
  } rows[] = {
      {"plain", "[File]\r\nLearn=False\r\n", "False"},
      {"line feeds alone", "[Deal]\nDelay=True\n[File]\nLearn=False\n", "False"},
      {"carriage returns alone", "[File]\rLearn=False\r", "False"},
      {"no end of the last line", "[File]\r\nLearn=False", "False"},
      {"other case", "[fILE]\r\nlEARN=False\r\n", "False"},
      {"blanks and tabs around all", "  [ File ]\r\n \tLearn \t = \t False \t\r\n", "False"},
      {"line without equals sign", "[File]\r\nwhat is this\r\nLearn=False\r\n", "False"},
      {"section without its bracket", "[File\r\nLearn=False\r\n", "False"},
      {"equals sign in the value", "[File]\r\nLearn=a=b\r\n", "a=b"},
      {"empty value", "[File]\r\nLearn=\r\n", ""},
      {"first of two", "[File]\r\nLearn=1\r\nLearn=2\r\n", "1"},
      {"first of two sections", "[File]\r\n[Deal]\r\n[File]\r\nLearn=1\r\n", "No"},
      {"comment", "[File]\r\n;Learn=True\r\nLearn=False\r\n", "False"},
      {"binary in front", fncJunk() + "\r\n[File]\r\nLearn=False\r\n", "False"},
      {"binary alone", fncJunk(), "No"},
      {"nothing", "", "No"},
      {"before any section", "Learn=False\r\n[File]\r\n", "No"},
      {"another section", "[Files]\r\nLearn=False\r\n[Deal]\r\nLearn=False\r\n", "No"},
      {"longer key", "[File]\r\nLearner=False\r\n", "No"},
      {"99 characters come back", "[File]\r\nLearn=" + std::string(120, 'x'), std::string(99, 'x')},
  };
  for (const auto& row : rows) {
    WriteFile(row.Contents);
    EXPECT_EQ(fncGetPrivateProfileString("File", "Learn"), row.Value) << row.Case;
  }
}

TEST_F(SettingsStore, AWriteLeavesEveryOtherByteAlone) {
  const struct {
    const char* Case;
    std::string Before, After;
  } rows[] = {
      {"new file", "", "[Deal]\r\nDelay=True\r\n"},
      {"replaced in place", "; mine\r\n[Deal]\r\nx\r\ndelay = False\r\nAnimation=1\r\n",
       "; mine\r\n[Deal]\r\nx\r\nDelay=True\r\nAnimation=1\r\n"},
      {"added to its section", "[Deal]\r\nAnimation=1\r\n\r\n[File]\r\nLearn=1\r\n",
       "[Deal]\r\nAnimation=1\r\nDelay=True\r\n\r\n[File]\r\nLearn=1\r\n"},
      {"added behind an open line", "[Deal]\nAnimation=1", "[Deal]\nAnimation=1\nDelay=True\n"},
      {"new section", "[File]\nLearn=1", "[File]\nLearn=1\n[Deal]\nDelay=True\n"},
      {"line feeds stay", "[Deal]\nDelay=1\nb=2\n", "[Deal]\nDelay=True\nb=2\n"},
      {"binary stays", fncJunk() + "\n[Deal]\nDelay=1\n", fncJunk() + "\n[Deal]\nDelay=True\n"},
  };
  for (const auto& row : rows) {
    WriteFile(row.Before);
    prcWritePrivateProfileString("Deal", "Delay", "True");
    EXPECT_EQ(Contents(), row.After) << row.Case;
  }
}

TEST_F(SettingsStore, AWriteThatFailsLosesNothing) {
  const std::string before = "[Deal]\r\nDelay=False\r\n";
  const std::string beside = strIniFile + ".new";
  WriteFile(before);

  std::filesystem::create_directory(beside);  // Nothing can be written beside the file.
  prcWritePrivateProfileString("Deal", "Delay", "True");
  prcWriteSetting("Player1Stats", "Stake", 500);
  EXPECT_EQ(Contents(), before);
  EXPECT_EQ(fncGetPrivateProfileString("DEAL", "delay"), "True") << "it holds for this run";
  std::filesystem::remove(beside);

  if (std::filesystem::exists("/dev/full")) {
    std::filesystem::create_symlink("/dev/full", beside);  // The disk is full.
    prcWritePrivateProfileString("Deal", "Delay", "True");
    EXPECT_EQ(Contents(), before);
  }

  prcWritePrivateProfileString("Deal", "Delay", "True");
  EXPECT_EQ(Stored("Deal", "Delay"), "True");
  EXPECT_EQ(Stored("Player1Stats", "Stake"), "500") << "written as soon as the file lets";
}

}  // namespace
