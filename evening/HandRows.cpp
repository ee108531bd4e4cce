#include "evening/HandRows.h"

#include <string>

#include "evening/EveningWindow.h"
#include "evening/HandWords.h"
#include "platform/Texts.h"

namespace {

enum Columns : int {
  colNumber,
  colShoe,
  colPlayerCards,
  colPlayerTotal,
  colBankerCards,
  colBankerTotal,
  colResult,
  colFirstSeat  ///< Bets and money of seat 0, then of seat 1.
};

constexpr GridColumn gridColumns[] = {
    {"Hand", 690, Alignment::Right},
    {"Shoe", 660, Alignment::Right},
    {"  Player", 1275},
    {"", 300, Alignment::Right},
    {"  Banker", 1275},
    {"", 300, Alignment::Right},
    {"  Result", 930},
    {"  Bets of Player 1", 1800},
    {"Money", 1155, Alignment::Right},
    {"  Bets of Player 2", 1800},
    {"Money", 1155, Alignment::Right},
};

std::string fncBets(const EveningHand& hand, int seat) {
  std::string bets;
  for (const auto& [side, letter] :
       {std::pair{betBanker, "B "}, std::pair{betPlayer, "P "}, std::pair{betTie, "T "}}) {
    if (const double money = fncBetMoney(hand, seat, side); money != 0) {
      bets += std::string("  ") + letter + fncCurrency(money);
    }
  }
  return bets;
}

std::string fncCell(std::int32_t number, int column) {
  const EveningHand& hand = fncEveningHand(number);
  switch (column) {
    case colNumber:
      return std::to_string(number);
    case colShoe:
      return std::to_string(hand.Shoe);
    case colPlayerCards:
      return "  " + fncCardsBrief(hand, Side::Player, strSuitPictures);
    case colPlayerTotal:
      return std::to_string(fncTotalOf(hand, Side::Player));
    case colBankerCards:
      return "  " + fncCardsBrief(hand, Side::Banker, strSuitPictures);
    case colBankerTotal:
      return std::to_string(fncTotalOf(hand, Side::Banker));
    case colResult:
      return "  " + fncResultName(hand.Result);
    default:
      break;
  }
  const int seat = (column - colFirstSeat) / 2;
  return (column - colFirstSeat) % 2 == 0
             ? fncBets(hand, seat)
             : fncCurrency(hand.Money.at(static_cast<std::size_t>(seat)));
}

Colour fncInk(std::int32_t number, int column) {
  return fncMoneyInk(
      column < colFirstSeat ? 0 : fncNet(fncEveningHand(number), (column - colFirstSeat) / 2));
}

}  // namespace

std::shared_ptr<const GridData> fncHandRows(const HandFilter& filter) {
  auto grid = std::make_shared<GridData>();
  grid->Columns = gridColumns;
  grid->Cell = fncCell;
  grid->Ink = fncInk;
  std::int32_t number = 0;
  for (const EveningHand& hand : colEveningHands) {
    ++number;
    if (filter.fncWants(hand)) {
      grid->Rows.push_back(number);
    }
  }
  return grid;
}
