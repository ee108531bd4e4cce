#pragma once

#include "platform/Window.h"

// The start screen, by name Plauk: the first window of every run.

struct PlaukWindow {
  Window Form;
  Control Picture1, Label5, Label2, cmdStart;
  Table<Control, 3> Image2, Label1;
  Control lblVersion, cmdHelp, cmdQuit;
  Control Nerodik;  ///< The box "Do not show this screen again".
  Control Label6;   ///< The link to the web site.
  Control tmrArt;   ///< One tick, which brings the picture on the ground.
};
extern PlaukWindow Plauk;

/// Gives the start screen its name, kind and events.
void prcPrepareStartScreen();
