#include "evening/Reasons.h"

#include "table/Cards.h"
#include "table/DrawRules.h"

namespace {

std::string fncSaid(const char* side, int total, const char* does) {
  return std::string(side) + ' ' + std::to_string(total) + ' ' + does;
}

/// What the two-card totals decide where one of them is a natural.
std::vector<std::string> fncNaturalReasons(int player, int banker) {
  constexpr const char* strNatural = "is a natural";
  constexpr const char* strStopped = "gets no card against a natural";
  return {fncSaid("Player", player, fncNatural(player) ? strNatural : strStopped),
          fncSaid("Banker", banker, fncNatural(banker) ? strNatural : strStopped)};
}

}  // namespace

std::vector<std::string> fncReasons(const EveningHand& hand) {
  const int player = fncTotalOf(fncCardsOf(hand, Side::Player).first(2));
  const int banker = fncTotalOf(fncCardsOf(hand, Side::Banker).first(2));
  if (fncNatural(player) || fncNatural(banker)) {
    return fncNaturalReasons(player, banker);
  }
  const bool blnPlayerDraws = fncPlayerDraws(player);
  const Integer third = blnPlayerDraws ? fncCardPoint((hand.Cards[2] - 1) % 13 + 1) : Integer(0);
  const bool blnBankerDraws = fncBankerDraws(banker, !blnPlayerDraws, third);
  return {fncSaid("Player", player, blnPlayerDraws ? "draws" : "stands"),
          fncSaid("Banker", banker, blnBankerDraws ? "draws" : "stands") +
              (blnPlayerDraws ? " against " + std::to_string(third) : "")};
}
