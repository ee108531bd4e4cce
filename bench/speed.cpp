#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <vector>

#include "judges/Endurance.h"
#include "marking/MarkCard.h"
#include "marking/MarkState.h"
#include "platform/ProfileFile.h"
#include "platform/headless/Headless.h"
#include "shell/Program.h"
#include "shell/SettingsStore.h"
#include "table/DrawRules.h"
#include "table/HandDealing.h"
#include "table/Random.h"
#include "table/Shoe.h"

// The speed of what needs no window, each figure beside that of a plain piece of work in the same
// run. Prints lines of a name and a value, of which bench/run makes its table.

namespace {

/// Seconds of the processor and seconds of the day: what waits for a disk is measured by the
/// latter.
double fncProcessor() { return static_cast<double>(std::clock()) / CLOCKS_PER_SEC; }
double fncDay() {
  return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

/// Seconds that one call of work takes, of calls made in one go.
template <class Work>
double fncSeconds(double (*now)(), int calls, Work work) {
  const double start = now();
  for (int call = 0; call < calls; ++call) {
    work();
  }
  return (now() - start) / calls;
}

double fncMedian(std::vector<double> times) {
  std::ranges::nth_element(times, times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2));
  return times[times.size() / 2];
}

struct Pair {
  double Ours, Plain;
};

/// Medians of two pieces of work that take turns, so that a busy machine slows both.
template <class Ours, class Plain>
Pair fncCompare(double (*now)(), int rounds, int calls, Ours ours, Plain plain) {
  std::vector<double> ourTimes, plainTimes;
  for (int round = 0; round < rounds; ++round) {
    ourTimes.push_back(fncSeconds(now, calls, ours));
    plainTimes.push_back(fncSeconds(now, calls, plain));
  }
  return {fncMedian(ourTimes), fncMedian(plainTimes)};
}

/// Tells a pair in microseconds.
void prcTell(const char* ours, const char* plain, Pair pair) {
  std::printf("%s %.4f\n%s %.4f\n", ours, pair.Ours * 1e6, plain, pair.Plain * 1e6);
}

// --- Whole shoes ---

constexpr int intShoe = 1;  // The table plays shoe 0: what lies in this one is listed nowhere.

long lngHands = 0;

void prcPlayShoe() {
  Shuffle(intShoe);
  while (!blnEndOfShoe[intShoe]) {
    ZNEW_DealHand(intShoe);
    ++lngHands;
  }
}

/// A shoe of 416 bytes under the same rules, with nothing around it.
struct PlainShoe {
  std::array<std::uint8_t, intMostSlots> Cards{};
  std::array<bool, intMostSlots> Used{};
  int Next = 0;
  long Hands = 0, Wins = 0;

  int fncSlot() {
    constexpr int last = intMostSlots - 1;
    int slot = static_cast<int>(std::lrint(double{fncRandom()} * last));
    if (Used[static_cast<std::size_t>(slot)]) {
      const int step = fncRandom() < 0.5F ? -1 : 1;
      do {
        slot += step;
        slot = slot < 0 ? last : slot > last ? 0 : slot;
      } while (Used[static_cast<std::size_t>(slot)]);
    }
    return slot;
  }

  void prcShuffle() {
    prcSeedRandom(platform::RandomSeed());
    Used.fill(false);
    for (std::uint8_t& card : Cards) {
      const int slot = fncSlot();
      Used[static_cast<std::size_t>(slot)] = true;
      card = static_cast<std::uint8_t>(slot % 13 + 1);
    }
    Next = std::min<int>(Cards[0], 10) + 1;
  }

  int fncDraw() {
    const int value = Cards[static_cast<std::size_t>(Next++)];
    return value > 9 ? 0 : value;
  }

  void prcDeal() {
    const int player1 = fncDraw(), banker1 = fncDraw();
    int player = (player1 + fncDraw()) % 10;
    int banker = (banker1 + fncDraw()) % 10;
    if (player < 8 && banker < 8 && (player < 6 || banker < 6)) {
      const bool blnStood = player >= 6;
      const int third = blnStood ? 0 : fncDraw();
      player = (player + third) % 10;
      if (fncBankerDraws(banker, blnStood, third)) {
        banker = (banker + fncDraw()) % 10;
      }
    }
    Wins += player > banker ? 1 : player < banker ? -1 : 0;
  }

  void prcPlay() {
    prcShuffle();
    bool blnLast = false, blnEnd = false;
    while (!blnEnd) {
      prcDeal();
      ++Hands;
      blnEnd = blnLast;
      blnLast = blnLast || Next > intMostSlots - 1 - 13;
    }
  }
};

void prcShoes() {
  headless::Reset({});
  prcResetTableState();
  intMarkCardShoe[intShoe] = intShoe;  // Its shuffle opens the shoe again.
  intDecks[intShoe] = 8;
  PlainShoe plain;
  const Pair pair = fncCompare(fncProcessor, 21, 1000, prcPlayShoe, [&plain] { plain.prcPlay(); });
  const double hands = static_cast<double>(lngHands) / static_cast<double>(plain.Hands);
  if (plain.Wins == 0 || std::abs(hands - 1) > 0.01) {
    throw std::runtime_error("the plain loop does not play the same game");
  }
  prcTell("shoe", "plain_shoe", pair);
  std::printf("shoes_a_second %.0f\nplain_shoes_a_second %.0f\n", 1 / pair.Ours, 1 / pair.Plain);
}

// --- Settings ---

void prcBareWrite(const std::string& path, const std::string& contents) {
  const std::string beside = path + ".bare";
  std::FILE* file = std::fopen(beside.c_str(), "wb");
  if (file == nullptr ||
      std::fwrite(contents.data(), 1, contents.size(), file) != contents.size() ||
      std::fclose(file) != 0) {
    throw std::runtime_error("cannot write " + beside);
  }
  std::filesystem::rename(beside, path);
}

/// The settings file of an evening of play.
std::string fncPlayedFile(const std::string& folder) {
  fncPlay(folder, 1, fncRandomEvents(1, 400));
  std::ifstream file(folder + "/VELMORA.INI", std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

void prcWrites(const char* ours, const char* plain, const std::string& folder) {
  const std::string contents = fncPlayedFile(folder);
  const std::string file = folder + "/VELMORA.INI", bare = folder + "/BARE.INI";
  prcBareWrite(bare, contents);
  int value = 0;
  const Pair pair = fncCompare(
      fncDay, 41, 25,
      [&] {
        const ProfileKey key{"Player2Stats", "Turnover", std::to_string(100 + value++ % 9)};
        fncWriteProfile(file, {&key, 1});
      },
      [&] { prcBareWrite(bare, contents); });
  prcTell(ours, plain, pair);
}

// --- Marks ---

/// Plays shoes on a card in its window and gives the time of some of its marks.
std::vector<double> fncMarkTimes(const std::vector<int>& marks) {
  std::vector<std::vector<double>> times(marks.size());
  for (int shoe = 0; shoe < 200; ++shoe) {
    Shuffle(0);
    while (!blnEndOfShoe[0]) {
      ZNEW_DealHand(0);
      ++intHandsDealt[0];
      const double time = fncSeconds(fncDay, 1, [] { SetCardView(0); });
      const auto at = std::ranges::find(marks, int{intHandsDealt[0]});
      if (at != marks.end()) {
        times[static_cast<std::size_t>(at - marks.begin())].push_back(time);
      }
    }
  }
  std::vector<double> medians;
  std::ranges::transform(times, std::back_inserter(medians), fncMedian);
  return medians;
}

void prcMarks(const std::string& folder) {
  std::ofstream(folder + "/VELMORA.INI") << "[Misc]\nNerodik=1\n[Shoe Size]\nDecks=8\n";
  headless::Reset(folder);
  prcResetMarkState();
  platform::Run(0, nullptr, fncStartProgram);
  headless::Wait(10);
  const std::vector<double> times = fncMarkTimes({1, 2, 80});
  prcTell("mark_80", "mark_1", {times[2], times[0]});
  std::printf("mark_2 %.4f\n", times[1] * 1e6);
}

}  // namespace

int main() try {
  const std::string memory = fncFastFolder();
  const std::string disk = std::filesystem::absolute("velmora-bench-disk").string();
  prcShoes();
  prcWrites("write_disk", "bare_write_disk", disk);
  prcWrites("write_memory", "bare_write_memory", memory);
  prcMarks(memory);
  std::filesystem::remove_all(memory);
  std::filesystem::remove_all(disk);
  return EXIT_SUCCESS;
} catch (const std::exception& failed) {
  std::fprintf(stderr, "%s\n", failed.what());
  return EXIT_FAILURE;
} catch (...) {
  return EXIT_FAILURE;
}
