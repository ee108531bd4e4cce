#pragma once

#include "platform/Window.h"

// The About dialog, by name KasSitas.

struct KasSitasWindow {
  Window Form;
  Control Image1, lblVersion, lblDescription, cmdOK;
};
extern KasSitasWindow KasSitas;

/// Gives the dialog its name, kind and events.
void prcPrepareAbout();
