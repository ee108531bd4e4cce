#include "shell/Program.h"

#include "betting/frmStatistics.h"
#include "evening/Evening.h"
#include "marking/MarkState.h"
#include "platform/UserInput.h"
#include "platform/platform.h"
#include "shell/About.h"
#include "shell/CardsDealt.h"
#include "shell/FrameEvents.h"
#include "shell/HelpTopics.h"
#include "shell/SettingsStore.h"
#include "shell/StartScreen.h"
#include "shell/frmKaNori.h"
#include "shell/frmSelectaShoe.h"
#include "table/BaccTableEvents.h"
#include "table/TableState.h"

bool fncStartProgram() {
  if (platform::ActivateOtherInstance()) {
    return false;
  }
  prcResetTableState();
  prcResetMarkState();
  // The count of cards dealt may show before the first shuffle: its rows have their names already.
  prcInitCardsDealtCount();
  prcPrepareFrame();
  prcPrepareBaccTable();
  prcPrepareCardsDealt();
  prcPrepareStatistics();
  prcPrepareSelectaShoe();
  prcPrepareKaNori();
  prcPrepareAbout();
  prcPrepareStartScreen();
  prcStartEvening();
  prcUserHelp = prcHelpOn;
  prcLoad(Plauk.Form);
  return true;
}
