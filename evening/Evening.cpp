#include "evening/Evening.h"

#include "evening/Bets.h"
#include "evening/Course.h"
#include "evening/EveningMenu.h"
#include "evening/Hands.h"
#include "evening/Reckoning.h"
#include "table/Hooks.h"

namespace {

void prcHandSettled() {
  prcNoteHand();
  prcNoteBetsPlayed();
  prcFollowHands();
  prcFollowCourse();
}

void prcStatisticsReset() {
  prcNoteReset();
  prcForgetBetChanges();
  prcFollowCourse();
}

}  // namespace

void prcStartEvening() {
  prcForgetHands();
  prcForgetBets();
  prcForgetReckoning();
  prcPrepareHands();
  prcPrepareCourse();
  hooks = {.HandSettled = prcHandSettled,
           .BetChanging = prcNoteBetChange,
           .StatisticsReset = prcStatisticsReset,
           .StakeChanged = prcFollowCourse,
           .MenusLaidOut = prcLayOutEveningMenu};
}
