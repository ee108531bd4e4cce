#include <filesystem>
#include <numeric>
#include <utility>

#include "shell/SettingsStore.h"
#include "tests/Game.h"

namespace {

using SettingsStore = Game;

/// Every byte, also NUL and what ends a line.
std::string fncJunk() {
  std::string junk(4096, 'x');
  std::iota(junk.begin(), junk.end(), '\0');
  return junk;
}

TEST_F(SettingsStore, ReadsWhatADamagedFileStillHolds) {
  const std::pair<std::string, const char*> rows[] = {
      {"[File]\r\nLearn=False\r\n", "False"},
      {"[Deal]\nDelay=True\n[File]\nLearn=False", "False"},
      {"[File]\rLearn=False\r", "False"},
      {"  [ fILE ]\r\n \tlEARN \t = \t False \t\r\n", "False"},
      {"[File\r\nwhat is this\r\n;Learn=True\r\nLearn=False\r\n", "False"},
      {"[File]\r\nLearn=a=b\r\nLearn=2\r\n", "a=b"},
      {"[File]\r\nLearn=\r\n", ""},
      {"[File]\r\n[Deal]\r\n[File]\r\nLearn=1\r\n", "No"},
      {fncJunk() + "\r\n[File]\r\nLearn=False\r\n", "False"},
      {fncJunk(), "No"},
      {"", "No"},
      {"Learn=1\r\n[Files]\r\nLearn=1\r\n[File]\r\nLearner=1\r\n[Deal]\r\nLearn=1\r\n", "No"},
      {"[long]\r\nkey=" + std::string(1 << 20, 'x') + "\r\n[File]\r\nLearn=False", "False"},
  };
  for (const auto& [contents, value] : rows) {
    WriteFile(contents);
    EXPECT_EQ(fncGetPrivateProfileString("File", "Learn"), value) << contents.substr(0, 80);
  }
  WriteFile("[File]\r\nLearn=" + std::string(120, 'x'));
  EXPECT_EQ(fncGetPrivateProfileString("File", "Learn"), std::string(99, 'x'));
}

TEST_F(SettingsStore, AWriteLeavesEveryOtherByteAlone) {
  const std::pair<std::string, std::string> rows[] = {
      {"", "[Deal]\r\nDelay=True\r\n"},
      {"; mine\r\n[Deal]\r\nx\r\ndelay = False\r\nAnimation=1\r\n",
       "; mine\r\n[Deal]\r\nx\r\nDelay=True\r\nAnimation=1\r\n"},
      {"[Deal]\r\nAnimation=1\r\n\r\n[File]\r\nLearn=1\r\n",
       "[Deal]\r\nAnimation=1\r\nDelay=True\r\n\r\n[File]\r\nLearn=1\r\n"},
      {"[Deal]\nAnimation=1", "[Deal]\nAnimation=1\nDelay=True\n"},
      {"[File]\nLearn=1", "[File]\nLearn=1\n[Deal]\nDelay=True\n"},
      {fncJunk() + "\n[Deal]\nDelay=1\nb=2\n", fncJunk() + "\n[Deal]\nDelay=True\nb=2\n"},
  };
  for (const auto& [before, after] : rows) {
    WriteFile(before);
    prcWritePrivateProfileString("Deal", "Delay", "True");
    EXPECT_EQ(Contents(), after);
  }
}

TEST_F(SettingsStore, AWriteThatFailsLosesNothing) {
  const std::string before = "[Deal]\r\nDelay=False\r\n";
  WriteFile(before);
  std::filesystem::create_directory(strIniFile + ".new");  // Where it would be written.
  prcWriteSetting("Player1Stats", "Stake", 500);
  EXPECT_EQ(Contents(), before);
  EXPECT_EQ(fncGetPrivateProfileString("PLAYER1STATS", "stake"), "500") << "it holds for this run";
  std::filesystem::remove(strIniFile + ".new");
  prcWritePrivateProfileString("Deal", "Delay", "True");
  EXPECT_EQ(Stored("Deal", "Delay"), "True");
  EXPECT_EQ(Stored("Player1Stats", "Stake"), "500") << "written as soon as the file lets";
}

}  // namespace
