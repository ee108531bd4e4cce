#pragma once

#include "platform/Window.h"
#include "table/TableState.h"

// The window of the nine shoes. It is a layout only: the table plays shoe 0, and nothing reads
// these controls.

struct SelectaShoeWindow {
  Window Form;
  Table<Control, intShoes> chkSelectaShoe;
  Control chkOnTop, fraAutoDeal;
  Table<Control, 2> optAutoDeal;
  Control sldAutoDeal, Label1, lblDelaySecs, Label2;
  Table<Control, 2> Label3;
};
extern SelectaShoeWindow frmSelectaShoe;

/// Gives the window its name, kind and layout.
void prcPrepareSelectaShoe();
