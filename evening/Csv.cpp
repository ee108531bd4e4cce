#include "evening/Csv.h"

#include "evening/Reasons.h"
#include "platform/Texts.h"

namespace {

/// The order in which cards and bets of a seat go into a row.
constexpr const char* strHeadings =
    "Hand,Shoe,Decks,Player cards,Banker cards,Player total,Banker total,Result,Decisions,Chip "
    "value,"
    "Seat 1 Banker bet,Seat 1 Player bet,Seat 1 Tie bet,Seat 1 before,Seat 1 after,Seat 1 stake,"
    "Seat 2 Banker bet,Seat 2 Player bet,Seat 2 Tie bet,Seat 2 before,Seat 2 after,Seat 2 stake,"
    "Statistics reset before\r\n";

/// A field that may hold commas or quotes.
std::string fncQuoted(const std::string& text) {
  std::string quoted = "\"";
  for (const char letter : text) {
    quoted += letter == '"' ? "\"\"" : std::string(1, letter);
  }
  return quoted + '"';
}

std::string fncDecisions(const EveningHand& hand) {
  std::string decisions;
  for (const std::string& reason : fncReasons(hand)) {
    decisions += (decisions.empty() ? "" : ", ") + reason;
  }
  return decisions;
}

const char* fncResultName(char result) {
  return result == 'B' ? "Banker" : result == 'P' ? "Player" : "Tie";
}

std::string fncSeatFields(const EveningHand& hand, int i) {
  const auto seat = static_cast<std::size_t>(i);
  std::string fields;
  for (const double money :
       {fncBetMoney(hand, i, betBanker), fncBetMoney(hand, i, betPlayer),
        fncBetMoney(hand, i, betTie), fncMoneyBefore(hand, i), hand.Money.at(seat)}) {
    fields += fncPlainNumberText(money) + ',';
  }
  return fields + fncPlainNumberText(hand.Stake.at(seat)) + ',';
}

std::string fncRow(int number) {
  const EveningHand& hand = colEveningHands.at(static_cast<std::size_t>(number) - 1);
  std::string row;
  for (const std::string& field :
       {std::to_string(number), std::to_string(hand.Shoe), std::to_string(hand.Decks),
        fncCardsBrief(hand, Side::Player), fncCardsBrief(hand, Side::Banker),
        std::to_string(fncTotalOf(hand, Side::Player)),
        std::to_string(fncTotalOf(hand, Side::Banker)), std::string(fncResultName(hand.Result)),
        fncQuoted(fncDecisions(hand)), fncPlainNumberText(hand.ChipValue)}) {
    row += field + ',';
  }
  return row + fncSeatFields(hand, 0) + fncSeatFields(hand, 1) + (hand.Reset ? "yes" : "no") +
         "\r\n";
}

}  // namespace

std::string fncCardBrief(int intCard) {
  static constexpr std::array<const char*, 13> strRanks{"A", "2", "3",  "4", "5", "6", "7",
                                                        "8", "9", "10", "J", "Q", "K"};
  if (intCard == 0) {
    return {};
  }
  const auto slot = static_cast<std::size_t>(intCard - 1);
  return strRanks.at(slot % strRanks.size()) + std::string(1, "SCDH"[slot / strRanks.size() % 4]);
}

std::string fncCardsBrief(const EveningHand& hand, Side side) {
  const std::size_t first = side == Side::Player ? 0 : 3;
  std::string cards =
      fncCardBrief(hand.Cards.at(first)) + ' ' + fncCardBrief(hand.Cards.at(first + 1));
  return fncCardsOf(hand, side) == 2 ? cards : cards + ' ' + fncCardBrief(hand.Cards.at(first + 2));
}

std::string fncHandsCsv(std::span<const int> intHands) {
  std::string rows = strHeadings;
  for (const int number : intHands) {
    rows += fncRow(number);
  }
  return rows;
}
