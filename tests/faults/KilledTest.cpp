#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cmath>
#include <csignal>
#include <filesystem>
#include <random>

#include "bench/Endurance.h"
#include "shell/SettingsStore.h"
#include "tests/Game.h"

namespace {

/// What a hand writes, in the order in which it does.
struct Figures {
  double Win1, Turnover1, Win2, Turnover2, Hands;
};

class Killed : public Game {
 protected:
  /// In memory, so that many hands are written before a kill.
  void SetUp() override {
    Game::SetUp();
    fast_ = fncFastFolder();
    std::filesystem::copy(Folder(), fast_);
    prcFreshGame(fast_);
  }
  void TearDown() override { std::filesystem::remove_all(fast_); }

  Figures Read() const {
    return {fncGetSetting("Player1Stats", "Win"), fncGetSetting("Player1Stats", "Turnover"),
            fncGetSetting("Player2Stats", "Win"), fncGetSetting("Player2Stats", "Turnover"),
            fncGetSetting("ShoesHandsPlayed", "Hands")};
  }

  /// Both seats bet one chip of 10 on every hand and never run out: each hand adds 10 to each
  /// turnover. Tells through the pipe when the first run is about to begin.
  [[noreturn]] void Play(std::uint64_t seed, int told) {
    Start();
    for (;; ++seed) {
      Shuffle(seed);
      if (write(told, "", 1) < 0) {
        _exit(1);
      }
      while (!blnEndOfShoe[0]) {
        for (int seat = 0; seat < intSeats; ++seat) {
          if (!fncBetStands(betPlayer, seat)) {
            headless::Click(BaccTable.lblPBetInc1[seat]);
          }
        }
        Deal(20);
      }
    }
  }

  void KillAfter(std::uint32_t microseconds, std::uint64_t seed) {
    std::array<int, 2> ends{};
    ASSERT_EQ(pipe(ends.data()), 0);
    const pid_t child = fork();
    if (child == 0) {
      Play(seed, ends[1]);
    }
    char begun = 0;
    ASSERT_EQ(read(ends[0], &begun, 1), 1);
    close(ends[0]);
    close(ends[1]);
    usleep(microseconds);
    kill(child, SIGKILL);
    int status = 0;
    waitpid(child, &status, 0);
    ASSERT_TRUE(WIFSIGNALED(status)) << "the game has ended by itself";
  }

 private:
  std::string fast_;
};

TEST_F(Killed, TheFileIsThatOfSomeCompletedHandAtAnyInstant) {
  constexpr int kills = 500;
  Setting("Player1Stats", "Stake", "10000000");
  Setting("Player2Stats", "Stake", "10000000");
  Setting("Shoe Size", "Decks", "1");
  std::mt19937 random(1);
  Figures before = Read();
  for (int round = 0; round < kills; ++round) {
    KillAfter(static_cast<std::uint32_t>(random() % 20'000), static_cast<std::uint64_t>(round));
    ASSERT_FALSE(HasFailure());
    const Figures now = Read();
    // All figures of a hand are written at once.
    const double one = (now.Turnover1 - before.Turnover1) / 10;
    const double two = (now.Turnover2 - before.Turnover2) / 10;
    const double hands = now.Hands - before.Hands;
    ASSERT_GE(hands, 0) << round;
    ASSERT_EQ(one, hands) << round;
    ASSERT_EQ(two, hands) << round;
    // Both seats play the same bet.
    ASSERT_EQ(now.Win1, now.Win2) << round;
    const std::string contents = Contents();
    ASSERT_TRUE(contents.starts_with("[Player1Stats]") && contents.ends_with("\r\n")) << round;
    before = now;
  }
  EXPECT_GT(before.Hands, kills) << "hands must be under way when the kills come";
}

}  // namespace
