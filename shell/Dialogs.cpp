#include "shell/Dialogs.h"

#include "betting/frmStatistics.h"
#include "platform/Procedure.h"
#include "shell/MDIForm1.h"
#include "shell/Switches.h"
#include "shell/frmKaNori.h"
#include "shell/frmSelectaShoe.h"

void prcStatistics() {
  Guarded("MDIForm1_prcStatistics", [] {
    At(10);
    prcInvert(MDIForm1.mnuStatistics);
    At(20);
    if (MDIForm1.mnuStatistics.Value == 1) {
      prcShowModal(frmStatistics.Form);
    } else {
      frmStatistics.Form.Visible = false;
    }
  });
}

void prcSelectaShoe() {
  Guarded("MDIForm1_prcSelectaShoe", [] {
    At(10);
    prcLoad(frmSelectaShoe.Form);
    frmSelectaShoe.Form.Visible = !frmSelectaShoe.Form.Visible;
  });
}

void prcOptions() {
  Guarded("MDIForm1_prcOptions", [] {
    At(10);
    prcInvert(MDIForm1.mnuOptions);
    At(20);
    if (MDIForm1.mnuOptions.Value == 1) {
      prcShowModal(frmKaNori.Form);
    } else {
      frmKaNori.Form.Visible = false;
    }
  });
}
