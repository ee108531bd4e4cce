#include <cinttypes>
#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "judges/ShuffleStatistics.h"

// Prints what many shuffles of each shoe size give: velmora_shuffle [POSITIONS [SEED]], by default
// ten million positions of each size.

namespace {

/// Whether all that the method promises holds. Where each value may lie is promised from four decks
/// on: in fewer the two end slots weigh too much.
bool fncHolds(const ShuffleStatistics& s) {
  const auto likely = [](const ChiSquare& sum) { return std::abs(sum.fncDeviation()) < dblChance; };
  return s.BrokenShoes == 0 && likely(s.FirstSlot) && likely(s.MirroredValues) &&
         likely(s.MirroredSteps) && (s.Decks < 4 || likely(s.ValueByPosition));
}

void prcPrint(const ShuffleStatistics& s) {
  std::printf("%d deck(s): %" PRId64 " shoes, %.0f positions, %" PRId64
              " shoes with a slot missing\n",
              s.Decks, s.Shoes, s.Positions, s.BrokenShoes);
  std::printf("  first slot out: low end %.0f, high end %.0f, mean of the others %.1f\n",
              s.LowEndFirst, s.HighEndFirst, s.InnerFirst);
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
    blnHolds = blnHolds && fncHolds(counted);
  }
  std::printf(blnHolds ? "All that is promised holds.\n" : "What is promised does not hold.\n");
  return blnHolds ? EXIT_SUCCESS : EXIT_FAILURE;
}
