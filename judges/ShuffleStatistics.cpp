#include "judges/ShuffleStatistics.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <vector>

#include "platform/headless/Headless.h"
#include "table/Shoe.h"

namespace {

constexpr int intSpareShoe = 1;  // The table plays shoe 0: what lies in this one is listed nowhere.
constexpr std::size_t intValues = 13;

using Values = std::array<double, intValues>;

struct Counts {
  std::vector<double> First;    // By slot.
  std::vector<Values> ValueAt;  // By position.
};

void prcCountShoe(Counts& counts, ShuffleStatistics& statistics) {
  std::vector<bool> blnSeen(counts.First.size());
  std::size_t before = 0;
  for (std::size_t p = 0; p < blnSeen.size(); ++p) {
    const int drawn = intShoeCards[intSpareShoe][static_cast<std::int64_t>(p)];
    const auto slot = static_cast<std::size_t>(drawn);
    const std::size_t value = slot % intValues;
    blnSeen[slot] = true;
    counts.ValueAt[p][value] += 1;
    counts.First[slot] += p == 0 ? 1 : 0;
    statistics.Steps[(value + intValues - before) % intValues] += p == 0 ? 0 : 1;
    before = value;
  }
  const bool blnWhole = std::ranges::find(blnSeen, false) == blnSeen.end();
  statistics.BrokenShoes += blnWhole ? 0 : 1;
}

/// The two end slots come half as often: half a step of the random value is left for either.
void prcJudgeFirst(const std::vector<double>& first, ShuffleStatistics& statistics) {
  const double inner =
      static_cast<double>(statistics.Shoes) / static_cast<double>(first.size() - 1);
  for (std::size_t slot = 0; slot < first.size(); ++slot) {
    const bool blnEnd = slot == 0 || slot == first.size() - 1;
    statistics.FirstSlot.prcAdd(first[slot], blnEnd ? inner / 2 : inner);
  }
  --statistics.FirstSlot.Degrees;
  statistics.LowEndFirst = first.front();
  statistics.HighEndFirst = first.back();
  statistics.InnerFirst = std::accumulate(first.begin() + 1, first.end() - 1, 0.0) /
                          static_cast<double>(first.size() - 2);
}

/// Two counts that should be alike: one degree.
void prcAddPair(ChiSquare& sum, double one, double other) {
  sum.prcAdd(one, (one + other) / 2);
  sum.prcAdd(other, (one + other) / 2);
  --sum.Degrees;
}

void prcJudgeValues(const Values& values, ShuffleStatistics& statistics) {
  const double inner = std::accumulate(values.begin() + 1, values.end() - 1, 0.0);
  for (std::size_t value = 1; value < intValues - 1; ++value) {
    statistics.ValueByPosition.prcAdd(values[value], inner / (intValues - 2));
  }
  --statistics.ValueByPosition.Degrees;
  for (std::size_t value = 0; value < intValues / 2; ++value) {
    prcAddPair(statistics.MirroredValues, values[value], values[intValues - 1 - value]);
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
  intDecks[intSpareShoe] = decks;
  const std::size_t slots = static_cast<std::size_t>(decks) * intSlotsOfDeck;
  ShuffleStatistics statistics;
  statistics.Decks = decks;
  statistics.Shoes = shoes;
  Counts counts{std::vector<double>(slots), std::vector<Values>(slots)};
  for (std::int64_t shoe = 0; shoe < shoes; ++shoe) {
    Shuffle(intSpareShoe);
    prcCountShoe(counts, statistics);
    statistics.Positions += static_cast<double>(slots);
  }
  prcJudgeFirst(counts.First, statistics);
  for (const Values& values : counts.ValueAt) {
    prcJudgeValues(values, statistics);
  }
  for (std::size_t step = 1; step <= intValues / 2; ++step) {
    prcAddPair(statistics.MirroredSteps, statistics.Steps[step],
               statistics.Steps[intValues - step]);
  }
  return statistics;
}

double fncStepExpected(const ShuffleStatistics& statistics, int step) {
  const double cards = statistics.Decks * double{intSlotsOfDeck};
  const double alike = cards / intValues - (step == 0 ? 1 : 0);
  return (statistics.Positions - static_cast<double>(statistics.Shoes)) * alike / (cards - 1);
}
