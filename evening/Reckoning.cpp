#include "evening/Reckoning.h"

#include <algorithm>
#include <functional>

namespace {

Reckoning rckEvening, rckShoe;

/// Results of a law, or points of its grid, and those of the coarser one that tells how far the
/// first may be off. With half as many an evening of 4,000 hands would be off by half a percent.
constexpr std::size_t lngPoints = 1U << 12U, lngCoarsePoints = lngPoints / 4;

/// Points that are reckoned at a go: some milliseconds' worth.
constexpr std::size_t lngPortion = 1U << 18U;

/// Shares of the players below the four edges of the band.
constexpr std::array<double, 4> dblBandShares{0.05, 0.25, 0.75, 0.95};

void prcAdd(BetLaw& law, const HandLaw& hand) {
  if (hand.fncEmpty()) {
    return;
  }
  ++law.Hands;
  law.Sum.Most = lngPoints;
  law.Coarse.Most = lngCoarsePoints;
  prcAddHand(law.Sum, hand);
  prcAddHand(law.Coarse, hand);
}

BandEdges fncBand(const SumLaw& law) {
  BandEdges edges{};
  std::ranges::transform(fncQuantiles(law, dblBandShares), edges.begin(),
                         [](double edge) { return static_cast<float>(edge); });
  return edges;
}

void prcReckonHand(Reckoning& to, const EveningHand& hand) {
  ++to.Hands;
  std::array<HandLaw, 3> laws{fncHandLaw(hand, 0), fncHandLaw(hand, 1)};
  laws[2] = fncTogether(laws[0], laws[1]);
  for (std::size_t n = 0; n < laws.size(); ++n) {
    prcAdd(to.Laws.at(n), laws.at(n));
  }
  for (std::size_t seat = 0; seat < to.Band.size(); ++seat) {
    to.Band.at(seat).push_back(fncBand(to.Laws.at(seat).Sum));
  }
}

std::size_t fncPoints(const Reckoning& of) {
  std::size_t points = 0;
  for (const BetLaw& law : of.Laws) {
    points += law.Sum.Atoms.size() + law.Sum.Share.size();
  }
  return points;
}

Reckoning& fncKept(int shoe) {
  if (shoe != 0 && shoe != rckShoe.Shoe) {
    rckShoe = {.Shoe = shoe};
  }
  return shoe == 0 ? rckEvening : rckShoe;
}

}  // namespace

SplitLaw fncSplitLaw(std::vector<HandLaw> hands, std::size_t lngWide) {
  constexpr std::size_t lngResults = 3;  // Of a hand.
  std::ranges::sort(hands, std::ranges::greater(), fncSpan);
  SplitLaw law{.Wide = {.Most = lngWide}};
  bool blnWide = true;
  for (const HandLaw& hand : hands) {
    blnWide = blnWide && law.Wide.Atoms.size() * lngResults <= lngWide;
    if (blnWide) {
      prcAddHand(law.Wide, hand);
    } else {
      prcAdd(law.Rest, hand);
    }
  }
  return law;
}

const Reckoning& fncReckoning(int shoe) { return fncKept(shoe); }

bool fncReckonOn(int shoe) {
  Reckoning& kept = fncKept(shoe);
  const Reach reach = fncReach(shoe);
  for (std::size_t points = 0; reach.From + kept.Hands < reach.To && points < lngPortion;) {
    prcReckonHand(kept, fncEveningHand(reach.From + kept.Hands + 1));
    points += fncPoints(kept);
  }
  return reach.From + kept.Hands == reach.To;
}

void prcForgetReckoning() { rckEvening = rckShoe = {}; }
