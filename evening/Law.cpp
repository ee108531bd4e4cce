#include "evening/Law.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "table/Odds.h"

namespace {

constexpr std::array<char, 3> chrResults{'B', 'P', 'T'};

/// Chances below this at the ends of a grid are dropped; an evening of them is far below any share
/// that is told.
constexpr double dblNoChance = 1e-14;

std::array<double, 3> fncChances(int decks) {
  const OddsRow& row = fncOdds(decks);
  const auto all = static_cast<double>(row.fncAll());
  return {static_cast<double>(row.Banker) / all, static_cast<double>(row.Player) / all,
          static_cast<double>(row.Tie) / all};
}

std::int64_t fncLeast(const HandLaw& hand) { return *std::ranges::min_element(hand.Net); }

/// How far the hand can reach on the grid from its least result, in twentieths.
std::int64_t fncReach(const HandLaw& hand) {
  return *std::ranges::max_element(hand.Net) - fncLeast(hand);
}

/// The widest step on which all results of the hand lie; 0 where they are one.
std::int64_t fncStep(const HandLaw& hand) {
  std::int64_t step = 0;
  for (const std::int64_t net : hand.Net) {
    step = std::gcd(step, net - fncLeast(hand));
  }
  return step;
}

bool fncFits(const SumLaw& law, std::int64_t step, std::int64_t reach) {
  const auto points = static_cast<std::int64_t>(law.Share.size() - 1) * law.Step;
  return (points + reach) / step < static_cast<std::int64_t>(law.Most);
}

/// Lays the points of the grid wider apart or closer together, Share by Share, onto size points.
template <class Lay>
void prcRelay(SumLaw& law, std::size_t size, std::int64_t step, Lay lay) {
  std::vector<double> share(size);
  for (std::size_t i = 0; i < law.Share.size(); ++i) {
    lay(share, i);
  }
  law.Share = std::move(share);
  law.Step = step;
}

void prcRefine(SumLaw& law, std::int64_t step) {
  const auto times = static_cast<std::size_t>(law.Step / step);
  prcRelay(law, (law.Share.size() - 1) * times + 1, step,
           [&](std::vector<double>& to, std::size_t i) { to[i * times] = law.Share[i]; });
}

/// Shares by which a result between two points goes to the point before both, to both, and to the
/// point behind them, so that the first three moments of the sum stay. Part is its place, 0..1.
std::array<double, 4> fncSplit(double part) {
  return {-part * (1 - part) * (2 - part) / 6, (1 - part * part) * (2 - part) / 2,
          part * (1 + part) * (2 - part) / 2, -part * (1 - part * part) / 6};
}

/// Doubles the step. The points that fall between two of the new ones are split.
void prcCoarsen(SumLaw& law) {
  const std::array<double, 4> half = fncSplit(0.5);
  prcRelay(law, law.Share.size() / 2 + 3, 2 * law.Step,
           [&](std::vector<double>& to, std::size_t i) {
             const std::size_t at = i / 2 + 1;  // The grid gains a point at its low end.
             if (i % 2 == 0) {
               to[at] += law.Share[i];
               return;
             }
             law.Exact = law.Exact && law.Share[i] == 0;
             for (std::size_t n = 0; n < half.size(); ++n) {
               to[at + n - 1] += law.Share[i] * half.at(n);
             }
           });
  law.Low -= law.Step;
}

/// Makes the grid fit for a hand: as fine as its results ask while there is room, else as coarse as
/// needed.
void prcFitGrid(SumLaw& law, const HandLaw& hand) {
  const std::int64_t reach = fncReach(hand);
  const std::int64_t step = std::gcd(law.Step, fncStep(hand));
  if (law.Step == 0) {
    law.Step = step;
  } else if (step < law.Step && law.Exact && fncFits(law, step, reach)) {
    prcRefine(law, step);
  }
  while (!fncFits(law, law.Step, reach)) {
    prcCoarsen(law);
  }
}

/// Adds the law, moved on by whole points, in a proportion.
void prcShift(const std::vector<double>& from, std::vector<double>& to, std::size_t points,
              double part) {
  for (std::size_t i = 0; i < from.size(); ++i) {
    to[i + points] += from[i] * part;
  }
}

void prcConvolve(SumLaw& law, const HandLaw& hand) {
  // One point before the first and two behind the last take what is split.
  std::vector<double> share(law.Share.size() + static_cast<std::size_t>(fncReach(hand) / law.Step) +
                            3);
  for (std::size_t n = 0; n < hand.Net.size(); ++n) {
    const std::int64_t moved = hand.Net.at(n) - fncLeast(hand);
    const auto points = static_cast<std::size_t>(moved / law.Step);
    const std::int64_t rest = moved % law.Step;
    if (rest == 0) {
      prcShift(law.Share, share, points + 1, hand.Chance.at(n));
      continue;
    }
    law.Exact = false;
    const auto split = fncSplit(static_cast<double>(rest) / static_cast<double>(law.Step));
    for (std::size_t i = 0; i < split.size(); ++i) {
      prcShift(law.Share, share, points + i, hand.Chance.at(n) * split.at(i));
    }
  }
  law.Share = std::move(share);
  law.Low -= law.Step;
}

/// Takes the points off both ends that have no chance worth telling.
void prcTrim(SumLaw& law) {
  const auto counts = [](double share) { return std::abs(share) > dblNoChance; };
  const auto first = std::ranges::find_if(law.Share, counts);
  const auto last = std::find_if(law.Share.rbegin(), law.Share.rend(), counts).base();
  law.Low += (first - law.Share.begin()) * law.Step;
  law.Share.erase(last, law.Share.end());
  law.Share.erase(law.Share.begin(), first);
}

void prcAddMoments(SumLaw& law, const HandLaw& hand) {
  double mean = 0, square = 0;
  for (std::size_t n = 0; n < hand.Net.size(); ++n) {
    const double net = static_cast<double>(hand.Net.at(n)) / intTwentieths;
    mean += hand.Chance.at(n) * net;
    square += hand.Chance.at(n) * net * net;
  }
  law.Mean += mean;
  law.Variance += square - mean * mean;
}

}  // namespace

HandLaw fncHandLaw(const EveningHand& hand, Integer intSeat) {
  HandLaw law{.Chance = fncChances(hand.Decks)};
  for (std::size_t n = 0; n < law.Net.size(); ++n) {
    law.Net.at(n) = std::llround(fncNet(hand, intSeat, chrResults.at(n)) * intTwentieths);
  }
  return law;
}

HandLaw fncHandLaw(const EveningHand& hand) {
  HandLaw law = fncHandLaw(hand, 0);
  const HandLaw other = fncHandLaw(hand, 1);
  for (std::size_t n = 0; n < law.Net.size(); ++n) {
    law.Net.at(n) += other.Net.at(n);
  }
  return law;
}

void prcAddHand(SumLaw& law, const HandLaw& hand) {
  prcAddMoments(law, hand);
  if (fncReach(hand) > 0) {
    prcFitGrid(law, hand);
    prcConvolve(law, hand);
    prcTrim(law);
  }
  law.Low += fncLeast(hand);
}

double fncShareAt(const SumLaw& law, std::int64_t sum) {
  const std::int64_t from = sum - law.Low;
  if (!law.Exact || from < 0 || (law.Step > 0 && from % law.Step != 0)) {
    return 0;
  }
  const auto at = static_cast<std::size_t>(law.Step > 0 ? from / law.Step : from);
  return at < law.Share.size() ? law.Share[at] : 0;
}

double fncShareBelow(const SumLaw& law, std::int64_t sum) {
  double below = 0;
  for (std::size_t i = 0; i < law.Share.size(); ++i) {
    const std::int64_t past = sum - law.Low - static_cast<std::int64_t>(i) * law.Step;
    if (law.Exact) {
      below += past > 0 ? law.Share[i] : 0;
    } else {
      // A point of a coarse grid stands for the half step on either side of it.
      const double part = 0.5 + static_cast<double>(past) / static_cast<double>(law.Step);
      below += law.Share[i] * std::clamp(part, 0.0, 1.0);
    }
  }
  return below;
}

std::array<double, 4> fncQuantiles(const SumLaw& law, const std::array<double, 4>& shares) {
  std::array<double, 4> sums{};
  double below = 0;
  std::size_t next = 0;
  for (std::size_t i = 0; i < law.Share.size() && next < sums.size(); ++i) {
    below += law.Share[i];
    const std::int64_t sum = law.Low + static_cast<std::int64_t>(i) * law.Step;
    for (; next < sums.size() && (below >= shares.at(next) || i + 1 == law.Share.size()); ++next) {
      sums.at(next) = static_cast<double>(sum) / intTwentieths;
    }
  }
  return sums;
}
