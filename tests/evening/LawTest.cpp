#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <tuple>
#include <utility>

#include "evening/Law.h"
#include "evening/Luck.h"
#include "evening/Reckoning.h"
#include "table/Odds.h"

namespace {

/// The chips of both seats on Tie, Banker and Player.
using Chips = std::array<std::array<int, 3>, 2>;

EveningHand fncHand(char result, int unit, const Chips& chips, int decks = 8) {
  EveningHand hand{.ChipValue = double(unit),
                   .Shoe = 1,
                   .Decks = static_cast<std::uint8_t>(decks),
                   .Result = result};
  for (std::size_t n = 0; n < 6; ++n) {
    const int count = chips.at(n / 3).at(n % 3);
    hand.Chips.at(n / 3).at(n % 3) = static_cast<std::int16_t>(count);
    hand.Paid.at(n / 3).at(n % 3) = count * unit;
  }
  return hand;
}

/// Hands of all kinds by a plain rule: sizes, sides, chip values, shoes and both seats.
std::vector<EveningHand> fncMixed(int count) {
  std::vector<EveningHand> hands;
  for (int n = 0; n < count; ++n) {
    std::array<int, 3> chips{n % 4 == 0 ? 2 : 0};
    chips.at(n % 3 == 0 ? 1 : 2) = 1 + n * n % 23;
    hands.push_back(fncHand('B', n % 5 == 0 ? 50 : 10, {chips, {1, n % 7, 0}}, n % 2 == 0 ? 8 : 1));
  }
  return hands;
}

/// Big bets on the Player and small ones on the Banker behind them, every second one won.
std::vector<EveningHand> fncBigThenSmall(int big, int unit, int small, int chips) {
  std::vector<EveningHand> hands;
  for (int n = 0; n < big + small; ++n) {
    const char result = "PB"[n % 2];
    hands.push_back(n < big ? fncHand(result, unit, {{{0, 0, 100}}})
                            : fncHand(result, 10, {{{0, chips, 0}}}));
  }
  return hands;
}

/// The bets of both seats.
HandLaw fncBoth(const EveningHand& hand) {
  return fncTogether(fncHandLaw(hand, 0), fncHandLaw(hand, 1));
}

SumLaw fncSum(const std::vector<EveningHand>& hands, std::size_t most) {
  SumLaw sum{.Most = most};
  for (const EveningHand& hand : hands) {
    prcAddHand(sum, fncBoth(hand));
  }
  return sum;
}

constexpr std::array<double, 4> dblBand{0.05, 0.25, 0.75, 0.95};

TEST(Law, OfASumIsThatOfEveryOutcomeOneByOne) {
  const std::vector<EveningHand> hands = fncMixed(9);
  std::map<std::int64_t, double> sums{{0, 1.0}};  // In twentieths.
  for (const EveningHand& hand : hands) {
    const HandLaw one = fncHandLaw(hand, 0), two = fncHandLaw(hand, 1);
    const OddsRow& odds = fncOdds(hand.Decks);
    EXPECT_NEAR(one.Chance[0] * double(odds.fncAll()), double(odds.Banker), 1);
    for (const auto& [sum, chance] : std::exchange(sums, {})) {
      for (std::size_t n = 0; n < 3; ++n) {
        sums[sum + one.Net.at(n) + two.Net.at(n)] += chance * one.Chance.at(n);
      }
    }
  }
  const SumLaw sum = fncSum(hands, 1U << 20U);
  ASSERT_TRUE(sum.fncExact());
  double below = 0;
  for (const auto& [value, chance] : sums) {
    ASSERT_NEAR(fncShareBelow(sum, value), below, 1e-11) << value;
    ASSERT_NEAR(fncShareAt(sum, value), chance, 1e-11) << value;
    for (std::size_t n = 0; n < dblBand.size(); ++n) {
      if (below < dblBand.at(n) && below + chance >= dblBand.at(n)) {
        EXPECT_EQ(std::llround(fncQuantiles(sum, dblBand).at(n) * intTwentieths), value);
      }
    }
    below += chance;
  }
}

TEST(Law, OnACoarseGridStaysNearTheExactOneAlsoWhenSmallBetsFollowBigOnes) {
  for (const auto& [hands, share, money] :
       {std::tuple{fncMixed(400), 2e-4, 1}, {fncBigThenSmall(1, 100, 80, 10), 5e-3, 20}}) {
    const SumLaw exact = fncSum(hands, 1U << 22U), coarse = fncSum(hands, 1U << 11U);
    ASSERT_TRUE(exact.fncExact() && !coarse.fncExact());
    ASSERT_LE(coarse.Share.size(), coarse.Most);
    for (int n = -40; n <= 40; ++n) {
      const auto at = std::llround(n * 0.1 * std::sqrt(exact.Variance) * 20);
      EXPECT_NEAR(fncShareBelow(coarse, at), fncShareBelow(exact, at) + fncShareAt(exact, at) / 2,
                  share);
    }
    for (std::size_t n = 0; n < dblBand.size(); ++n) {
      EXPECT_NEAR(fncQuantiles(coarse, dblBand).at(n), fncQuantiles(exact, dblBand).at(n), money);
    }
  }
}

TEST(Luck, IsRightToHalfAPercentWhateverTheMixOfBets) {
  const auto luckOf = [](const std::vector<EveningHand>& hands) {
    prcForgetReckoning();
    colEveningHands = {hands.begin(), hands.end()};
    while (!fncReckonOn(0)) {
    }
    return fncLuck({.Seat = 0});
  };
  for (const auto& [big, unit, small] :
       {std::array{60, 10, 1}, std::array{70, 100, 70}, std::array{20, 9990, 150}}) {
    const std::vector<EveningHand> hands = fncBigThenSmall(big, unit, small, 1);
    const Luck luck = luckOf(hands);
    const SumLaw wide = fncSum({hands.begin(), hands.begin() + big}, 1U << 20U);
    const SumLaw rest = fncSum({hands.begin() + big, hands.end()}, 1U << 20U);
    ASSERT_TRUE(wide.fncExact() && rest.fncExact());
    const auto won = std::llround(luck.Won * intTwentieths);
    double worse = 0, tied = 0;
    for (const Atom& atom : wide.Atoms) {
      worse += atom.Share * fncShareBelow(rest, won - atom.Sum);
      tied += atom.Share * fncShareAt(rest, won - atom.Sum);
    }
    EXPECT_NEAR(luck.Worse, worse, luck.Error + 1e-7) << unit;
    EXPECT_NEAR(luck.Better, 1 - worse - tied, luck.Error + 1e-7) << unit;
    EXPECT_LT(luck.Error, 0.005) << unit;
  }
  std::vector<EveningHand> evening;  // With so many hands a grid has fewest points to a bet.
  for (int n = 0; n < 4200; ++n) {
    std::array<int, 3> chips{n % 11 == 0 ? 1 : 0};
    chips.at(n % 2 == 0 ? 1 : 2) = 1 + n % 10;
    evening.push_back(fncHand("BPBPBPT"[n % 7], n % 3 == 0 ? 20 : 10, {chips}));
  }
  EXPECT_LT(luckOf(evening).Error, 0.005);
}

}  // namespace
