#include <gtest/gtest.h>

#include <climits>
#include <utility>

#include "platform/Texts.h"

// Money as captions show it.

namespace {

TEST(Money, HalvesRoundAwayFromZeroAlsoWhereTheBooksFallShortOfThem) {
  prcSetCurrency({});
  const std::pair<double, const char*> rows[] = {
      {3 * 0.95 * 10, "$29"},  // 28.499999999999996 in the books.
      {0.95 * 10, "$10"},
      {1000 - 30 + 3 * 0.95 * 10, "$999"},
      {-(3 * 0.95 * 10), "-$29"},
      {28.4999, "$28"},
      {-0.4, "$0"},
      {1234567.5, "$1,234,568"},
      {1e15, "$1,000,000,000,000,000"}};
  for (const auto& [amount, text] : rows) {
    EXPECT_EQ(fncCurrency(amount), text) << amount;
  }
}

TEST(Money, IsWrittenByTheWholeOfTheCountrysFormat) {
  struct Row {
    const char *Symbol, *Thousands, *Grouping, *Minus;
    char First, Spaced, Place;  // Of the symbol and the sign of a negative amount.
    const char *Loss, *Seven;
  };
  const Row rows[] = {{"$", ",", "\3\3", "-", 1, 0, 1, "-$1,234,567", "$7"},
                      {"$", ",", "\3", "", 1, 0, 0, "($1,234,567)", "$7"},
                      {"₹", ",", "\3\2", "-", 1, 0, 1, "-₹12,34,567", "₹7"},
                      {"E", ".", "\3\177", "-", 0, 1, 1, "-1234.567 E", "7 E"},
                      {"E", "\u202f", "\3", "-", 0, 1, 2, "1\u202f234\u202f567 E-", "7 E"},
                      {"E", ".", "\3", "-", 0, 1, 3, "1.234.567 -E", "7 E"},
                      {"E", ".", "\3", "-", 0, 2, 1, "- 1.234.567E", "7E"},
                      {"K", ".", "", "-", 1, 1, 4, "K- 1234567", "K 7"},
                      {"K", ".", "\3", "-", 1, 2, 4, "K -1.234.567", "K 7"},
                      {"K", ".", "\3", "minus", 1, 1, 2, "K 1.234.567minus", "K 7"},
                      {"K", ".", "\3", "-", 1, 2, 2, "K1.234.567 -", "K7"},
                      {"K", "", "\3", "-", CHAR_MAX, CHAR_MAX, CHAR_MAX, "-K1234567", "K7"},
                      {"", "!", "\1", "!", 0, 1, 1, "-$1,234,567", "$7"}};  // No money of its own.
  for (const Row& row : rows) {
    const auto own = [](const char* text) { return const_cast<char*>(text); };
    std::lconv country = *std::localeconv();
    country.currency_symbol = own(row.Symbol);
    country.mon_thousands_sep = own(row.Thousands);
    country.mon_grouping = own(row.Grouping);
    country.negative_sign = own(row.Minus);
    country.n_cs_precedes = country.p_cs_precedes = row.First;
    country.n_sep_by_space = country.p_sep_by_space = row.Spaced;
    country.n_sign_posn = country.p_sign_posn = row.Place;
    prcSetCurrency(fncCurrencyOf(country));
    EXPECT_EQ(fncCurrency(-1234567), row.Loss);
    EXPECT_EQ(fncCurrency(7), row.Seven);
  }
  prcSetCurrency({});
}

}  // namespace
