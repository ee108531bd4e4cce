#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cmath>
#include <csignal>
#include <regex>
#include <thread>

#include "platform/headless/Headless.h"
#include "shell/SettingsStore.h"
#include "tests/Game.h"

namespace {

class Killed : public Game {
 protected:
  void SetUp() override {
    Game::SetUp();
    Setting("Player1Stats", "Stake", "10000000");
    Setting("Player2Stats", "Stake", "10000000");
    Setting("Shoe Size", "Decks", "1");
  }

  /// Both seats bet one chip of 10 on every hand and never run out: each hand adds 10 to each
  /// turnover.
  void PlayShoe(std::uint64_t seed) {
    Shuffle(seed);
    while (!blnEndOfShoe[0]) {
      Bet(betPlayer, 0, "1");
      Bet(betPlayer, 1, "1");
      Deal(20);
    }
  }

  void PlayEvening(std::uint64_t seed) {
    prcFreshGame(Folder());
    Start();
    PlayShoe(seed);
    ResetStatistics();
    PlayShoe(seed + 1);
    headless::Click(MDIForm1.mnuExit);
  }

  /// Plays one evening after the other in a process of its own, and kills it after that long.
  void PlayAndKill(std::uint64_t seed, std::chrono::duration<double> after) {
    const pid_t child = fork();
    if (child == 0) {
      for (;;) {
        PlayEvening(seed++);
      }
    }
    std::this_thread::sleep_for(after);
    kill(child, SIGKILL);
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_EQ(WTERMSIG(status), SIGKILL) << "the game has ended by itself";
  }

  /// The sections and keys of the settings file.
  static std::string Keys() { return std::regex_replace(Contents(), std::regex("=.*"), ""); }
};

TEST_F(Killed, TheFileIsThatOfSomeCompletedHandAtAnyInstant) {
  using Clock = std::chrono::steady_clock;
  constexpr int kills = 500;
  const auto start = Clock::now();
  PlayEvening(0);
  const std::chrono::duration<double> evening = Clock::now() - start;
  const std::string keys = Keys();
  for (int round = 0; round < kills && !HasFailure(); ++round) {
    SCOPED_TRACE("kill " + std::to_string(round));
    PlayAndKill(static_cast<std::uint64_t>(round), evening * 1.2 * round / kills);
    EXPECT_EQ(Keys(), keys);
    const double hands = fncGetSetting("ShoesHandsPlayed", "Hands");
    const double win = fncGetSetting("Player1Stats", "Win");
    EXPECT_EQ(fncGetSetting("Player1Stats", "Turnover"), 10 * hands);
    EXPECT_EQ(fncGetSetting("Player2Stats", "Turnover"), 10 * hands);
    EXPECT_EQ(fncGetSetting("Player2Stats", "Win"), win);
    EXPECT_LE(std::abs(win), 10 * hands);
  }
}

}  // namespace
