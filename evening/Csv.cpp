#include "evening/Csv.h"

#include <cmath>

#include "evening/HandWords.h"
#include "evening/Reasons.h"
#include "evening/Record.h"
#include "platform/Texts.h"

namespace {

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

std::string fncSeatFields(const EveningHand& hand, int i) {
  const auto seat = static_cast<std::size_t>(i);
  std::string fields;
  for (const double money :
       {fncBetMoney(hand, i, betBanker), fncBetMoney(hand, i, betPlayer),
        fncBetMoney(hand, i, betTie), fncMoneyBefore(hand, i), hand.Money.at(seat)}) {
    fields += fncPlainNumberText(std::round(money * 100) / 100) + ',';  // To the cent.
  }
  return fields + fncPlainNumberText(hand.Stake.at(seat)) + ',';
}

std::string fncRow(int number) {
  const EveningHand& hand = fncEveningHand(number);
  std::string row;
  for (const std::string& field :
       {std::to_string(number), std::to_string(hand.Shoe), std::to_string(hand.Decks),
        fncCardsBrief(hand, Side::Player, strSuitLetters),
        fncCardsBrief(hand, Side::Banker, strSuitLetters),
        std::to_string(fncTotalOf(hand, Side::Player)),
        std::to_string(fncTotalOf(hand, Side::Banker)), fncResultName(hand.Result),
        fncQuoted(fncDecisions(hand)), fncPlainNumberText(hand.ChipValue)}) {
    row += field + ',';
  }
  return row + fncSeatFields(hand, 0) + fncSeatFields(hand, 1) + (hand.Reset ? "yes" : "no") +
         "\r\n";
}

}  // namespace

std::string fncHandsCsv(std::span<const int> intHands) {
  std::string rows = strHeadings;
  for (const int number : intHands) {
    rows += fncRow(number);
  }
  return rows;
}
