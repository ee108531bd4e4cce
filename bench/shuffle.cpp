#include <cinttypes>
#include <cstdio>
#include <cstdlib>

#include "judges/ShuffleStatistics.h"

// Prints what many shuffles of each shoe size give: velmora_shuffle [POSITIONS [SEED]], by default
// ten million positions of each size.

namespace {

/// How often a step would come if every order of the cards were as likely as any other.
double fncStepExpected(const ShuffleStatistics& s, int step) {
  const double cards = s.Decks * double{intSlotsOfDeck};
  const double alike = cards / static_cast<double>(s.Steps.size()) - (step == 0 ? 1 : 0);
  return static_cast<double>(s.Shoes) * alike;
}

void prcPrint(const ShuffleStatistics& s) {
  const auto shoes = static_cast<double>(s.Shoes);
  std::printf("%d deck(s): %" PRId64 " shoes, %.0f positions, %" PRId64
              " shoes with a slot missing\n",
              s.Decks, s.Shoes, shoes * static_cast<double>(s.First.size()), s.BrokenShoes);
  const double low = s.First.front(), high = s.First.back();
  std::printf("  first slot out: low end %.0f, high end %.0f, mean of the others %.1f\n", low, high,
              (shoes - low - high) / static_cast<double>(s.First.size() - 2));
  const struct {
    const char* Name;
    const ChiSquare& Sum;
  } sums[] = {{"first slot, ends at half", s.FirstSlot},
              {"values 2 to 12 by position", s.ValueByPosition},
              {"values and their mirror images", s.MirroredValues},
              {"steps and their mirror images", s.MirroredSteps}};
  for (const auto& [name, sum] : sums) {
    std::printf("  %-31s chi-square %9.1f of %4d degrees, deviation %+5.2f\n", name, sum.Sum,
                sum.Degrees, sum.fncDeviation());
  }
  std::printf("  steps from value to value, counted over expected:");
  for (int step = 0; step < 13; ++step) {
    std::printf(" %d: %.4f", step,
                s.Steps[static_cast<std::size_t>(step)] / fncStepExpected(s, step));
  }
  std::printf("\n");
}

}  // namespace

int main(int argc, char** argv) {
  const std::int64_t positions = argc > 1 ? std::atoll(argv[1]) : 10'000'000;
  const std::uint64_t seed = argc > 2 ? std::strtoull(argv[2], nullptr, 10) : 1;
  bool blnHolds = true;
  for (const int decks : intShoeSizes) {
    const std::int64_t slots = std::int64_t{decks} * intSlotsOfDeck;
    const ShuffleStatistics counted =
        fncShuffleStatistics(decks, (positions + slots - 1) / slots, seed);
    prcPrint(counted);
    blnHolds = counted.fncHolds() && blnHolds;
  }
  std::printf(blnHolds ? "All that is promised holds.\n" : "What is promised does not hold.\n");
  return blnHolds ? EXIT_SUCCESS : EXIT_FAILURE;
}
