#include "evening/LuckWords.h"

#include <algorithm>
#include <cmath>

#include "evening/EveningWindow.h"
#include "platform/Texts.h"

namespace {

/// One decimal place, as plain text.
std::string fncTenths(double number) {
  const auto tenths = static_cast<long>(std::lround(std::abs(number) * 10));
  return std::to_string(tenths / 10) + "." + std::to_string(tenths % 10);
}

std::string fncWho(const Scope& scope) {
  const std::string seat = scope.Seat < 0 ? "Both players" : fncSeatName(scope.Seat);
  return seat + ", " + (scope.Shoe == 0 ? "whole evening" : "shoe " + std::to_string(scope.Shoe));
}

std::string fncFortune(const Luck& luck) {
  const std::string size = fncCurrency(std::abs(luck.Fortune));
  const std::string deviations =
      fncTenths(luck.Deviations) + " standard deviations of " + fncCurrency(luck.Deviation);
  return (luck.Fortune < 0 ? "Bad luck took " : "Good luck gave ") + size + ": " + deviations + ".";
}

/// A share of players as so many of 100. Only none and all are called so.
std::string fncOfHundred(double share) {
  if (share > 0 && share < 0.005) {
    return "fewer than 1";
  }
  if (share < 1 && share > 0.995) {
    return "more than 99";
  }
  return std::to_string(std::lround(share * 100));
}

std::string fncExactness(const Luck& luck) {
  if (luck.Exact) {
    return "These shares are exact for full shoes.";
  }
  return "These shares are right to within " +
         fncTenths(std::max(std::ceil(luck.Error * 1000), 1.0) / 10) + " percent.";
}

}  // namespace

std::string fncOutcomeWords(const Luck& luck) {
  const std::string amount = fncCurrency(std::abs(luck.Won));
  return luck.Won < 0 ? "Lost " + amount : luck.Won > 0 ? "Won " + amount : "Neither won nor lost";
}

std::string fncLuckWords(const Scope& scope, const Luck& luck) {
  if (luck.Hands == 0) {
    return fncWho(scope) + ": no bets.";
  }
  const std::string hands = fncWho(scope) + ": " + fncCounted(luck.Hands, "hand") + " with a bet.";
  if (!luck.Reckoned) {
    return hands + strLineBreak + "The luck of that is being reckoned...";
  }
  return hands + strLineBreak + "Staked " + fncCurrency(fncOfAll(luck.Staked)) +
         "; on average the house keeps " + fncCurrency(fncOfAll(luck.Cost)) + " of that." +
         strLineBreak + fncFortune(luck) + strLineBreak + "Of 100 players with the same bets " +
         fncOfHundred(luck.Worse) + " would have done worse, " + fncOfHundred(luck.Better) +
         " better." + strLineBreak + fncExactness(luck);
}
