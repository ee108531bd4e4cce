#pragma once

#include "platform/Window.h"

// The start screen and the About dialog.

struct PlaukWindow {
  Window Form;
  Control Picture1, Label5, Label2, cmdStart;
  Table<Control, 3> Image2, Label1;
  Control lblVersion, cmdHelp, cmdQuit, Nerodik, Label6;
};
extern PlaukWindow Plauk;

struct KasSitasWindow {
  Window Form;
  Control Image1, lblVersion, lblDescription, cmdOK;
};
extern KasSitasWindow KasSitas;

/// Where the program's pages lie on the web: a host under a reserved example domain, so that
/// nothing is ever fetched.
extern const char* const strWebSite;

/// Prepares both windows' events. Called once at the start of the program.
void prcPrepareStartScreen();
