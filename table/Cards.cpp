#include "table/Cards.h"

#include <array>

namespace {

constexpr Table<const char*, 4> strSuits({"Spade", "Club", "Diamond", "Heart"});
constexpr std::array<const char*, 14> strValues{"",  "1", "2", "3",  "4",    "5",     "6",
                                                "7", "8", "9", "10", "Jack", "Queen", "King"};

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

std::string fncCardBrief(Integer number, const SuitSigns& suits) {
  const Integer value = (number - 1) % 13 + 1;
  const std::string name = value == 1   ? "A"
                           : value > 10 ? fncCardValueName(value).substr(0, 1)
                                        : fncCardValueName(value);
  return name + suits.at(static_cast<std::size_t>((number - 1) / 13));
}
