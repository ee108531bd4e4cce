#include "table/Odds.h"

#include <algorithm>
#include <array>

#include "table/DrawRules.h"

namespace {

constexpr int intPoints = 10;
constexpr int intOfDeck = 4;  // Cards of a rank in one deck; four ranks count 0.
constexpr int intRanksOfZero = 4;

/// A shoe from which the cards of a hand are taken in every way, and what the hands came to. Cards
/// that a hand leaves of six may lie in any order.
struct Counting {
  std::array<int, intPoints> Left{};
  int Cards = 0;
  OddsRow Row;
};

/// Takes a card of each point that is left, once for each in a number of ways.
template <class Next>
void prcTake(Counting& shoe, std::int64_t ways, Next next) {
  for (int point = 0; point < intPoints; ++point) {
    int& left = shoe.Left.at(static_cast<std::size_t>(point));
    if (left > 0) {
      const std::int64_t more = ways * left;
      --left;
      --shoe.Cards;
      next(Integer(point), more);
      ++shoe.Cards;
      ++left;
    }
  }
}

void prcBook(Counting& shoe, Integer player, Integer banker, std::int64_t ways) {
  (player > banker ? shoe.Row.Player : banker > player ? shoe.Row.Banker : shoe.Row.Tie) += ways;
}

/// The Banker's turn, with the sixth card behind it where the Player took the fifth.
void prcBankerTurn(Counting& shoe, Integer player, Integer banker, bool blnPlayerStood,
                   Integer third, std::int64_t ways) {
  const std::int64_t behind = blnPlayerStood ? shoe.Cards - 1 : 1;
  if (!fncBankerDraws(banker, blnPlayerStood, third)) {
    prcBook(shoe, player, banker, ways * shoe.Cards * behind);
    return;
  }
  prcTake(shoe, ways, [&](Integer point, std::int64_t more) {
    prcBook(shoe, player, fncTotal(banker, point), more * behind);
  });
}

void prcThirdCards(Counting& shoe, Integer player, Integer banker, std::int64_t ways) {
  if (fncNatural(player) || fncNatural(banker)) {
    prcBook(shoe, player, banker, ways * shoe.Cards * (shoe.Cards - 1));
  } else if (!fncPlayerDraws(player)) {
    prcBankerTurn(shoe, player, banker, true, 0, ways);
  } else {
    prcTake(shoe, ways, [&](Integer third, std::int64_t more) {
      prcBankerTurn(shoe, fncTotal(player, third), banker, false, third, more);
    });
  }
}

OddsRow fncCount(int decks) {
  Counting shoe;
  shoe.Left.fill(intOfDeck * decks);
  shoe.Left[0] *= intRanksOfZero;
  shoe.Cards = intSlotsOfDeck * decks;
  prcTake(shoe, 1, [&](Integer player1, std::int64_t first) {
    prcTake(shoe, first, [&](Integer player2, std::int64_t second) {
      prcTake(shoe, second, [&](Integer banker1, std::int64_t third) {
        prcTake(shoe, third, [&](Integer banker2, std::int64_t fourth) {
          prcThirdCards(shoe, fncTotal(player1, player2), fncTotal(banker1, banker2), fourth);
        });
      });
    });
  });
  return shoe.Row;
}

/// A share of all orders. Both counts are below 2^53, so they are exact as they stand.
double fncShare(const OddsRow& row, std::int64_t count) {
  return static_cast<double>(count) / static_cast<double>(row.fncAll());
}

}  // namespace

const OddsRow& fncOdds(int decks) {
  static std::array<OddsRow, intShoeSizes.size()> kept{};
  const auto* const size = std::ranges::find(intShoeSizes, decks);
  if (size == intShoeSizes.end()) {
    throw faultSubscript;
  }
  OddsRow& row = kept.at(static_cast<std::size_t>(size - intShoeSizes.begin()));
  if (row.fncAll() == 0) {
    row = fncCount(decks);
  }
  return row;
}

double fncEdge(const OddsRow& row, BetSide side) {
  const std::int64_t won = side == betTie ? row.Tie : side == betBanker ? row.Banker : row.Player;
  const std::int64_t pushed = side == betTie ? 0 : row.Tie;
  return fncShare(row, row.fncAll() - won - pushed) - fncPays(side) * fncShare(row, won);
}
