#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "learn/Advice.h"

namespace {

/// A text with "|" for its line breaks.
std::string fncPiped(std::string text) {
  for (std::size_t at = text.find("\r\n"); at != std::string::npos; at = text.find("\r\n")) {
    text.replace(at, 2, "|");
  }
  return text;
}

/// How the six cards lie: 'f' face in view, 'b' back over a face, 'l' back alone, '.' no card.
TableView fncView(const std::string& looks) {
  TableView view;
  for (int n = 0; n < 6; ++n) {
    const char look = looks[static_cast<std::size_t>(n)];
    view.Revealed[n] = look == 'f' || look == '.';
    view.Face[n] = look == 'f' || look == 'b';
  }
  return view;
}

std::string fncAdviceOn(const std::string& looks, int Index, int v, int t) {
  std::string text = "none";
  fncAdvice(Index, fncView(looks), {v, t}, text);
  return fncPiped(text);
}

using Rows = std::vector<std::string>;

const Rows naturalRows{"8, 9", "7, 8", "6, 7", "5, 6",           "4, 5",
                       "3, 4", "2, 3", "1, 2", "1, 10, Picture", "9, 10, Picture"};

const Rows pressureRows{"|NO PRESSURE",
                        "|NO PRESSURE",
                        "|NO PRESSURE",
                        "|NO PRESSURE",
                        "|At least 5 would be good|(2 card total)",
                        "|At least 6 would be good|(2 card total)",
                        "7, 8, 9 to WIN|6 to TIE|(2 card total)",
                        "8, 9 to WIN|7 to TIE, 6 to LOSE|(2 card total)",
                        "9 to WIN|8 to TIE, other to LOSE|(2 card total)",
                        "9 to TIE, other to LOSE|PRESSURE !|(2 card total)"};

const Rows against6{"9, 8, 7,  to WIN|6 to TIE",           "8, 7, 6,  to WIN|5 to TIE",
                    "7, 6, 5,  to WIN|4 to TIE",           "6, 5, 4,  to WIN|3 to TIE",
                    "5, 4, 3,  to WIN|2 to TIE",           "4, 3, 2,  to WIN|1 to TIE",
                    "3, 2, 1,  to WIN|10, Picture to TIE", "2, 1, 10, Picture to WIN|9 to TIE",
                    "1, 10, Picture to WIN|8 to TIE",      "9, 10, Picture to WIN|7 to TIE"};

const Rows against7{
    "9, 8,  to WIN|7 to TIE|6 to LOSE",           "8, 7,  to WIN|6 to TIE|5 to LOSE",
    "7, 6,  to WIN|5 to TIE|4 to LOSE",           "6, 5,  to WIN|4 to TIE|3 to LOSE",
    "5, 4,  to WIN|3 to TIE|2 to LOSE",           "4, 3,  to WIN|2 to TIE|1 to LOSE",
    "3, 2,  to WIN|1 to TIE|10, Picture to LOSE", "2, 1,  to WIN|10, Picture to TIE|9 to LOSE",
    "1, 10, Picture to WIN|9 to TIE|8 to LOSE",   "9, 10, Picture to WIN|8 to TIE|7 to LOSE"};

const Rows against8{"9 to WIN|8 to TIE|10 , Picture, 1, 2, 3, 4, 5, 6, 7,  to LOSE",
                    "8 to WIN|7 to TIE|9, 10 , Picture, 1, 2, 3, 4, 5, 6,  to LOSE",
                    "7 to WIN|6 to TIE|8, 9, 10 , Picture, 1, 2, 3, 4, 5,  to LOSE",
                    "6 to WIN|5 to TIE|7, 8, 9, 10 , Picture, 1, 2, 3, 4,  to LOSE",
                    "5 to WIN|4 to TIE|6, 7, 8, 9, 10 , Picture, 1, 2, 3,  to LOSE",
                    "4 to WIN|3 to TIE|5, 6, 7, 8, 9, 10 , Picture, 1, 2,  to LOSE",
                    "3 to WIN|2 to TIE|4, 5, 6, 7, 8, 9, 10 , Picture, 1,  to LOSE",
                    "2 to WIN|1 to TIE|3, 4, 5, 6, 7, 8, 9, 10 , Picture,  to LOSE",
                    "1 to WIN|10, Picture to TIE|2, 3, 4, 5, 6, 7, 8, 9,  to LOSE",
                    "10, Picture to WIN|9 to TIE|1, 2, 3, 4, 5, 6, 7, 8 to LOSE"};

const Rows against9{"9 to TIE|10 , Picture, 1, 2, 3, 4, 5, 6, 7, 8,  to LOSE",
                    "8 to TIE|9, 10 , Picture, 1, 2, 3, 4, 5, 6, 7,  to LOSE",
                    "7 to TIE|8, 9, 10 , Picture, 1, 2, 3, 4, 5, 6,  to LOSE",
                    "6 to TIE|7, 8, 9, 10 , Picture, 1, 2, 3, 4, 5,  to LOSE",
                    "5 to TIE|6, 7, 8, 9, 10 , Picture, 1, 2, 3, 4,  to LOSE",
                    "4 to TIE|5, 6, 7, 8, 9, 10 , Picture, 1, 2, 3,  to LOSE",
                    "3 to TIE|4, 5, 6, 7, 8, 9, 10 , Picture, 1, 2,  to LOSE",
                    "2 to TIE|3, 4, 5, 6, 7, 8, 9, 10 , Picture, 1,  to LOSE",
                    "1 to TIE|2, 3, 4, 5, 6, 7, 8, 9, 10 , Picture,  to LOSE",
                    "10, Picture to TIE|1, 2, 3, 4, 5, 6, 7, 8, 9,  to LOSE"};

const Rows hardToBeat{"|6, 7, 8, 9 Hard to beat", "|5, 6, 7, 8 Hard to beat",
                      "|4, 5, 6, 7 Hard to beat", "|3, 4, 5, 6 Hard to beat",
                      "|2, 3, 4, 5 Hard to beat", "|1, 2, 3, 4 Hard to beat",
                      "|0, 1, 2, 3 Hard to beat"};

/// By the Banker's total 3..7, and in each by the Player's 0..5.
const std::array<Rows, 5> playerThird{
    {{"8 to WIN|6, 7, 9 is good", "8 to WIN|5, 6, 7 is good", "4, 5, 6, 7 is good|8 to LOSE",
      "3, 4, 5, 6 is good|8 to LOSE", "2, 3, 4, 5 is good|8 to LOSE",
      "1, 2, 3, 4 is good|8 to TIE"},
     {"8, 9 to WIN|5, 6, 7 is good|1, 10, Picture to LOSE",
      "8 to WIN|4, 5, 6, 7 is good|1, 9, 10, Picture to LOSE",
      "3, 4, 5, 6, 7 is good|1, 8, 9, 10, Picture to LOSE",
      "2, 3, 4, 5, 6 is good|1 to TIE|8, 9, 10, Picture to LOSE",
      "1 to WIN; 2, 3, 4, 5 is good|10, Picture to TIE|8, 9 to LOSE",
      "1, 10, Picture to WIN|2, 3, 4 is good|9 to TIE; 8 to LOSE"},
     {"8, 9 to WIN|5, 6, 7 is good|1, 2, 3, 10, Picture to LOSE",
      "8 to WIN|4, 5, 6, 7 is good|1, 2, 3, 9, 10, Picture to LOSE",
      "4, 5, 6, 7 is good|3 to TIE|1, 2, 8, 9, 10, Picture to LOSE",
      "3 to WIN|4, 5, 6 is good; 2 to TIE|1, 8, 9, 10, Picture to LOSE",
      "2, 3 to WIN|4, 5 is good; 1 to TIE|8, 9, 10, Picture to LOSE",
      "1, 2, 3 to WIN|4 is good; 10, Picture to TIE|8, 9 to LOSE"},
     {"8, 9 to WIN|6, 7 is good|1, 2, 3, 4, 5, 10, Picture to LOSE",
      "8 to WIN|6, 7 is good; 5 to TIE|1, 2, 3, 4, 9, 10, Picture to LOSE",
      "5 to WIN|6, 7 is good; 4 to TIE|1, 2, 3, 8, 9, 10, Picture to LOSE",
      "4, 5 to WIN|6 is good; 3 to TIE|1, 2, 8, 9, 10, Picture to LOSE",
      "3, 4, 5 to WIN|2 to TIE|1, 8, 9, 10, Picture to LOSE",
      "2, 3, 4 to WIN|1 to TIE|8, 9, 10, Picture to LOSE"},
     {"8, 9 to WIN|7 to TIE|1, 2, 3, 4, 5, 6, 10, Picture to LOSE",
      "7, 8 to WIN|6 to TIE|1, 2, 3, 4, 5, 9, 10, Picture to LOSE",
      "6, 7 to WIN|5 to TIE|1, 2, 3, 4, 8, 9, 10, Picture to LOSE",
      "5, 6 to WIN|4 to TIE|1, 2, 3, 7, 8, 9, 10, Picture to LOSE",
      "4, 5 to WIN|3 to TIE|1, 2, 6, 7, 8, 9, 10, Picture to LOSE",
      "3, 4 to WIN|2 to TIE|1, 5, 6, 7, 8, 9, 10, Picture to LOSE"}}};

std::string fncRow(const Rows& rows, int at) { return rows.at(static_cast<std::size_t>(at)); }

/// The last card told by the rules of the game: which card makes which total.
std::string fncLastCardByTotals(int v, int t) {
  const auto fncCardFor = [v](int total) { return (total - v + 10) % 10; };
  const auto fncListed = [&](int from, int to, const std::string& outcome) {
    std::string list;
    for (int total = from; total <= to; ++total) {
      const int card = fncCardFor(total);
      list += card == 0 ? "10 , Picture, " : std::to_string(card) + ", ";
    }
    return list.empty() ? list : list + outcome;
  };
  const int tie = fncCardFor(t);
  return fncListed(t + 1, 9, "to WIN") + "|" +
         (tie == 0 ? std::string("10 ,Picture") : std::to_string(tie)) + " to TIE|" +
         fncListed(0, t - 1, "to LOSE");
}

TEST(Advice, SaysWhatAPairNeedsForEveryCardAndTotal) {
  for (int v = 1; v <= 13; ++v) {
    const int row = v > 9 ? 0 : v;
    for (int t = 0; t <= 9; ++t) {
      EXPECT_EQ(fncAdviceOn("fb.bb.", 1, v, t), "|" + fncRow(naturalRows, row) + " for NATURAL");
      EXPECT_EQ(fncAdviceOn("ff.bb.", 3, v, t), fncRow(pressureRows, t));
      const std::string low = "|" + fncRow(naturalRows, row) + " to WIN";
      const std::string expected = t < 6    ? low
                                   : t == 6 ? fncRow(against6, row)
                                   : t == 7 ? fncRow(against7, row)
                                   : t == 8 ? fncRow(against8, row)
                                            : fncRow(against9, row);
      EXPECT_EQ(fncAdviceOn("ff.bf.", 3, v, t), expected) << v << " against " << t;
    }
  }
}

TEST(Advice, SaysWhatAThirdCardNeedsForEveryTwoTotals) {
  for (int t = 0; t <= 9; ++t) {
    for (int v = 0; v <= 6; ++v) {
      const std::string told = t < 3 ? fncRow(hardToBeat, v)
                               : t > 7 || v > 5
                                   ? ""
                                   : fncRow(playerThird.at(static_cast<std::size_t>(t - 3)), v);
      EXPECT_EQ(fncAdviceOn("ffbff.", 2, v, t), told) << v << " against " << t;
      EXPECT_EQ(fncAdviceOn("ffbffb", 5, v, t), fncRow(hardToBeat, v));
      EXPECT_EQ(fncAdviceOn("fffffb", 5, v, t), fncLastCardByTotals(v, t));
    }
  }
}

TEST(Advice, SpellsTheLastCardAsPlayersKnowIt) {
  EXPECT_EQ(fncAdviceOn("ff.ffb", 5, 0, 0),
            "1, 2, 3, 4, 5, 6, 7, 8, 9, to WIN|10 ,Picture to TIE|");
  EXPECT_EQ(fncAdviceOn("ff.ffb", 5, 6, 4),
            "9, 10 , Picture, 1, 2, 3, to WIN|8 to TIE|4, 5, 6, 7, to LOSE");
  EXPECT_EQ(fncAdviceOn("ffbfff", 2, 5, 9),
            "|4 to TIE|5, 6, 7, 8, 9, 10 , Picture, 1, 2, 3, to LOSE");
}

/// The stage that a card's advice belongs to, told side by side; the last that applies stands.
std::string fncExpectedStage(const std::string& looks, int Index) {
  std::array<bool, 6> up{};
  for (std::size_t n = 0; n < 6; ++n) {
    up.at(n) = looks[n] == '.' || looks[n] == 'f';
  }
  const auto [P1, P2, P3, B1, B2, B3] = up;
  if (!(P1 || P2 || B1 || B2)) {
    return "none";
  }
  const bool blnP = Index == 0 || Index == 1;
  const bool blnB = Index == 3 || Index == 4;
  const char thirdP = looks[2];
  const char thirdB = looks[5];
  std::string stage = "none";
  if ((blnP && P1 != P2 && !(B1 && B2)) || (blnB && B1 != B2 && !(P1 && P2))) {
    stage = "|6, 7 for NATURAL";
  }
  if ((P1 && P2 && !B1 && !B2) || (B1 && B2 && !P1 && !P2)) {
    stage = "|NO PRESSURE";
  }
  if ((blnP && P1 != P2 && B1 && B2) || (blnB && B1 != B2 && P1 && P2)) {
    stage = "|6, 7 to WIN";
  }
  if (Index == 2 && !P3 && (thirdB == '.' || thirdB == 'b')) {
    stage = "4, 5, 6, 7 is good|8 to LOSE";
  }
  if (Index == 5 && !B3 && thirdP == 'b') {
    stage = "|4, 5, 6, 7 Hard to beat";
  }
  if ((Index == 5 && !B3 && (thirdP == '.' || thirdP == 'f')) ||
      (Index == 2 && !P3 && thirdB == 'f')) {
    stage = "2, 3, 4, 5, 6, 7, to WIN|1 to TIE|8, 9, 10 , Picture, to LOSE";
  }
  return stage;
}

TEST(Advice, KnowsItsStageHoweverTheCardsLie) {
  const std::string marks = ".fbl";
  for (std::size_t number = 0; number < 4096; ++number) {
    std::string looks(6, '.');
    for (std::size_t n = 0; n < 6; ++n) {
      looks[n] = marks[(number >> (2 * n)) & 3];
    }
    for (int Index = 0; Index < 6; ++Index) {
      ASSERT_EQ(fncAdviceOn(looks, Index, 2, 3), fncExpectedStage(looks, Index))
          << looks << " at " << Index;
    }
  }
}

}  // namespace
