#include "marking/ManualShoe.h"

#include <optional>

#include "marking/MarkCard.h"
#include "platform/Procedure.h"
#include "table/BaccTable.h"
#include "table/TableState.h"

namespace {

/// What a Banker pays for each unit, the casino's five percent taken off.
constexpr double dblBankerPays = 0.95;
constexpr double dblTiePays = 8;

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
  dblHandWin += tie * dblTiePays * fncUnitValue();
  return tie * dblTiePays;
}

}  // namespace

void ManualShoe(double PlayerBet, double BankerBet, double TieBet, Integer Seat) {
  Guarded("ManualShoe", [&] {
    At(10);
    dblHandWin = 0;
    dblHandLoss = 0;
    double units = 0;
    if (strResult[intShoeNumber] == "B") {
      At(20);
      units = fncSideWins(PlayerBet, BankerBet, dblBankerPays, TieBet);
    } else if (strResult[intShoeNumber] == "P") {
      At(30);
      units = fncSideWins(BankerBet, PlayerBet, 1, TieBet);
    } else {
      At(40);
      units = fncTieWins(TieBet);
    }
    if (Seat != 1) {
      return;
    }
    At(50);
    const bool blnBet = TieBet != 0 || PlayerBet != 0 || BankerBet != 0;
    varHandUnits[intShoeNumber] = blnBet ? std::optional<Integer>(fncInteger(units)) : std::nullopt;
    SetCardView(intShoeNumber);
  });
}
