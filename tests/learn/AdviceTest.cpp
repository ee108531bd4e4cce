#include <array>

#include "tests/Game.h"

namespace {

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
