#include "table/SeatResults.h"

std::vector<Control*> fncSideResults() {
  const std::string& result = strResult[intShoeNumber];
  if (result == "P") {
    return {&BaccTable.WinP};
  }
  if (result == "B") {
    return {&BaccTable.WinB};
  }
  return {&BaccTable.TieResultP, &BaccTable.TieResultB};
}

std::vector<SeatResult> fncSeatResults(Integer intSeat) {
  struct Row {
    BetSide Side;
    bool Won;
  };
  static constexpr std::array<Row, 6> rows{{{betBanker, true},
                                            {betPlayer, true},
                                            {betBanker, false},
                                            {betPlayer, false},
                                            {betTie, false},
                                            {betTie, true}}};
  const std::string& result = strResult[intShoeNumber];
  std::vector<SeatResult> results;
  for (const Row& row : rows) {
    const bool blnDecided = row.Won ? fncWins(row.Side, result) : fncLoses(row.Side, result);
    if (blnDecided && fncBetStands(row.Side, intSeat)) {
      const BetControls bet = fncBet(row.Side, intSeat);
      results.push_back({row.Side, row.Won, row.Won ? &bet.Win : &bet.Lose});
    }
  }
  return results;
}

void prcHideSeatResults() {
  for (int i = 0; i < intSeats; ++i) {
    for (const BetSide side : betSides) {
      fncBet(side, i).Win.Visible = fncBet(side, i).Lose.Visible = false;
    }
  }
}
