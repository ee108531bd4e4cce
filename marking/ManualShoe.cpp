#include "marking/ManualShoe.h"

#include <optional>

#include "marking/MarkCard.h"
#include "platform/Procedure.h"
#include "table/Bets.h"
#include "table/TableState.h"

namespace {

/// A Banker or Player result: the other side's bet is lost or, where there is none, the side's own
/// bet wins, and a Tie bet is lost. Returns the net units; the commission takes nothing off them.
double fncSideWins(double lost, double won, double pays, double tie) {
  const double unit = fncUnitValue();
  double units = won;
  if (lost != 0) {
    units = -lost;
    dblHandLoss += lost * unit;
  } else {
    dblHandWin += won * pays * unit;
  }
  dblHandLoss += tie * unit;
  return units - tie;
}

double fncTieWins(double tie) {
  dblHandWin += tie * fncPays(betTie) * fncUnitValue();
  return tie * fncPays(betTie);
}

}  // namespace

void ManualShoe(double PlayerBet, double BankerBet, double TieBet, Integer Seat) {
  const Procedure running("ManualShoe");
  dblHandWin = 0;
  dblHandLoss = 0;
  double units = 0;
  if (strResult[intShoeNumber] == "B") {
    running.Step(2);
    units = fncSideWins(PlayerBet, BankerBet, fncPays(betBanker), TieBet);
  } else if (strResult[intShoeNumber] == "P") {
    running.Step(3);
    units = fncSideWins(BankerBet, PlayerBet, fncPays(betPlayer), TieBet);
  } else {
    running.Step(4);
    units = fncTieWins(TieBet);
  }
  if (Seat != 1) {
    return;
  }
  running.Step(5);
  const bool blnBet = TieBet != 0 || PlayerBet != 0 || BankerBet != 0;
  varHandUnits[intShoeNumber] = blnBet ? std::optional<Integer>(fncInteger(units)) : std::nullopt;
  SetCardView(intShoeNumber);
}
