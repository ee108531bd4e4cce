#include "judges/ShuffleStatistics.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "platform/headless/Headless.h"
#include "table/Shoe.h"

namespace {

constexpr int intSpareShoe = 1;  // The table plays shoe 0: what lies in this one is listed nowhere.
constexpr std::size_t intValues = 13;

using Values = std::array<double, intValues>;

void prcCountShoe(std::vector<Values>& valueAt, ShuffleStatistics& statistics) {
  std::vector<bool> blnSeen(valueAt.size());
  std::size_t before = 0;
  for (std::size_t p = 0; p < blnSeen.size(); ++p) {
    const int drawn = intShoeCards[intSpareShoe][static_cast<std::int64_t>(p)];
    const auto slot = static_cast<std::size_t>(drawn);
    const std::size_t value = slot % intValues;
    blnSeen[slot] = true;
    valueAt[p][value] += 1;
    (p == 0 ? statistics.First[slot]
            : statistics.Steps[(value + intValues - before) % intValues])++;
    before = value;
  }
  statistics.BrokenShoes += std::ranges::count(blnSeen, false) == 0 ? 0 : 1;
}

/// The two end slots come half as often: half a step of the random value is left for either.
void prcJudgeFirst(ShuffleStatistics& statistics) {
  const std::size_t last = statistics.First.size() - 1;
  const double inner = static_cast<double>(statistics.Shoes) / static_cast<double>(last);
  for (std::size_t slot = 0; slot <= last; ++slot) {
    const bool blnEnd = slot == 0 || slot == last;
    statistics.FirstSlot.prcAdd(statistics.First[slot], blnEnd ? inner / 2 : inner);
  }
  --statistics.FirstSlot.Degrees;
}

void prcJudgeValues(const Values& values, ShuffleStatistics& statistics) {
  statistics.ValueByPosition.prcAddAlike(std::span(values).subspan(1, intValues - 2));
  for (std::size_t low = 0; low < intValues / 2; ++low) {
    statistics.MirroredValues.prcAddAlike(std::array{values[low], values[intValues - 1 - low]});
  }
}

}  // namespace

void ChiSquare::prcAdd(double counted, double expected) {
  Sum += (counted - expected) * (counted - expected) / expected;
  ++Degrees;
}

void ChiSquare::prcAddAlike(std::span<const double> counts) {
  const double all = std::accumulate(counts.begin(), counts.end(), 0.0);
  for (const double counted : counts) {
    prcAdd(counted, all / static_cast<double>(counts.size()));
  }
  --Degrees;
}

double ChiSquare::fncDeviation() const {
  // The cube root of a chi-square is close to normal (Wilson and Hilferty).
  const double spread = 2.0 / (9.0 * Degrees);
  return (std::cbrt(Sum / Degrees) - (1 - spread)) / std::sqrt(spread);
}

bool ChiSquare::fncLikely() const { return std::abs(fncDeviation()) < dblChance; }

bool ShuffleStatistics::fncHolds() const {
  return BrokenShoes == 0 && FirstSlot.fncLikely() && MirroredValues.fncLikely() &&
         MirroredSteps.fncLikely() && (Decks < 4 || ValueByPosition.fncLikely());
}

ShuffleStatistics fncShuffleStatistics(int decks, std::int64_t shoes, std::uint64_t firstSeed) {
  headless::Reset({});
  headless::Seed(firstSeed);
  prcResetTableState();
  intDecks[intSpareShoe] = decks;
  const std::size_t slots = static_cast<std::size_t>(decks) * intSlotsOfDeck;
  ShuffleStatistics statistics{.Decks = decks, .Shoes = shoes, .First = std::vector<double>(slots)};
  std::vector<Values> valueAt(slots);
  for (std::int64_t shoe = 0; shoe < shoes; ++shoe) {
    Shuffle(intSpareShoe);
    prcCountShoe(valueAt, statistics);
  }
  prcJudgeFirst(statistics);
  for (const Values& values : valueAt) {
    prcJudgeValues(values, statistics);
  }
  for (std::size_t up = 1; up <= intValues / 2; ++up) {
    statistics.MirroredSteps.prcAddAlike(
        std::array{statistics.Steps[up], statistics.Steps[intValues - up]});
  }
  return statistics;
}
