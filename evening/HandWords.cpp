#include "evening/HandWords.h"

std::string fncCardsBrief(const EveningHand& hand, Side side, const SuitSigns& suits) {
  std::string cards;
  for (const std::uint8_t card : fncCardsOf(hand, side)) {
    cards += (cards.empty() ? "" : " ") + fncCardBrief(card, suits);
  }
  return cards;
}

std::string fncResultName(char result) {
  return result == 'B' ? "Banker" : result == 'P' ? "Player" : "Tie";
}
