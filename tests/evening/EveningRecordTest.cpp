#include <gtest/gtest.h>

#include "evening/Curve.h"
#include "evening/HandWords.h"
#include "evening/Reasons.h"

namespace {

TEST(EveningReasons, FollowTheDrawRules) {
  struct Case {
    std::array<std::uint8_t, 6>
        Cards;  // By table position; of Spades, so that a card is its value.
    std::vector<std::string> Lines;
  };
  for (const Case& c : std::initializer_list<Case>{
           {{9, 13, 0, 2, 5, 0},
            {"Player 9 is a natural", "Banker 7 gets no card against a natural"}},
           {{4, 4, 0, 9, 9, 0}, {"Player 8 is a natural", "Banker 8 is a natural"}},
           {{2, 5, 0, 2, 3, 7}, {"Player 7 stands", "Banker 5 draws"}},
           {{1, 5, 0, 2, 4, 0}, {"Player 6 stands", "Banker 6 stands"}},
           {{1, 2, 8, 1, 2, 0}, {"Player 3 draws", "Banker 3 stands against 8"}},
           {{1, 2, 12, 1, 3, 0}, {"Player 3 draws", "Banker 4 stands against 0"}},
           {{10, 10, 6, 10, 6, 9}, {"Player 0 draws", "Banker 6 draws against 6"}}}) {
    EXPECT_EQ(fncReasons({.Cards = c.Cards}), c.Lines);
  }
}

TEST(EveningWords, TellTheCardsOfASide) {
  const EveningHand suits{.Cards = {13, 14, 27, 49, 1, 0}};
  EXPECT_EQ(fncCardsBrief(suits, Side::Player, strSuitLetters), "KS AC AD");
  EXPECT_EQ(fncCardsBrief(suits, Side::Banker, strSuitLetters), "10H AS");
}

TEST(EveningCurve, FindsTheDeepestFallAndTheLongestLosingRun) {
  colEveningHands.clear();
  // A chip on the Player: won, lost, tie, lost, won, lost, lost, none, lost, won.
  for (const char result : std::string("PBTBPBB-BP")) {
    EveningHand hand{.ChipValue = 10, .Result = result};
    hand.Chips[1][betPlayer] = result == '-' ? 0 : 1;
    hand.Paid[1][betPlayer] = result == '-' ? 0 : 10;
    colEveningHands.push_back(hand);
  }
  const Stretch fall = fncDeepestFall(1), run = fncLongestLosingRun(1);
  colEveningHands.clear();
  EXPECT_EQ((std::array{fall.From, fall.To, int(fall.Amount)}), (std::array{1, 9, 40}));
  EXPECT_EQ((std::array{run.From, run.To, int(run.Amount)}), (std::array{5, 9, 3}));
}

}  // namespace
