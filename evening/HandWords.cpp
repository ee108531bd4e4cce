#include "evening/HandWords.h"

#include "table/Cards.h"

std::string fncCardsBrief(const EveningHand& hand, Side side, const SuitSigns& suits) {
  constexpr std::array<const char*, 13> ranks{"A", "2", "3",  "4", "5", "6", "7",
                                              "8", "9", "10", "J", "Q", "K"};
  std::string cards;
  for (const std::uint8_t card : fncCardsOf(hand, side)) {
    const auto slot = static_cast<std::size_t>(card - 1);
    cards += (cards.empty() ? "" : " ") + std::string(ranks.at(slot % ranks.size())) +
             suits.at(slot / ranks.size());
  }
  return cards;
}

std::string fncResultName(char result) {
  return result == 'B' ? "Banker" : result == 'P' ? "Player" : "Tie";
}
