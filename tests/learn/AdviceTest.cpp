#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>
#include <regex>
#include <set>
#include <utility>

#include "learn/Advice.h"
#include "tests/Game.h"

namespace {

/// What is advised on a card by the two numbers that the advice asks for, piped; "none" where there
/// is no advice. The six cards lie with 'f' face in view, 'b' back over a face, '.' no card.
std::string fncAdviceOn(const std::string& looks, int Index, int v, int t) {
  TableView view;
  for (int n = 0; n < intPositions; ++n) {
    const char look = looks.at(static_cast<std::size_t>(n));
    view.Revealed[n] = look != 'b';
    view.Face[n] = look != '.';
  }
  std::string text = "none";
  fncAdvice(Index, view, {v, t}, text);
  return fncPiped(text);
}

/// Cards by what is promised of them, tens and pictures as 0.
using Promises = std::map<std::string, std::set<int>>;

/// Reads "8, 9 to WIN|10, Picture to TIE".
Promises fncPromised(const std::string& text) {
  static const std::regex said("(\\d+)|WIN|TIE|LOSE|NATURAL|Hard|good");
  Promises promises;
  std::set<int> cards;
  for (std::sregex_iterator word(text.begin(), text.end(), said), end; word != end; ++word) {
    if ((*word)[1].matched) {
      cards.insert(std::stoi(word->str()) % 10);
    } else {
      promises[word->str()] = std::exchange(cards, {});
    }
  }
  return promises;
}

const char* fncOutcome(int own, int other, int /*card*/ = 0) {
  return own > other ? "WIN" : own == other ? "TIE" : "LOSE";
}

/// What can be promised of a card that makes a total of own, while the other side stands at t. A
/// null text is no promise.
struct AdviceRow {
  const char* Looks;
  int Index, MostV, LeastT, MostT;
  const char* (*Promise)(int own, int t, int card);
};

const char* fncNatural(int own, int /*t*/, int /*card*/) { return own >= 8 ? "NATURAL" : nullptr; }

/// The last of the first four: only naturals and totals of 6 and more take no third card.
const char* fncFourth(int own, int t, int /*card*/) {
  const bool blnOver = own >= 8 || t >= 8 || (own >= 6 && t >= 6);
  return blnOver ? fncOutcome(own, t) : nullptr;
}

/// The Player's third: the Banker's total of 3 to 7 draws on some cards, and then a high total is
/// good.
const char* fncPlayerThird(int own, int t, int card) {
  constexpr std::array<std::pair<int, int>, 5> draws{{{0, 9}, {2, 7}, {4, 7}, {6, 7}, {1, 0}}};
  const auto [least, most] = draws.at(static_cast<std::size_t>(t - 3));
  const bool blnDraws = card >= least && card <= most && !(t == 3 && card == 8);
  return !blnDraws ? fncOutcome(own, t) : own >= (t == 3 ? 6 : 5) ? "good" : nullptr;
}

const char* fncHardToBeat(int own, int /*t*/, int /*card*/) { return own >= 6 ? "Hard" : nullptr; }

/// Cards that the texts do not name, though they would belong there: kept on purpose.
bool fncUnnamed(const AdviceRow& row, int v, int t, int card) {
  const bool blnFourth = row.Promise == fncFourth && t == 6;
  return (blnFourth && v == 8 && card == 9) || (blnFourth && v == 9 && card == 8) ||
         (row.Promise == fncPlayerThird && v == 5 && t == 6 && card == 5);
}

TEST(Advice, PromisesWhatTheRulesOfDrawingGive) {
  const AdviceRow rows[]{
      {"fb.bb.", 1, 13, 0, 0, fncNatural},   {"ff.bf.", 3, 13, 0, 9, fncFourth},
      {"ffbff.", 2, 6, 0, 2, fncHardToBeat}, {"ffbff.", 2, 5, 3, 7, fncPlayerThird},
      {"ffbffb", 5, 6, 0, 9, fncHardToBeat}, {"fffffb", 5, 6, 0, 9, fncOutcome}};
  for (const AdviceRow& row : rows) {
    for (int number = 0; number <= row.MostV * 10 + 9; ++number) {
      const int v = number / 10, t = number % 10;
      Promises expected;
      for (int card = 0; t >= row.LeastT && t <= row.MostT && card < 10; ++card) {
        const int own = ((v > 9 ? 0 : v) + card) % 10;
        const char* promise = row.Promise(own, t, card);
        if (promise != nullptr && !fncUnnamed(row, v, t, card)) {
          expected[promise].insert(card);
        }
      }
      if (!expected.empty()) {
        const std::string text = fncAdviceOn(row.Looks, row.Index, v, t);
        EXPECT_EQ(fncPromised(text), expected) << row.Looks << ' ' << v << ' ' << t << ": " << text;
      }
    }
  }
}

TEST(Advice, SaysHowHardTheOtherPairHasIt) {
  const char* const from3[]{"|NO PRESSURE",
                            "|At least 5 would be good|(2 card total)",
                            "|At least 6 would be good|(2 card total)",
                            "7, 8, 9 to WIN|6 to TIE|(2 card total)",
                            "8, 9 to WIN|7 to TIE, 6 to LOSE|(2 card total)",
                            "9 to WIN|8 to TIE, other to LOSE|(2 card total)",
                            "9 to TIE, other to LOSE|PRESSURE !|(2 card total)"};
  for (int t = 0; t < 10; ++t) {
    EXPECT_EQ(fncAdviceOn("ff.bb.", 3, 1, t), from3[std::max(t - 3, 0)]);
  }
}

}  // namespace
