#include "marking/AutomaticDeal.h"

#include "marking/MarkState.h"
#include "platform/Procedure.h"
#include "table/HandDealing.h"
#include "table/Shoe.h"
#include "table/Waits.h"

namespace {

constexpr double dblShuffleDelay = 2;  ///< Seconds before automatic dealing shuffles an ended shoe.

/// Whether a shoe has a hand left before its next shuffle.
bool fncInPlay(const Integer& shoe) { return blnShuffled[shoe] && !blnEndOfShoe[shoe]; }

/// Shuffles a card's own shoe after a pause in which the last mark can be seen. The timer rests
/// meanwhile, or its next tick would begin a second shuffle within the first.
void prcShuffleOwnShoe(MarkCardWindow& form, const Integer& shoe) {
  const bool blnRuns = form.tmrDeal.Enabled;
  form.tmrDeal.Enabled = false;
  prcWaitSeconds(dblShuffleDelay);
  Shuffle(shoe);
  for (int j = 0; j < intShoes; ++j) {
    if (j != shoe && intMarkCardShoe[j] == shoe) {
      ClearCardView(j);
    }
  }
  form.tmrDeal.Enabled = blnRuns;
}

}  // namespace

void prcSetDealInterval(MarkCardWindow& form) { form.tmrDeal.Interval = intAutoDealDelay * 1000; }

void tmrDeal_Timer(MarkCardWindow& form) {
  const Procedure running("tmrDeal_Timer");
  prcSetDealInterval(form);
  running.Step(2);
  if (!blnAutoDeal) {
    return;
  }
  running.Step(3);
  const Integer k = fncMarkCardNumber(form.Form);
  if (k < 0 || intMarkCardShoe[k] != k) {
    return;
  }
  running.Step(4);
  if (!fncInPlay(k)) {
    prcShuffleOwnShoe(form, k);
    if (fncMarkCardNumber(form.Form) != k) {
      return;  // The card was closed meanwhile.
    }
  }
  running.Step(5);
  ZNEW_DealHand(k);
  running.Step(6);
  varHandUnits[k] = std::nullopt;
  intHandsDealt[k] += 1;
  running.Step(7);
  for (int j = 0; j < intShoes; ++j) {
    if (intMarkCardShoe[j] == k) {
      SetCardView(j);
    }
  }
}
