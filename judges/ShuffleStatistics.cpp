#include "judges/ShuffleStatistics.h"

#include <cmath>

#include "platform/headless/Headless.h"
#include "table/Shoe.h"

namespace {

constexpr int intSpareShoe = 1;  // The table plays shoe 0: what lies in this one is listed nowhere.
constexpr int intValues = 13;

struct Counts {
  explicit Counts(std::size_t slots) : First(slots), ValueAt(slots) {}
  std::vector<std::int64_t> First;                           // By slot.
  std::vector<std::array<std::int64_t, intValues>> ValueAt;  // By position.
};

std::size_t fncSlot(std::size_t position) {
  return static_cast<std::size_t>(
      int{intShoeCards[intSpareShoe][static_cast<std::int64_t>(position)]});
}

void prcCountShoe(Counts& counts, ShuffleStatistics& statistics) {
  const std::size_t slots = counts.First.size();
  std::vector<bool> blnSeen(slots);
  bool blnBroken = false;
  std::size_t before = 0;
  for (std::size_t p = 0; p < slots; ++p) {
    const std::size_t slot = fncSlot(p);
    blnBroken = blnBroken || blnSeen[slot];
    blnSeen[slot] = true;
    const std::size_t value = slot % intValues;
    ++counts.ValueAt[p][value];
    if (p > 0) {
      ++statistics.Steps[(value + intValues - before) % intValues];
    }
    before = value;
  }
  ++counts.First[fncSlot(0)];
  statistics.BrokenShoes += blnBroken ? 1 : 0;
  statistics.Positions += static_cast<std::int64_t>(slots);
}

/// The chance that a slot comes out first: half a step of the random value is left for either end.
double fncFirstChance(std::size_t slot, std::size_t slots) {
  const bool blnEnd = slot == 0 || slot == slots - 1;
  return (blnEnd ? 0.5 : 1.0) / static_cast<double>(slots - 1);
}

void prcJudgeFirst(const Counts& counts, ShuffleStatistics& statistics) {
  const std::size_t slots = counts.First.size();
  const auto shoes = static_cast<double>(statistics.Shoes);
  for (std::size_t slot = 0; slot < slots; ++slot) {
    statistics.FirstSlot.prcAdd(static_cast<double>(counts.First[slot]),
                                fncFirstChance(slot, slots) * shoes);
  }
  --statistics.FirstSlot.Degrees;
  statistics.LowEndFirst = counts.First.front();
  statistics.HighEndFirst = counts.First.back();
  statistics.InnerFirst =
      static_cast<double>(statistics.Shoes - counts.First.front() - counts.First.back()) /
      static_cast<double>(slots - 2);
}

void prcJudgeValues(const Counts& counts, ShuffleStatistics& statistics) {
  for (const auto& values : counts.ValueAt) {
    double inner = 0;
    for (std::size_t value = 1; value < intValues - 1; ++value) {
      inner += static_cast<double>(values[value]);
    }
    for (std::size_t value = 1; value < intValues - 1; ++value) {
      statistics.ValueByPosition.prcAdd(static_cast<double>(values[value]),
                                        inner / (intValues - 2));
    }
    --statistics.ValueByPosition.Degrees;
  }
}

/// Two counts that should be alike: one degree.
void prcAddPair(ChiSquare& sum, std::int64_t one, std::int64_t other) {
  const double mean = static_cast<double>(one + other) / 2;
  sum.prcAdd(static_cast<double>(one), mean);
  sum.prcAdd(static_cast<double>(other), mean);
  --sum.Degrees;
}

void prcJudgeMirrors(const Counts& counts, ShuffleStatistics& statistics) {
  for (const auto& values : counts.ValueAt) {
    for (std::size_t value = 0; value < intValues / 2; ++value) {
      prcAddPair(statistics.MirroredValues, values[value], values[intValues - 1 - value]);
    }
  }
  for (std::size_t step = 1; step <= intValues / 2; ++step) {
    prcAddPair(statistics.MirroredSteps, statistics.Steps[step],
               statistics.Steps[intValues - step]);
  }
}

}  // namespace

void ChiSquare::prcAdd(double counted, double expected) {
  Sum += (counted - expected) * (counted - expected) / expected;
  ++Degrees;
}

double ChiSquare::fncDeviation() const {
  // The cube root of a chi-square is close to normal (Wilson and Hilferty).
  const double spread = 2.0 / (9.0 * Degrees);
  return (std::cbrt(Sum / Degrees) - (1 - spread)) / std::sqrt(spread);
}

ShuffleStatistics fncShuffleStatistics(int decks, std::int64_t shoes, std::uint64_t firstSeed) {
  headless::Reset({});
  headless::Seed(firstSeed);
  prcResetTableState();
  ShuffleStatistics statistics;
  statistics.Decks = decks;
  statistics.Shoes = shoes;
  intDecks[intSpareShoe] = decks;
  Counts counts(static_cast<std::size_t>(decks * intSlotsOfDeck));
  for (std::int64_t shoe = 0; shoe < shoes; ++shoe) {
    Shuffle(intSpareShoe);
    prcCountShoe(counts, statistics);
  }
  prcJudgeFirst(counts, statistics);
  prcJudgeValues(counts, statistics);
  prcJudgeMirrors(counts, statistics);
  return statistics;
}

double fncStepExpected(const ShuffleStatistics& statistics, int step) {
  const double cards = statistics.Decks * double{intSlotsOfDeck};
  const double alike = cards / intValues - (step == 0 ? 1 : 0);
  return static_cast<double>(statistics.Positions - statistics.Shoes) * alike / (cards - 1);
}
