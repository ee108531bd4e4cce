#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cmath>
#include <csignal>
#include <filesystem>
#include <random>
#include <regex>
#include <sstream>

#include "betting/frmStatistics.h"
#include "judges/Endurance.h"
#include "platform/headless/Headless.h"
#include "shell/Program.h"
#include "shell/SettingsStore.h"
#include "tests/Game.h"

namespace {

/// The sections and keys of a settings file. Fails where a line is neither, or where a value is
/// neither a number nor a switch.
std::string fncKeys(const std::string& contents) {
  static const std::regex shape(R"((\[.+\]|[^=]+= ?(True|False|[-+.E0-9]+))\r)");
  std::istringstream lines(contents);
  std::string keys;
  for (std::string line; std::getline(lines, line);) {
    EXPECT_TRUE(std::regex_match(line, shape)) << line;
    keys += line.substr(0, line.find('='));
  }
  return keys;
}

class Killed : public Game {
 protected:
  /// In memory, so that many hands are written before a kill.
  void SetUp() override {
    Game::SetUp();
    Setting("Player1Stats", "Stake", "10000000");
    Setting("Player2Stats", "Stake", "10000000");
    Setting("Shoe Size", "Decks", "1");
    std::filesystem::copy(Folder(), fast_);
    prcFreshGame(fast_);
  }
  void TearDown() override { std::filesystem::remove_all(fast_); }

  /// Both seats bet one chip of 10 on every hand and never run out: each hand adds 10 to each
  /// turnover.
  void PlayShoe(std::uint64_t seed) {
    Shuffle(seed);
    while (!blnEndOfShoe[0]) {
      for (int seat = 0; seat < intSeats; ++seat) {
        if (!fncBetStands(betPlayer, seat)) {
          headless::Click(BaccTable.lblPBetInc1[seat]);
        }
      }
      Deal(20);
    }
  }

  void PlayEvening(std::uint64_t seed) {
    prcFreshGame(fast_);
    Start();
    if (!MDIForm1.Form.Visible) {  // There was no file.
      prcShowFrame();
      headless::Wait(10);
      ShowNoCardsSlowly();
    }
    PlayShoe(seed);
    headless::WhileModal([] {
      headless::Answer(platform::Answer::Ok);
      headless::Click(frmStatistics.cmdResetStats);
    });
    headless::Click(MDIForm1.mnuStatistics);
    PlayShoe(seed + 1);
    headless::Click(MDIForm1.mnuExit);
  }

  /// Plays one evening after the other in a process of its own, and kills it after that long.
  void PlayAndKill(std::uint64_t seed, std::chrono::microseconds after) {
    const pid_t child = fork();
    if (child == 0) {
      for (;;) {
        PlayEvening(seed++);
      }
    }
    usleep(static_cast<useconds_t>(after.count()));
    kill(child, SIGKILL);
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_EQ(WTERMSIG(status), SIGKILL) << "the game has ended by itself";
  }

  const std::string fast_ = fncFastFolder();
};

TEST_F(Killed, TheFileIsThatOfSomeCompletedHandAtAnyInstant) {
  using Clock = std::chrono::steady_clock;
  constexpr int kills = 500;
  constexpr int withoutAFile = 10;  // One kill of so many.
  const auto start = Clock::now();
  PlayEvening(0);
  const std::chrono::duration<double, std::micro> evening = Clock::now() - start;
  const std::string before = Contents(), keys = fncKeys(before);
  std::mt19937 random(1);
  std::uniform_real_distribution<> part(0, 1.2);
  for (int round = 0; round < kills && !HasFailure(); ++round) {
    SCOPED_TRACE("kill " + std::to_string(round));
    const bool blnFirst = round % withoutAFile == 0;
    if (blnFirst) {
      std::filesystem::remove(strIniFile);
    }
    PlayAndKill(static_cast<std::uint64_t>(round),
                std::chrono::microseconds(std::lround(evening.count() * part(random))));
    const std::string found = fncKeys(Contents());
    EXPECT_TRUE(blnFirst || found == keys) << found;
    const double hands = fncGetSetting("ShoesHandsPlayed", "Hands");
    const double win = fncGetSetting("Player1Stats", "Win");
    EXPECT_EQ(fncGetSetting("Player1Stats", "Turnover"), 10 * hands);
    EXPECT_EQ(fncGetSetting("Player2Stats", "Turnover"), 10 * hands);
    EXPECT_EQ(fncGetSetting("Player2Stats", "Win"), win);
    EXPECT_LE(std::abs(win), 10 * hands);
    if (blnFirst) {
      WriteFile(before);
    }
  }
}

}  // namespace
