#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cmath>
#include <csignal>
#include <filesystem>
#include <functional>
#include <iterator>
#include <random>

#include "betting/TableLimits.h"
#include "platform/headless/Headless.h"
#include "shell/Program.h"
#include "tests/Game.h"

// What can happen to a settings file and its folder: the program starts and plays, and what it
// cannot keep it leaves alone.

namespace {

class Faults : public Game {
 protected:
  std::string File() const { return Folder() + "/VELMORA.INI"; }

  /// Starts on whatever stands there, passes the start screen if it comes, bets and wins a hand.
  void StartsAndPlays(const std::string& what) {
    prcFreshGame(Folder());
    Start();
    told_ = LastBox();
    if (!MDIForm1.Form.Visible) {
      prcShowFrame();
      headless::Wait(10);
      ShowNoCardsSlowly();
    }
    ASSERT_FALSE(headless::Ended()) << what << ": " << LastBox();
    Shuffle();
    ASSERT_TRUE(blnShuffled[0]) << what;
    BetsAndWins(what);
  }

  /// From now on nothing that is written comes to stand in the file.
  void NothingIsKept() { blnKept_ = false; }

  /// What the player was told at the start, empty where it was nothing.
  const std::string& Told() const { return told_; }

  std::string Good() const {
    return "[frmBaccTable]\r\nHeight= 5400\r\nWidth= 10770\r\n[Misc]\r\nUnitValue= 10\r\n"
           "Nerodik=1\r\n[Player1Stats]\r\nStake= 1000\r\nWin= 25\r\nTurnover= 90\r\n"
           "[Shoe Size]\r\nDecks= 1\r\n[ShoesHandsPlayed]\r\nHands= 7\r\n";
  }

 private:
  /// The first seat bets a chip on the Player, and wins where the bet was taken: the money adds up.
  void BetsAndWins(const std::string& what) {
    const double stake = dblPlayerTotal[0] - dblPlayerWin[0];
    const double win = dblPlayerWin[0];
    const double hands = fncGetSetting("ShoesHandsPlayed", "Hands");
    EXPECT_EQ(stake, std::nearbyint(fncGetSetting("Player1Stats", "Stake"))) << what;
    const double bet = BetsAChip(what) ? fncUnitValue() : 0;
    DealResult("P");
    EXPECT_EQ(strResult[0], "P") << what;
    EXPECT_FALSE(blnBusy) << what;
    EXPECT_EQ(fncBet(betPlayer, 0).Money, bet) << what;
    EXPECT_DOUBLE_EQ(dblPlayerWin[0], win + bet) << what;
    EXPECT_DOUBLE_EQ(dblPlayerTotal[0] + bet, stake + dblPlayerWin[0]) << what;
    if (blnKept_) {
      EXPECT_EQ(fncGetSetting("Player1Stats", "Win"), dblPlayerWin[0]) << what;
      EXPECT_EQ(fncGetSetting("ShoesHandsPlayed", "Hands"), std::nearbyint(hands) + 1) << what;
    }
  }

  /// Bets as a player does who heeds what the program says of the chip value. Returns whether the
  /// bet was taken; without money it must not be, and the player is told.
  bool BetsAChip(const std::string& what) {
    if (!fncUnitValueStands()) {
      EXPECT_FALSE(Bet(betPlayer, 0, "1")) << what;
      EXPECT_TRUE(LastBox().starts_with("Must be ")) << what << ": " << LastBox();
      EXPECT_TRUE(headless::Type(BaccTable.txtUnitValue, "10")) << what;
      headless::ForgetBoxes();
    }
    const bool blnMoney = dblPlayerTotal[0] >= fncUnitValue();
    EXPECT_EQ(Bet(betPlayer, 0, "1"), blnMoney) << what;
    EXPECT_TRUE(LastBox().starts_with(blnMoney ? "" : "Sorry, not enough money")) << what;
    EXPECT_EQ(LastBox().empty(), blnMoney) << what << ": " << LastBox();
    return blnMoney;
  }

  std::string told_;
  bool blnKept_ = true;
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
    EXPECT_EQ(Told(), "") << what;
    EXPECT_EQ(fncGetSetting("ShoesHandsPlayed", "Hands"), contents.empty() ? 1 : 8) << what;
    EXPECT_EQ(fncGetSetting("Player1Stats", "Win"), contents.empty() ? 0 : 35) << what;
    EXPECT_TRUE(Contents().starts_with(contents.substr(0, 6))) << what;
    EXPECT_GE(Contents().size(), contents.size()) << what;
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
  DealResult("P");
  EXPECT_EQ(Stored("Player1Stats", "Win"), "45") << "written anew from what the game knows";
  StartsAndPlays("what was written anew");
  EXPECT_EQ(Told(), "");
  EXPECT_EQ(dblPlayerWin[0], 55);
  EXPECT_EQ(dblPlayerTotal[0], 1000 + 55 - 10) << "the stake of a first run";
  std::filesystem::remove(File());
  std::filesystem::create_directory(File());
  Deal();
  EXPECT_EQ(intHandsDealt[0], 2);
  EXPECT_TRUE(std::filesystem::is_directory(File()));
  NothingIsKept();
  StartsAndPlays("with a folder in its place");
  EXPECT_TRUE(Told().ends_with("\r\n" + File())) << Told();
}

/// What stops the program from keeping its settings, and whether the player is told.
struct Hindrance {
  const char* What;
  std::string Contents;  ///< Empty: there is no file.
  rlim_t Room;           ///< Bytes that a file may have.
  unsigned FolderMode, FileMode;
  bool blnTold;
};

/// Puts this process under a hindrance. The superuser may write anywhere.
void prcHinder(const Hindrance& row) {
  constexpr uid_t nobody = 65534;
  std::signal(SIGXFSZ, SIG_IGN);
  const rlimit most{row.Room, row.Room};
  if (setrlimit(RLIMIT_FSIZE, &most) != 0 || (getuid() == 0 && setuid(nobody) != 0)) {
    _exit(2);
  }
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

TEST_F(Faults, WhereNothingCanBeKeptItIsPlayedAllTheSame) {
  constexpr rlim_t plenty = 1 << 20;
  const std::string large = Good() + "[rest]\r\nkey=" + std::string(8000, 'x') + "\r\n";
  const Hindrance rows[] = {
      {"full disk", large, 4096, 0777, 0666, false},
      {"full disk, no file", "", 0, 0777, 0666, true},
      {"read-only folder", Good(), plenty, 0555, 0666, false},
      {"read-only folder, no file", "", plenty, 0555, 0666, true},
      {"a file that may not be read", Good(), plenty, 0777, 0000, true},
  };
  NothingIsKept();
  for (const Hindrance& row : rows) {
    std::filesystem::remove(File());
    if (!row.Contents.empty()) {
      WriteFile(row.Contents);
      std::filesystem::permissions(File(), std::filesystem::perms{row.FileMode});
    }
    std::filesystem::permissions(Folder(), std::filesystem::perms{row.FolderMode});
    const int status = fncInChild([&] {
      prcHinder(row);
      StartsAndPlays(row.What);
      EXPECT_EQ(Told().ends_with("\r\n" + File()), row.blnTold) << row.What << ": " << Told();
      EXPECT_EQ(Told().empty(), !row.blnTold) << row.What << ": " << Told();
      EXPECT_EQ(fncBet(betPlayer, 0).Money, 10) << row.What;
      EXPECT_EQ(dblPlayerWin[0], row.blnTold ? 10 : 35) << row.What;
    });
    std::filesystem::permissions(Folder(), std::filesystem::perms{0755});
    EXPECT_EQ(status, 0) << row.What;
    const auto files = std::distance(std::filesystem::directory_iterator(Folder()), {});
    EXPECT_EQ(files, row.Contents.empty() ? 0 : 1) << row.What << ": nothing half-written is left";
    if (files == 1) {
      std::filesystem::permissions(File(), std::filesystem::perms{0666});
      EXPECT_EQ(Contents(), row.Contents) << row.What;
    }
  }
}

}  // namespace
