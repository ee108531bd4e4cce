#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>

#include "evening/Law.h"
#include "evening/Luck.h"
#include "evening/Reckoning.h"

namespace {

EveningHand fncHand(char result, std::array<std::int16_t, 3> chips, std::int32_t unit = 10,
                    std::uint8_t decks = 8, std::array<std::int16_t, 3> other = {}) {
  EveningHand hand{.ChipValue = double(unit),
                   .Chips = {chips, other},
                   .Shoe = 1,
                   .Decks = decks,
                   .Result = result};
  for (std::size_t i = 0; i < hand.Chips.size(); ++i) {
    std::ranges::transform(hand.Chips.at(i), hand.Paid.at(i).begin(),
                           [&](int count) { return count * unit; });
  }
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

TEST(Law, OfASumIsThatOfEveryOutcomeOneByOne) {
  const std::vector<EveningHand> hands = fncMixed(9);
  const SumLaw sum = fncSum(hands, 1U << 20U);
  ASSERT_TRUE(sum.fncExact());
  double below = 0;
  for (const auto& [value, chance] : fncEnumerated(hands)) {
    ASSERT_NEAR(fncShareBelow(sum, value), below, 1e-11) << value;
    ASSERT_NEAR(fncShareAt(sum, value), chance, 1e-11) << value;
    below += chance;
  }
}

TEST(Law, OnACoarseGridStaysNearTheExactOne) {
  const std::vector<EveningHand> hands = fncMixed(400);
  const SumLaw exact = fncSum(hands, 1U << 22U), coarse = fncSum(hands, 1U << 11U);
  ASSERT_TRUE(exact.fncExact() && !coarse.fncExact());
  ASSERT_LE(coarse.Share.size(), coarse.Most);
  for (int n = -40; n <= 40; ++n) {
    const auto at = std::llround(n * 0.1 * std::sqrt(exact.Variance) * 20);
    EXPECT_NEAR(fncShareBelow(coarse, at), fncShareBelow(exact, at) + fncShareAt(exact, at) / 2,
                2e-4);
  }
}

/// Big bets on the Player and small ones on the Banker behind them, every second one won.
std::vector<EveningHand> fncBigThenSmall(int big, std::int32_t bigUnit, int small,
                                         std::int32_t smallUnit, std::int16_t smallChips) {
  std::vector<EveningHand> hands(static_cast<std::size_t>(big), fncHand('P', {0, 0, 100}, bigUnit));
  hands.resize(hands.size() + static_cast<std::size_t>(small),
               fncHand('P', {0, smallChips, 0}, smallUnit));
  for (std::size_t n = 1; n < hands.size(); n += 2) {
    hands[n].Result = 'B';
  }
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

TEST(Luck, IsRightToHalfAPercentWhateverTheMixOfBets) {
  struct Row {
    int Big;
    std::int32_t Unit;
    int Small;
  };
  for (const auto& [big, unit, small] : {Row{60, 10, 1}, Row{70, 100, 70}, Row{20, 9990, 150}}) {
    const std::vector<EveningHand> hands = fncBigThenSmall(big, unit, small, 10, 1);
    const Luck luck = fncLuckOf(hands, {.Seat = 0});
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
    const auto chips = static_cast<std::int16_t>(1 + n % 10);
    const bool blnBanker = n % 2 == 0;
    const std::int16_t none = 0;
    evening.push_back(fncHand(
        "BPBPBPT" [n % 7],
        { std::int16_t(n % 11 == 0), blnBanker ? chips : none, blnBanker ? none : chips },
        n % 3 == 0 ? 20 : 10));
  }
  EXPECT_LT(fncLuckOf(evening, {.Seat = 0}).Error, 0.005);
}

}  // namespace
