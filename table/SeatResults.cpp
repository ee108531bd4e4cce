#include "table/SeatResults.h"

namespace {

std::vector<Control*> fncSideLabels(const std::string& result) {
  if (result == "P") {
    return {&BaccTable.WinP};
  }
  if (result == "B") {
    return {&BaccTable.WinB};
  }
  return {&BaccTable.TieResultP, &BaccTable.TieResultB};
}

}  // namespace

std::vector<Control*> fncResultLabels() {
  const std::string& result = strResult[intShoeNumber];
  std::vector<Control*> labels = fncSideLabels(result);
  for (int i = 0; i < intSeats; ++i) {
    for (const BetSide side : {betBanker, betPlayer, betTie}) {
      const BetControls bet = fncBet(side, i);
      if (!fncBetStands(side, i)) {
        continue;
      }
      if (fncWins(side, result)) {
        labels.push_back(&bet.Win);
      } else if (fncLoses(side, result)) {
        labels.push_back(&bet.Lose);
      }
    }
  }
  return labels;
}

void prcShowResults() {
  for (Control* label : fncResultLabels()) {
    label->Announce = label->Visible = true;
  }
}

void prcHideSeatResults() {
  for (int i = 0; i < intSeats; ++i) {
    for (const BetSide side : betSides) {
      fncBet(side, i).Win.Visible = fncBet(side, i).Lose.Visible = false;
    }
  }
}
