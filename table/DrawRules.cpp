#include "table/DrawRules.h"

namespace {

/// The lowest and highest point of the Player's third card on which the Banker draws, by the
/// Banker's total. Only 3 has a gap: it draws on all but 8.
struct DrawSpan {
  int Low, High;
};
constexpr Table<DrawSpan, 8> spnBankerDraws(
    {{{0, 9}, {0, 9}, {0, 9}, {0, 9}, {2, 7}, {4, 7}, {6, 7}, {10, 10}}});
constexpr int intPlayerStandsFrom = 6;
constexpr int intBankerStandsFrom = 6;  ///< When the Player has stood.

}  // namespace

Integer fncTotal(Integer one, Integer other) {
  const int points = int{one} + int{other};
  return points > 9 ? points - 10 : points;
}

bool fncNatural(Integer total) { return total == 8 || total == 9; }

bool fncPlayerDraws(Integer intPlayer) { return intPlayer < intPlayerStandsFrom; }

bool fncBankerDraws(Integer intBanker, bool blnPlayerStood, Integer intCard3Point) {
  if (blnPlayerStood) {
    return intBanker < intBankerStandsFrom;
  }
  const DrawSpan span = spnBankerDraws[intBanker];
  return intCard3Point >= span.Low && intCard3Point <= span.High &&
         (intBanker != 3 || intCard3Point != 8);
}
