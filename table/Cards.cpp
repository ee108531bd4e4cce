#include "table/Cards.h"

#include <array>

#include "shell/CardsDealt.h"

namespace {

constexpr Table<const char*, 4> strSuits({"Spade", "Club", "Diamond", "Heart"});
constexpr std::array<const char*, 14> strValues{"",  "1", "2", "3",  "4",    "5",     "6",
                                                "7", "8", "9", "10", "Jack", "Queen", "King"};

/// Columns of a row of the list: the card's name, and behind a blank its mark.
constexpr std::size_t intNameColumns = 13;
constexpr std::size_t intMarkColumn = 14;
constexpr std::size_t intRowColumns = 21;

}  // namespace

Integer CardNumber1To52(Integer card) { return card % intSlotsOfDeck + 1; }

std::string CardSuite(Integer card) {
  const int suit = card % intSlotsOfDeck / 13;
  intSuitRow = suit + 1;
  return strSuits[suit];
}

std::string fncCardValueName(Integer value) {
  return value >= 1 && value <= 13 ? strValues[static_cast<std::size_t>(int{value})] : "";
}

std::string fncCardName(Integer number) {
  const Integer value = (number - 1) % 13 + 1;
  const std::string name = value == 1 ? "Ace" : fncCardValueName(value);
  return name + " of " + strSuits[(number - 1) / 13] + "s";
}

void prcInitCardsDealtCount() {
  for (int value = 1; value <= 13; ++value) {
    varCardsDealtCount[value - 1].Name = fncCardValueName(value);
    varCardsDealtCount[value - 1].Suit.fill(0);
  }
}

void prcListCard(Integer card, Integer value, const std::string& mark) {
  std::string row = fncCardValueName(value) + " " + CardSuite(card);
  row.resize(intNameColumns, ' ');
  row.resize(intMarkColumn, ' ');
  row += mark;
  row.resize(intRowColumns, ' ');
  prcAddCardsDealt(row);
  ++varCardsDealtCount[value - 1].Suit[intSuitRow];
}
