#include "evening/Law.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <numeric>

#include "table/Odds.h"

namespace {

constexpr std::array<char, 3> chrResults{'B', 'P', 'T'};

/// Chances below this are dropped; an evening of them is far below any share that is told.
constexpr double dblNoChance = 1e-13;

std::array<double, 3> fncChances(int decks) {
  const OddsRow& row = fncOdds(decks);
  const auto all = static_cast<double>(row.fncAll());
  return {static_cast<double>(row.Banker) / all, static_cast<double>(row.Player) / all,
          static_cast<double>(row.Tie) / all};
}

std::int64_t fncLeast(const HandLaw& hand) { return *std::ranges::min_element(hand.Net); }

// --- Results kept as they are ---

/// Adds the hand to every result. The three lists of sums rise each, so they are merged.
void prcJoin(SumLaw& law, const HandLaw& hand) {
  const std::vector<Atom> before = std::move(law.Atoms);
  law.Atoms.clear();
  law.Atoms.reserve(std::min(3 * before.size(), law.Most + 1));
  std::array<std::size_t, 3> at{};
  constexpr std::int64_t lngEnd = std::numeric_limits<std::int64_t>::max();
  const auto sumOf = [&](std::size_t n) {
    return at.at(n) < before.size() ? before[at.at(n)].Sum + hand.Net.at(n) : lngEnd;
  };
  std::array<std::int64_t, 3> sums{sumOf(0), sumOf(1), sumOf(2)};
  for (std::int64_t least = 0; (least = *std::ranges::min_element(sums)) != lngEnd;) {
    Atom atom{least, 0};
    for (std::size_t n = 0; n < sums.size(); ++n) {
      if (sums.at(n) == least) {
        atom.Share += before[at.at(n)++].Share * hand.Chance.at(n);
        sums.at(n) = sumOf(n);
      }
    }
    if (atom.Share > dblNoChance) {
      law.Atoms.push_back(atom);
    }
  }
  for (const std::int64_t net : hand.Net) {
    law.Lattice = std::gcd(law.Lattice, net - hand.Net.front());
  }
}

// --- The grid ---

bool fncFits(const SumLaw& law, std::int64_t reach) {
  const auto points = static_cast<std::int64_t>(law.Share.size() - 1) * law.Step;
  return (points + reach) / law.Step < static_cast<std::int64_t>(law.Most);
}

/// Shares by which a result between two points goes to the point before both, to both, and to the
/// point behind them, so that the first three moments of the sum stay. Part is its place, 0..1.
std::array<double, 4> fncSplit(double part) {
  return {-part * (1 - part) * (2 - part) / 6, (1 - part * part) * (2 - part) / 2,
          part * (1 + part) * (2 - part) / 2, -part * (1 - part * part) / 6};
}

/// Adds a share to a place on the grid that lies in twentieths from its first point.
void prcLay(std::vector<double>& share, std::int64_t from, std::int64_t step, double part) {
  const auto split = fncSplit(static_cast<double>(from % step) / static_cast<double>(step));
  for (std::size_t n = 0; n < split.size(); ++n) {
    share[static_cast<std::size_t>(from / step) + n] += split.at(n) * part;
  }
}

/// Lays the results on a grid, one point before the first and two behind the last for what is
/// split.
void prcLayGrid(SumLaw& law) {
  const std::int64_t low = law.Atoms.front().Sum, span = law.Atoms.back().Sum - low;
  law.Step = law.Lattice;
  while (span / law.Step + 4 >= static_cast<std::int64_t>(law.Most)) {
    law.Step *= 2;
  }
  law.Share.assign(static_cast<std::size_t>(span / law.Step) + 4, 0);
  law.Low = low - law.Step;
  for (const Atom& atom : law.Atoms) {
    prcLay(law.Share, atom.Sum - low, law.Step, atom.Share);
  }
  law.Atoms = {};
}

/// Doubles the step.
void prcCoarsen(SumLaw& law) {
  std::vector<double> share(law.Share.size() / 2 + 4);
  for (std::size_t i = 0; i < law.Share.size(); ++i) {
    prcLay(share, static_cast<std::int64_t>(i), 2, law.Share[i]);
  }
  law.Share = std::move(share);
  law.Step *= 2;
  law.Low -= law.Step;
}

/// A point of what is split reaches one point back and two on.
constexpr std::size_t lngSplit = 3;

/// Adds shares with lngSplit empty points at either end, each split in these parts.
void prcAddSplit(const std::vector<double>& from, const std::array<double, 4>& parts, double* to) {
  const auto [first, second, third, fourth] = parts;
  for (std::size_t i = 0; i + lngSplit < from.size(); ++i) {
    to[i] += from[i] * fourth + from[i + 1] * third + from[i + 2] * second + from[i + 3] * first;
  }
}

void prcConvolve(SumLaw& law, const HandLaw& hand) {
  std::vector<double> before(law.Share.size() + 2 * lngSplit);
  std::ranges::copy(law.Share, before.begin() + lngSplit);
  const auto reach = static_cast<std::size_t>(fncSpan(hand) / law.Step);
  law.Share.assign(law.Share.size() + lngSplit + reach, 0);
  for (std::size_t n = 0; n < hand.Net.size(); ++n) {
    const std::int64_t moved = hand.Net.at(n) - fncLeast(hand);
    std::array<double, 4> parts =
        fncSplit(static_cast<double>(moved % law.Step) / static_cast<double>(law.Step));
    for (double& part : parts) {
      part *= hand.Chance.at(n);
    }
    prcAddSplit(before, parts, law.Share.data() + moved / law.Step);
  }
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

double fncVariance(const HandLaw& hand) {
  double mean = 0, square = 0;
  for (std::size_t n = 0; n < hand.Net.size(); ++n) {
    const double net = static_cast<double>(hand.Net.at(n)) / intTwentieths;
    mean += hand.Chance.at(n) * net;
    square += hand.Chance.at(n) * net * net;
  }
  return square - mean * mean;
}

}  // namespace

std::int64_t fncSpan(const HandLaw& hand) {
  return *std::ranges::max_element(hand.Net) - fncLeast(hand);
}

HandLaw fncHandLaw(const EveningHand& hand, Integer intSeat) {
  HandLaw law{.Chance = fncChances(hand.Decks)};
  for (std::size_t n = 0; n < law.Net.size(); ++n) {
    law.Net.at(n) = std::llround(fncNet(hand, intSeat, chrResults.at(n)) * intTwentieths);
  }
  return law;
}

double fncCost(const EveningHand& hand, Integer intSeat, BetSide side) {
  const std::array<double, 3> chances = fncChances(hand.Decks);
  double cost = 0;
  for (std::size_t n = 0; n < chances.size(); ++n) {
    cost -= chances.at(n) * fncNet(hand, intSeat, side, chrResults.at(n));
  }
  return cost;
}

HandLaw fncTogether(HandLaw seat, const HandLaw& other) {
  std::ranges::transform(seat.Net, other.Net, seat.Net.begin(), std::plus());
  return seat;
}

void prcAddHand(SumLaw& law, const HandLaw& hand) {
  if (hand.fncEmpty()) {
    return;
  }
  law.Variance += fncVariance(hand);
  if (law.fncExact()) {
    prcJoin(law, hand);
    if (law.Atoms.size() > law.Most) {
      prcLayGrid(law);
    }
    return;
  }
  while (!fncFits(law, fncSpan(hand))) {
    prcCoarsen(law);
  }
  prcConvolve(law, hand);
  prcTrim(law);
  law.Low += fncLeast(hand);
}

double fncShareAt(const SumLaw& law, std::int64_t sum) {
  const auto atom = std::ranges::lower_bound(law.Atoms, sum, {}, &Atom::Sum);
  return atom != law.Atoms.end() && atom->Sum == sum ? atom->Share : 0;
}

double fncShareBelow(const SumLaw& law, std::int64_t sum) {
  double below = 0;
  for (const Atom& atom : law.Atoms) {
    below += atom.Sum < sum ? atom.Share : 0;
  }
  for (std::size_t i = 0; i < law.Share.size(); ++i) {
    // A point of the grid stands for the half step on either side of it.
    const std::int64_t past = sum - law.Low - static_cast<std::int64_t>(i) * law.Step;
    const double part = 0.5 + static_cast<double>(past) / static_cast<double>(law.Step);
    below += law.Share[i] * std::clamp(part, 0.0, 1.0);
  }
  return below;
}

double fncShareNear(const SumLaw& law, std::int64_t sum) {
  double near = 0;
  for (std::size_t i = 0; i < law.Share.size(); ++i) {
    const std::int64_t point = law.Low + static_cast<std::int64_t>(i) * law.Step;
    near += 2 * std::abs(point - sum) <= 3 * law.Step ? std::abs(law.Share[i]) : 0;
  }
  return near;
}

std::array<double, 4> fncQuantiles(const SumLaw& law, const std::array<double, 4>& shares) {
  const std::size_t size = law.fncExact() ? law.Atoms.size() : law.Share.size();
  std::array<double, 4> sums{};
  double below = 0;
  std::size_t next = 0;
  for (std::size_t i = 0; i < size && next < sums.size(); ++i) {
    const double share = law.fncExact() ? law.Atoms[i].Share : law.Share[i];
    for (; next < sums.size() && (below + share >= shares.at(next) || i + 1 == size); ++next) {
      const double part = std::clamp((shares.at(next) - below) / share, 0.0, 1.0) - 0.5;
      const double sum = law.fncExact()
                             ? static_cast<double>(law.Atoms[i].Sum)
                             : static_cast<double>(law.Low) +
                                   (static_cast<double>(i) + part) * static_cast<double>(law.Step);
      sums.at(next) = sum / intTwentieths;
    }
    below += share;
  }
  return sums;
}
