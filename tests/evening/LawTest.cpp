#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>

#include "evening/Law.h"
#include "evening/Luck.h"
#include "evening/Reckoning.h"
#include "table/Odds.h"

namespace {

/// Makes the chips of a hand worth so much each.
void prcPay(EveningHand& hand, std::int32_t unit) {
  hand.ChipValue = unit;
  for (std::size_t i = 0; i < hand.Chips.size(); ++i) {
    std::ranges::transform(hand.Chips.at(i), hand.Paid.at(i).begin(),
                           [&](int count) { return count * unit; });
  }
}

EveningHand fncHand(char result, std::array<std::int16_t, 3> chips, std::int32_t unit = 10,
                    std::uint8_t decks = 8, std::array<std::int16_t, 3> other = {}) {
  EveningHand hand;
  hand.Chips = {chips, other};
  prcPay(hand, unit);
  hand.Decks = decks;
  hand.Result = result;
  hand.Shoe = 1;
  return hand;
}

/// The bets of both seats.
HandLaw fncBoth(const EveningHand& hand) {
  return fncTogether(fncHandLaw(hand, 0), fncHandLaw(hand, 1));
}

/// Every outcome of every hand, one by one: the chance of each sum of the seats in twentieths.
std::map<std::int64_t, double> fncEnumerated(const std::vector<EveningHand>& hands) {
  std::map<std::int64_t, double> sums{{0, 1.0}};
  for (const EveningHand& hand : hands) {
    std::map<std::int64_t, double> next;
    const HandLaw law = fncBoth(hand);
    for (const auto& [sum, chance] : sums) {
      for (std::size_t n = 0; n < 3; ++n) {
        next[sum + law.Net.at(n)] += chance * law.Chance.at(n);
      }
    }
    sums = next;
  }
  return sums;
}

/// Hands of all kinds by a plain rule: sizes, sides, chip values, shoes and both seats.
std::vector<EveningHand> fncMixed(int count) {
  std::vector<EveningHand> hands;
  for (int n = 0; n < count; ++n) {
    const auto chips = static_cast<std::int16_t>(1 + n * n % 23);
    const auto ties = static_cast<std::int16_t>(n % 4 == 0 ? 2 : 0);
    const bool blnBanker = n % 3 == 0;
    hands.push_back(fncHand(
        'B', {ties, blnBanker ? chips : std::int16_t{0}, blnBanker ? std::int16_t{0} : chips},
        n % 5 == 0 ? 50 : 10, n % 2 == 0 ? 8 : 1, {std::int16_t{1}, std::int16_t(n % 7), 0}));
  }
  return hands;
}

/// The luck of an evening of these hands.
Luck fncLuckOf(const std::vector<EveningHand>& hands, const Scope& scope) {
  prcForgetReckoning();
  colEveningHands = {hands.begin(), hands.end()};
  while (!fncReckonOn(scope.Shoe)) {
  }
  const Luck luck = fncLuck(scope);
  colEveningHands.clear();
  prcForgetReckoning();
  return luck;
}

SumLaw fncSum(const std::vector<EveningHand>& hands, std::size_t most) {
  SumLaw sum{.Most = most};
  for (const EveningHand& hand : hands) {
    prcAddHand(sum, fncBoth(hand));
  }
  return sum;
}

TEST(Law, OfTheCasinosOddsByHand) {
  // Eight decks, as published: Banker 45.86 %, Player 44.62 %, Tie 9.52 %.
  const HandLaw banker = fncHandLaw(fncHand('B', {1, 2, 0}, 100), 0);
  EXPECT_EQ(banker.Net, (std::array<std::int64_t, 3>{1800, -6000, 16000}));
  EXPECT_NEAR(banker.Chance[0], 0.458597, 5e-7);
  EXPECT_NEAR(banker.Chance[1], 0.446247, 5e-7);
  EXPECT_NEAR(banker.Chance[2], 0.095156, 5e-7);
  const HandLaw player = fncHandLaw(fncHand('B', {0, 0, 3}), 0);
  EXPECT_EQ(player.Net, (std::array<std::int64_t, 3>{-600, 600, 0}));
}

TEST(Law, OfASumIsThatOfEveryOutcomeOneByOne) {
  const std::vector<EveningHand> hands = fncMixed(9);
  const SumLaw sum = fncSum(hands, 1U << 20U);
  ASSERT_TRUE(sum.fncExact());
  double below = 0, mean = 0, square = 0;
  for (const auto& [value, chance] : fncEnumerated(hands)) {
    ASSERT_NEAR(fncShareBelow(sum, value), below, 1e-11) << value;
    ASSERT_NEAR(fncShareAt(sum, value), chance, 1e-11) << value;
    below += chance;
    const double money = static_cast<double>(value) / intTwentieths;
    mean += chance * money;
    square += chance * money * money;
  }
  EXPECT_NEAR(sum.Mean, mean, 1e-9);
  EXPECT_NEAR(sum.Variance, square - mean * mean, 1e-6);
}

TEST(Law, OnACoarseGridStaysNearTheExactOne) {
  for (const int count : {60, 400}) {
    const std::vector<EveningHand> hands = fncMixed(count);
    const SumLaw exact = fncSum(hands, 1U << 22U), coarse = fncSum(hands, 1U << 11U);
    ASSERT_TRUE(exact.fncExact());
    ASSERT_FALSE(coarse.fncExact());
    ASSERT_LE(coarse.Share.size(), coarse.Most);
    double worst = 0;
    for (int n = -40; n <= 40; ++n) {
      const auto at = std::llround((exact.Mean + n * 0.1 * std::sqrt(exact.Variance)) * 20);
      const double want = fncShareBelow(exact, at) + fncShareAt(exact, at) / 2;
      worst = std::max(worst, std::abs(want - fncShareBelow(coarse, at)));
    }
    EXPECT_LT(worst, 2e-4) << count << " hands";
  }
}

TEST(Law, OfTenThousandEvenBetsIsTheBinomialOne) {
  // Player bets of one size: a lattice of wins less losses, and near the middle the normal law.
  const EveningHand hand = fncHand('P', {0, 0, 1});
  const SumLaw sum = fncSum(std::vector<EveningHand>(10'000, hand), 1U << 11U);
  EXPECT_TRUE(sum.fncExact());
  const double edge = fncEdge(fncOdds(8), betPlayer);
  EXPECT_NEAR(sum.Mean, -10'000 * 10 * edge, 1e-6);
  const auto quantiles = fncQuantiles(sum, {0.05, 0.25, 0.75, 0.95});
  const double deviation = std::sqrt(sum.Variance);
  const std::array<double, 4> z{-1.644854, -0.674490, 0.674490, 1.644854};
  for (std::size_t n = 0; n < z.size(); ++n) {
    EXPECT_NEAR(quantiles.at(n), sum.Mean + z.at(n) * deviation, 10) << "one chip is a step";
  }
}

TEST(Luck, IsThatOfTheEveningWorkedByHandOnTheHelpsPage) {
  // Seat 0 bets $100 on the Banker of three hands, seat 1 a chip on the first tie.
  const std::vector<EveningHand> hands{fncHand('B', {0, 10, 0}, 10, 8, {1, 0, 0}),
                                       fncHand('P', {0, 10, 0}), fncHand('B', {0, 10, 0})};
  const Luck luck = fncLuckOf(hands, {.Seat = 0});
  EXPECT_EQ(luck.Hands, 3);
  EXPECT_EQ(luck.Staked[betBanker], 300);
  EXPECT_NEAR(luck.Cost[betBanker], 3.17, 0.005);
  EXPECT_DOUBLE_EQ(luck.Won, 90);
  EXPECT_NEAR(luck.Expected, -3.17, 0.005);
  EXPECT_NEAR(luck.Fortune, 93.17, 0.005);
  EXPECT_NEAR(luck.Deviation, 160.63, 0.005);
  EXPECT_NEAR(luck.Deviations, 0.58, 0.005);
  EXPECT_NEAR(luck.Worse, 0.549505, 1e-6);
  EXPECT_NEAR(luck.Better,
              0.458597 * 0.458597 * (0.458597 + 3 * 0.095156) + 3 * 0.458597 * 0.095156 * 0.095156,
              2e-6);
  EXPECT_TRUE(luck.Exact);
  EXPECT_EQ(fncLuckOf(hands, {.Seat = 1}).Hands, 1);
  EXPECT_EQ(fncLuckOf(hands, {.Seat = 1}).Won, -10);
  EXPECT_EQ(fncLuckOf(hands, {}).Won, 80);
  EXPECT_EQ(fncLuckOf(hands, {.Seat = -1, .Shoe = 2}).Hands, 0);
}

/// Big bets on the Player, every second one won, and small ones on the Banker behind them, all
/// lost.
std::vector<EveningHand> fncBigThenSmall(int big, std::int32_t bigUnit, int small,
                                         std::int32_t smallUnit, std::int16_t smallChips) {
  std::vector<EveningHand> hands(static_cast<std::size_t>(big), fncHand('P', {0, 0, 100}, bigUnit));
  for (std::size_t n = 1; n < hands.size(); n += 2) {
    hands[n] = fncHand('B', {0, 0, 100}, bigUnit);
  }
  hands.resize(hands.size() + static_cast<std::size_t>(small),
               fncHand('P', {0, smallChips, 0}, smallUnit));
  return hands;
}

TEST(Law, KeepsTheBandWhereItIsWhenSmallBetsFollowBigOnes) {
  const std::array<double, 4> shares{0.05, 0.25, 0.75, 0.95};
  const std::vector<EveningHand> hands = fncBigThenSmall(1, 100, 80, 10, 10);
  const auto want = fncQuantiles(fncSum(hands, 1U << 20U), shares);
  const auto shown = fncQuantiles(fncSum(hands, 1U << 11U), shares);
  for (std::size_t n = 0; n < shares.size(); ++n) {
    EXPECT_NEAR(shown.at(n), want.at(n), 60) << "a step of the exact results is 5, a bet 100";
  }
  EXPECT_NEAR(want[0], -11135, 1e-9);
}

TEST(Luck, OfSmallBetsBehindBigOnesIsExactOrSaysHowFarItIsOff) {
  for (const auto& [hands, blnExact] : {std::pair{fncBigThenSmall(50, 10, 1, 10, 1), true},
                                        std::pair{fncBigThenSmall(60, 10, 1, 10, 1), true},
                                        std::pair{fncBigThenSmall(70, 10, 70, 10, 1), false},
                                        std::pair{fncBigThenSmall(70, 100, 70, 50, 1), false}}) {
    const Luck luck = fncLuckOf(hands, {.Seat = 0});
    const SumLaw truth = fncSum(hands, 1U << 22U);
    ASSERT_TRUE(truth.fncExact());
    const auto won = std::llround(luck.Won * intTwentieths);
    const double worse = fncShareBelow(truth, won), tied = fncShareAt(truth, won);
    EXPECT_EQ(luck.Exact, blnExact) << hands.size();
    EXPECT_NEAR(luck.Worse, worse, luck.Error + 1e-9);
    EXPECT_NEAR(luck.Better, 1 - worse - tied, luck.Error + 1e-9);
    EXPECT_LT(luck.Error, 0.005);
  }
}

TEST(Luck, TellsHowFarACoarseGridMayBeOff) {
  std::vector<EveningHand> hands;
  for (int n = 0; n < 3000; ++n) {
    hands.push_back(fncMixed(n % 40 + 1).back());
    prcPay(hands.back(), n % 2 == 0 ? 10 : 9990);
  }
  const Luck luck = fncLuckOf(hands, {});
  EXPECT_GT(luck.Error, 0);
  EXPECT_LT(luck.Error, 0.005);
  double cost = 0;
  for (const double one : luck.Cost) {
    cost += one;
  }
  EXPECT_NEAR(luck.Expected, -cost, 1e-3);
}

}  // namespace
