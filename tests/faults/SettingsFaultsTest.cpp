#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <functional>
#include <iterator>
#include <random>

#include "platform/ProfileFile.h"
#include "shell/Program.h"
#include "tests/Game.h"

// What can happen to a settings file and its folder: the program starts and plays, and what it
// cannot keep it leaves alone.

namespace {

class Faults : public Game {
 protected:
  std::string File() const { return Folder() + "/VELMORA.INI"; }

  /// Starts on whatever stands there, passes the start screen if it comes, shuffles and deals.
  void StartsAndPlays(const std::string& what) {
    prcFreshGame(Folder());
    Start();
    if (!MDIForm1.Form.Visible) {
      prcShowFrame();
      headless::Wait(10);
      ShowNoCardsSlowly();
    }
    ASSERT_FALSE(headless::Ended()) << what;
    Shuffle();
    ASSERT_TRUE(blnShuffled[0]) << what;
    DealResult("P");
    EXPECT_EQ(strResult[0], "P") << what;
    EXPECT_FALSE(blnBusy) << what;
    for (const headless::Box& box : headless::Boxes()) {
      EXPECT_FALSE(box.Text.starts_with("Serious")) << what << ": " << box.Text;
    }
  }

  std::string Good() const {
    return "[frmBaccTable]\r\nHeight= 5400\r\nWidth= 10770\r\n[Misc]\r\nUnitValue= 10\r\n"
           "Nerodik=1\r\n[Player1Stats]\r\nStake= 1000\r\nWin= 25\r\nTurnover= 90\r\n"
           "[Shoe Size]\r\nDecks= 1\r\n[ShoesHandsPlayed]\r\nHands= 7\r\n";
  }
};

TEST_F(Faults, OddFilesAreReadAndKept) {
  std::string sections;
  for (int i = 0; i < 10'000; ++i) {
    sections += "[section " + std::to_string(i) + "]\r\nkey= 1\r\n";
  }
  std::string foreign = Good();
  std::erase(foreign, '\r');
  std::string old = Good();
  std::erase(old, '\n');
  const std::pair<const char*, std::string> rows[] = {
      {"empty", ""},
      {"10,000 sections before", sections + Good()},
      {"a line of 1 MB", "[long]\r\nkey=" + std::string(1 << 20, 'x') + "\r\n" + Good()},
      {"NUL bytes", std::string("a\0b=\0\r\n", 7) + Good() + std::string(100, '\0')},
      {"line feeds", foreign},
      {"carriage returns", old},
  };
  for (const auto& [what, contents] : rows) {
    WriteFile(contents);
    StartsAndPlays(what);
    const double hands = contents.empty() ? 1 : 8;
    EXPECT_EQ(fncGetSetting("ShoesHandsPlayed", "Hands"), hands) << what;
    if (!contents.empty()) {
      EXPECT_EQ(dblPlayerTotal[0], 1025) << what;
      EXPECT_TRUE(Contents().starts_with(contents.substr(0, 6))) << what;
      EXPECT_GE(Contents().size(), contents.size()) << what;
    }
  }
}

TEST_F(Faults, RandomDamageNeverStopsTheGame) {
  std::mt19937 random(1);
  const std::string good = Good();
  for (int round = 0; round < 100; ++round) {
    std::string damaged = good;
    for (int byte = 0; byte < 6; ++byte) {
      damaged[random() % damaged.size()] = static_cast<char>(random());
    }
    WriteFile(damaged.substr(0, random() % 2 == 0 ? damaged.size() : random() % damaged.size()));
    StartsAndPlays("damage " + std::to_string(round));
    ASSERT_FALSE(HasFailure());
  }
}

TEST_F(Faults, AFileThatGoesOrTurnsIntoAFolderStopsNothing) {
  WriteFile(Good());
  StartsAndPlays("before");
  std::filesystem::remove(File());
  Deal();
  EXPECT_EQ(fncGetSetting("Player1Stats", "Win"), 25) << "written anew from what the game knows";
  std::filesystem::remove(File());
  std::filesystem::create_directory(File());
  Deal();
  EXPECT_EQ(intHandsDealt[0], 3);
  EXPECT_TRUE(std::filesystem::is_directory(File()));
  StartsAndPlays("with a folder in its place");
}

/// Runs body in a child of its own and returns what waitpid says of it.
int fncInChild(const std::function<void()>& body) {
  const pid_t child = fork();
  if (child == 0) {
    body();
    _exit(testing::Test::HasFailure() ? 1 : 0);
  }
  int status = 0;
  waitpid(child, &status, 0);
  return status;
}

TEST_F(Faults, AFullDiskLeavesTheOldFileWhole) {
  WriteFile(Good() + "[rest]\r\nkey=" + std::string(8000, 'x') + "\r\n");
  const std::string before = Contents();
  const int status = fncInChild([this] {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit most{4096, 4096};
    setrlimit(RLIMIT_FSIZE, &most);
    StartsAndPlays("full disk");
  });
  EXPECT_EQ(status, 0);
  EXPECT_EQ(Contents(), before);
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(Folder()), {}), 1)
      << "nothing half-written is left beside it";
}

TEST_F(Faults, AFolderThatCannotBeWrittenIsPlayedIn) {
  constexpr uid_t nobody = 65534;
  WriteFile(Good());
  const std::string before = Contents();
  std::filesystem::permissions(Folder(), std::filesystem::perms{0555});
  const int status = fncInChild([this] {
    // The superuser may write anywhere.
    if (getuid() == 0 && setuid(nobody) != 0) {
      _exit(2);
    }
    StartsAndPlays("read-only folder");
  });
  std::filesystem::permissions(Folder(), std::filesystem::perms{0755});
  EXPECT_EQ(status, 0);
  EXPECT_EQ(Contents(), before);
}

}  // namespace
