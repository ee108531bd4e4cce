#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <csignal>
#include <filesystem>
#include <random>

#include "betting/frmStatistics.h"
#include "judges/Endurance.h"
#include "platform/Texts.h"
#include "platform/headless/Headless.h"
#include "shell/SettingsStore.h"
#include "tests/Game.h"

namespace {

/// Of an evening, in its order.
enum Stage : std::uint8_t { stgStart, stgHands, stgReset, stgMoreHands, stgEnd };
constexpr int intStages = 5;

/// What the game says through the pipe when a stage begins.
struct Told {
  Stage Begun;
  double Hands;  ///< That stand in the file.
};

/// One end to read and one to write.
using Pipe = std::array<int, 2>;

using Clock = std::chrono::steady_clock;

/// The sections and keys of a settings file, one text for each key. Fails where a line is neither,
/// or where a value is neither a number nor a switch.
std::vector<std::string> fncNames(const std::string& contents) {
  std::vector<std::string> names;
  std::string section;
  for (std::size_t at = 0; at < contents.size();) {
    const std::size_t stop = contents.find("\r\n", at);
    const std::string line = contents.substr(at, stop - at);
    EXPECT_NE(stop, std::string::npos) << "cut short: " << line;
    at = stop == std::string::npos ? contents.size() : stop + 2;
    if (line.starts_with('[') && line.ends_with(']')) {
      section = line;
      continue;
    }
    const std::size_t equals = line.find('=');
    const std::string value = equals == std::string::npos ? "" : line.substr(equals + 1);
    EXPECT_TRUE(fncIsNumeric(value) || value == "True" || value == "False") << line;
    names.push_back(section + line.substr(0, equals));
  }
  return names;
}

class Killed : public Game {
 protected:
  /// In memory, so that many hands are written before a kill.
  void SetUp() override {
    Game::SetUp();
    Setting("Player1Stats", "Stake", "10000000");
    Setting("Player2Stats", "Stake", "10000000");
    Setting("Shoe Size", "Decks", "1");
    fast_ = fncFastFolder();
    std::filesystem::copy(Folder(), fast_);
    prcFreshGame(fast_);
  }
  void TearDown() override { std::filesystem::remove_all(fast_); }

  /// Plays an evening. With blnKill it plays one after the other, until it is killed in this stage
  /// of the first, as far behind the stage's beginning as part, 0 to 1, of its usual length.
  /// Returns the last that was told, before the kill or the end.
  Told PlayEvening(std::uint64_t seed, bool blnKill, Stage stage, double part) {
    Pipe ends{};
    EXPECT_EQ(pipe(ends.data()), 0);
    const pid_t child = fork();
    if (child == 0) {
      close(ends[0]);
      for (;;) {
        Play(seed++, ends[1]);
        if (!blnKill) {
          break;
        }
      }
      _exit(0);
    }
    close(ends[1]);  // Or the end of a game that ends early would not be seen.
    const Told last = blnKill ? Kill(child, ends[0], stage, part) : Watch(ends[0]);
    close(ends[0]);
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_EQ(WIFSIGNALED(status), blnKill) << "the game has ended by itself";
    return last;
  }

  /// All figures of a hand, and all zeros of a reset, are written at once.
  void ExpectFiguresOfWholeHands(const Told& told) const {
    const double hands = fncGetSetting("ShoesHandsPlayed", "Hands");
    const double win = fncGetSetting("Player1Stats", "Win");
    EXPECT_EQ(fncGetSetting("Player1Stats", "Turnover"), 10 * hands);
    EXPECT_EQ(fncGetSetting("Player2Stats", "Turnover"), 10 * hands);
    EXPECT_EQ(fncGetSetting("Player2Stats", "Win"), win);
    EXPECT_LE(std::abs(win), 10 * hands);
    EXPECT_LE(fncGetSetting("ShoesHandsPlayed", "Decks 1"), hands);
    constexpr double mostOfAShoe = 8 * 13;  // A first file knows nothing of one deck.
    const bool blnHands = told.Begun == stgHands || told.Begun == stgMoreHands;
    if (hands != 0 || told.Begun != stgReset) {
      EXPECT_GE(hands, told.Hands) << "a hand that was told is lost";
      EXPECT_LE(hands, told.Hands + (blnHands ? mostOfAShoe : 0));
    }
  }

  /// The whole file stands, with each of these keys.
  void ExpectWhole(const std::vector<std::string>& keys) const {
    const std::vector<std::string> names = fncNames(Contents());
    for (const std::string& key : keys) {
      EXPECT_EQ(std::ranges::count(names, key), 1) << key;
    }
  }

 private:
  static void Tell(Stage stage, int to) {
    const Told told{stage, fncGetSetting("ShoesHandsPlayed", "Hands")};
    if (write(to, &told, sizeof told) != sizeof told) {
      _exit(1);
    }
  }

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

  void Play(std::uint64_t seed, int told) {
    Tell(stgStart, told);
    prcFreshGame(fast_);
    Start();
    if (!MDIForm1.Form.Visible) {
      prcShowFrame();
      headless::Wait(10);
      ShowNoCardsSlowly();
    }
    Tell(stgHands, told);
    PlayShoe(seed);
    Tell(stgReset, told);
    headless::WhileModal([] {
      headless::Answer(platform::Answer::Ok);
      headless::Click(frmStatistics.cmdResetStats);
    });
    headless::Click(MDIForm1.mnuStatistics);
    Tell(stgMoreHands, told);
    PlayShoe(seed + 1);
    Tell(stgEnd, told);
    headless::Click(MDIForm1.mnuExit);
  }

  /// Notes how long each stage takes.
  Told Watch(int from) {
    Told told{}, last{};
    int stages = 0;
    for (auto before = Clock::now(); read(from, &told, sizeof told) == sizeof told; ++stages) {
      EXPECT_EQ(told.Begun, stages);
      const auto now = Clock::now();
      length_.at(last.Begun) = now - before;
      before = now;
      last = told;
    }
    EXPECT_EQ(stages, intStages);
    length_[stgEnd] = length_[stgStart];
    return last;
  }

  Told Kill(pid_t child, int from, Stage stage, double part) const {
    Told last{};
    do {
      if (read(from, &last, sizeof last) != sizeof last) {
        ADD_FAILURE() << "the game tells nothing more";
        break;
      }
    } while (last.Begun != stage);
    using Micro = std::chrono::duration<double, std::micro>;
    usleep(static_cast<useconds_t>(Micro(length_.at(stage)).count() * part));
    kill(child, SIGKILL);
    for (Told told{}; read(from, &told, sizeof told) == sizeof told;) {
      last = told;
    }
    return last;
  }

  std::string fast_;
  std::array<Clock::duration, intStages> length_{};
};

TEST_F(Killed, TheFileIsThatOfSomeCompletedHandAtAnyInstant) {
  constexpr int kills = 500;
  constexpr int withoutAFile = 10;  // One kill of so many.
  std::filesystem::remove(strIniFile);
  prcFixPaths();
  const std::vector<std::string> first = fncNames(Contents());
  Setting("Shoe Size", "Decks", "1");
  PlayEvening(0, false, stgStart, 0);
  const std::vector<std::string> all = fncNames(Contents());
  ASSERT_GT(all.size(), first.size());
  ASSERT_FALSE(HasFailure());
  std::mt19937 random(1);
  std::array<int, intStages> killed{};
  for (int round = 0; round < kills && !HasFailure(); ++round) {
    const std::string before = Contents();
    const bool blnFirst = round % withoutAFile == 0;
    if (blnFirst) {
      std::filesystem::remove(strIniFile);
    }
    const double part = std::uniform_real_distribution<>(0, 1)(random);
    const auto stage = static_cast<Stage>(round % intStages);
    const Told told = PlayEvening(static_cast<std::uint64_t>(round), true, stage, part);
    SCOPED_TRACE("kill " + std::to_string(round) + " in stage " + std::to_string(told.Begun));
    ++killed.at(told.Begun);
    ExpectFiguresOfWholeHands(told);
    if (std::filesystem::exists(strIniFile) || !blnFirst) {
      ExpectWhole(blnFirst ? first : all);
    }
    if (blnFirst) {
      WriteFile(before);
    }
  }
  ASSERT_FALSE(HasFailure());
  for (const int count : killed) {
    EXPECT_GT(count, kills / intStages / 4) << "kills must come in every stage";
  }
}

}  // namespace
