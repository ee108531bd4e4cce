#pragma once

#include "platform/Window.h"
#include "table/TableState.h"

// The general options, by name frmKaNori. The dialog is a layout only: its entry and button are
// hidden, and nothing reads these controls. Rows go by marking card 0..8.

struct KaNoriWindow {
  Window Form;
  Control Frame1, lblColorBackground;
  Table<Control, 2> optColorBackground;
  Control shpPlayer, shpBanker, lblPlayer, lblBanker;
  Table<Control, 2> lblChangeBG;
  Control Label11, Label12;
  Control frmeMC, Label7, lblShoeSource, lblIgnoreTies, lblVLimit, lblNoLimit;
  Control lblLeftClick, lblRightClick, lblCannotChgMC;
  Table<Control, intShoes> Label1, frmeShoeSource, frmeIgnoreTies, mskMCVLimit, shpMC, lblChgColor;
  Table<Control, intShoes * intShoes> optShoeSource;  ///< 9 x card + shoe.
  Table<Control, 2 * intShoes> optIgnoreTies;         ///< The card for "No", 9 + card for "Yes".
};
extern KaNoriWindow frmKaNori;

/// Gives the dialog its name, kind and layout.
void prcPrepareKaNori();
