#include "marking/MarkTip.h"

#include <utility>

#include "platform/Texts.h"
#include "table/Bets.h"
#include "table/Cards.h"
#include "table/Positions.h"
#include "table/TableState.h"

namespace {

std::string fncOutcome(const Integer& shoe) {
  const std::string player = std::to_string(int{intPlayerTotal[shoe]});
  const std::string banker = std::to_string(int{intBankerTotal[shoe]});
  if (strResult[shoe] == "B") {
    return "Banker wins, " + banker + " to " + player;
  }
  return strResult[shoe] == "P" ? "Player wins, " + player + " to " + banker : "Tie at " + player;
}

/// A side's two or three cards, from position first on.
std::string fncCards(const Integer& shoe, int first, bool blnThird) {
  std::string cards;
  for (int at = first; at < first + (blnThird ? 3 : 2); ++at) {
    cards += " " + fncCardBrief(fncHandCard(shoe, at), strSuitPictures);
  }
  return cards;
}

/// A line of what Player 1 staked and what came of it, if that seat had a bet. The bets still stand
/// in their boxes.
std::string fncStakes(const Integer& shoe) {
  std::string bets;
  double net = 0;
  for (const auto& [side, name] :
       {std::pair{betBanker, "Banker"}, std::pair{betPlayer, "Player"}, std::pair{betTie, "Tie"}}) {
    const double money = fncBetChips(side, 0) * fncUnitValue();
    if (money == 0) {
      continue;
    }
    bets += std::string(bets.empty() ? "" : ", ") + name + " " + fncCurrency(money);
    net += fncWins(side, strResult[shoe])    ? money * fncPays(side)
           : fncLoses(side, strResult[shoe]) ? -money
                                             : 0;
  }
  if (bets.empty()) {
    return {};
  }
  const std::string came = net > 0   ? "won " + fncCurrency(net)
                           : net < 0 ? "lost " + fncCurrency(-net)
                                     : "came out even";
  return strLineBreak + ("Player 1 staked " + bets + " and " + came);
}

}  // namespace

std::string fncMarkTip(const Integer& card) {
  const Integer& shoe = intMarkCardShoe[card];
  std::string tip = "Hand " + std::to_string(int{intHandsDealt[shoe]}) + ": " + fncOutcome(shoe) +
                    strLineBreak + "Player" + fncCards(shoe, 0, blnPlayerThird[shoe]) +
                    strLineBreak + "Banker" + fncCards(shoe, 3, blnBankerThird[shoe]);
  if (varHandUnits[card] && shoe == intShoeNumber) {
    tip += fncStakes(shoe);
  }
  return tip;
}
