#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <iterator>
#include <random>
#include <tuple>

#include "judges/Invariants.h"
#include "platform/headless/Headless.h"
#include "shell/Program.h"
#include "tests/Game.h"

// What can happen to a settings file and its folder: the program starts and plays, and what it
// cannot keep it leaves alone.

namespace {

class Faults : public Game {
 protected:
  /// Starts on whatever stands there, passes the start screen if it comes, bets and wins a hand.
  /// Where the file can be kept the books must balance.
  void StartsAndPlays(bool blnKept) {
    prcFreshGame(Folder());
    Start();
    told_ = LastBox();
    if (!MDIForm1.Form.Visible) {
      prcShowFrame();
      headless::Wait(10);
      ShowNoCardsSlowly();
    }
    ASSERT_FALSE(headless::Ended()) << LastBox();
    if (blnKept) {
      prcStartWatch();
    }
    Shuffle();
    headless::Type(BaccTable.txtUnitValue, "10");
    EXPECT_EQ(Bet(betPlayer, 0, "1"), dblPlayerTotal[0] >= 10);
    DealResult("P");
    EXPECT_EQ(strResult[0], "P");
    EXPECT_FALSE(blnBusy);
    EXPECT_EQ(blnKept ? fncLook() : "", "");
  }

  const std::string good_ =
      "[frmBaccTable]\r\nHeight= 5400\r\nWidth= 10770\r\n[Misc]\r\nUnitValue= 10\r\nNerodik=1\r\n"
      "[Player1Stats]\r\nStake= 1000\r\nWin= 25\r\nTurnover= 90\r\n"
      "[Shoe Size]\r\nDecks= 1\r\n[ShoesHandsPlayed]\r\nHands= 7\r\n";
  std::string told_;  ///< What the player was told at the start, empty where it was nothing.
};

TEST_F(Faults, RandomDamageNeverStopsTheGame) {
  std::mt19937 random(1);
  for (int round = 0; round < 100; ++round) {
    SCOPED_TRACE("damage " + std::to_string(round));
    std::string damaged = good_;
    for (int byte = 0; byte < 6; ++byte) {
      damaged[random() % damaged.size()] = static_cast<char>(random());
    }
    WriteFile(damaged.substr(0, random() % 2 == 0 ? damaged.size() : random() % damaged.size()));
    StartsAndPlays(true);
    ASSERT_FALSE(HasFailure());
  }
}

TEST_F(Faults, AFileThatGoesOrTurnsIntoAFolderStopsNothing) {
  WriteFile(good_);
  StartsAndPlays(true);
  std::filesystem::remove(strIniFile);
  DealResult("P");
  EXPECT_EQ(Stored("Player1Stats", "Win"), "45") << "written anew from what the game knows";
  std::filesystem::remove(strIniFile);
  std::filesystem::create_directory(strIniFile);
  Deal();
  EXPECT_EQ(intHandsDealt[0], 3);
  StartsAndPlays(false);
  EXPECT_TRUE(told_.ends_with("\r\n" + strIniFile)) << told_;
}

/// The file, the room a file may have in bytes, the rights to folder and file, and whether the
/// player is told. Without contents there is no file. The superuser may write anywhere.
TEST_F(Faults, WhereNothingCanBeKeptItIsPlayedAllTheSame) {
  using enum std::filesystem::perms;
  constexpr rlim_t plenty = 1 << 20;
  constexpr std::filesystem::perms readable{0555};
  const std::string large = good_ + "[rest]\r\nkey=" + std::string(8000, 'x') + "\r\n";
  const std::tuple<const char*, std::string, rlim_t, std::filesystem::perms, std::filesystem::perms,
                   bool>
      rows[] = {
          {"full disk", large, 4096, all, all, false},
          {"full disk, small file", good_, 100, all, all, false},
          {"full disk, no file", "", 0, all, all, true},
          {"read-only folder", good_, plenty, readable, all, false},
          {"read-only folder, no file", "", plenty, readable, all, true},
          {"a file that may not be read", good_, plenty, all, none, true},
      };
  for (const auto& [what, contents, room, folder, file, told] : rows) {
    SCOPED_TRACE(what);
    std::filesystem::remove(strIniFile);
    if (!contents.empty()) {
      WriteFile(contents);
      std::filesystem::permissions(strIniFile, file);
    }
    std::filesystem::permissions(Folder(), folder);
    const pid_t child = fork();
    if (child == 0) {
      constexpr uid_t nobody = 65534;
      const rlimit most{room, room};
      std::signal(SIGXFSZ, SIG_IGN);
      EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &most), 0);
      EXPECT_TRUE(getuid() != 0 || setuid(nobody) == 0);
      StartsAndPlays(false);
      EXPECT_EQ(told_.ends_with("\r\n" + strIniFile), told) << told_;
      EXPECT_EQ(told_.empty(), !told) << told_;
      EXPECT_EQ(dblPlayerWin[0], told ? 10 : 35);
      _exit(HasFailure() ? 1 : 0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    std::filesystem::permissions(Folder(), all);
    EXPECT_EQ(status, 0);
    const auto files = std::distance(std::filesystem::directory_iterator(Folder()), {});
    EXPECT_EQ(files, contents.empty() ? 0 : 1) << "nothing half-written is left";
    if (files == 1) {
      std::filesystem::permissions(strIniFile, all);
    }
    EXPECT_EQ(Contents(), contents);
  }
}

}  // namespace
