#pragma once

#include "platform/Window.h"

// The start screen, the first window of every run.

struct PlaukWindow {
  Window Form;
  Control Picture1, Label5, Label2, cmdStart;
  Table<Control, 3> Image2, Label1;
  Control lblVersion, cmdHelp, cmdQuit, Nerodik, Label6;
};
extern PlaukWindow Plauk;

/// Prepares the events of the start screen. Called once at the start of the program.
void prcPrepareStartScreen();
