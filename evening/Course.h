#pragma once

#include "evening/EveningWindow.h"

// The window with the course of the seats' money over the evening, and what luck had to do with it.

struct CourseWindow {
  Window Form;
  Control crtMoney, lblPointed;
  Table<Control, 3> optSeat;  ///< Player 1, Player 2, both.
  ShoeChoice Shoe;
  Control fraLuck, grdEdge, lblOutcome, lblLuck;
  Control cmdSave, cmdPrint, cmdOdds, cmdClose;
  Control tmrFollow;
};
extern CourseWindow frmCourse;

/// Opens the window.
void prcShowCourse();

/// Hands have been added, or the money was changed from elsewhere: an open window follows a moment
/// later, so that a run of many hands is followed once.
void prcFollowCourse();

/// Prepares the window's events. Called once at the start of the program.
void prcPrepareCourse();
