#pragma once

#include "evening/EveningWindow.h"

// The window with all hands of the evening: a list, and below it the hand that is chosen there, as
// cards and with a line for each decision.

struct HandsWindow {
  Window Form;
  ShoeChoice Shoe;
  Control lblResultCaption;
  Table<Control, 4> optResult;  ///< All, Banker, Player, Tie.
  Control lblCount;
  Control grdHands;
  Control shpMat, lblHand;
  Table<Control, 2> lblSide;  ///< The Player's total, the Banker's.
  Table<Control, 6> pctCard;  ///< By table position.
  Control lblReasons;
  Control cmdCopy, cmdSave, cmdClose;
  Control tmrFollow;
};
extern HandsWindow frmHands;

/// Opens the window.
void prcShowHands();

/// Opens the window at a hand, numbered from 1; one that the filter hides shows all hands.
void prcShowHand(int number);

/// Hands have been added: an open window follows a moment later, so that a run of many hands is
/// followed once.
void prcFollowHands();

/// Prepares the window's events. Called once at the start of the program.
void prcPrepareHands();
