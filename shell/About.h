#pragma once

#include "platform/Window.h"

// The About dialog.

struct KasSitasWindow {
  Window Form;
  Control Image1, lblVersion, lblDescription, cmdOK;
};
extern KasSitasWindow KasSitas;

/// Prepares the dialog's events. Called once at the start of the program.
void prcPrepareAbout();
