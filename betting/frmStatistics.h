#pragma once

#include "platform/Window.h"

// The statistics window: hands and shoes played, and the money of each seat. Index is the seat
// 0..1.

struct StatisticsWindow {
  Window Form;
  Control Frame3, lblHandsPlayed;
  Control frmShoesPlayed;
  Table<Control, 5> lblShoesPlayedDecks;
  Control Label5, Label7, Label8, Label9, Label10;
  Control Frame2, Label6, Label1, Label2, Label3, Label4, Label12;
  Table<Control, 2> mskSteak;  ///< The seats' stakes.
  Table<Control, 2> lblCurrentMoney, lblWinningsStat, lblTurnover;
  Control cmdResetStats, Command1;
  double dblOldStake = 0;  ///< The stake in the box when it got the focus, up to 10,000,000.
};
extern StatisticsWindow frmStatistics;

/// Fills every figure from the settings file and the seats' money.
void prcStatisticsRefresh();

void cmdResetStats_Click();
void mskSteak_GotFocus(Integer Index);
/// Checks and books a new stake; Cancel keeps the focus.
void mskSteak_Validate(Integer Index, bool& Cancel);

/// Gives the window its name, kind and events.
void prcPrepareStatistics();
