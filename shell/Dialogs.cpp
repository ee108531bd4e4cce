#include "shell/Dialogs.h"

#include "betting/frmStatistics.h"
#include "platform/Modal.h"
#include "platform/Procedure.h"
#include "shell/MDIForm1.h"
#include "shell/Switches.h"
#include "shell/frmKaNori.h"
#include "shell/frmSelectaShoe.h"

void prcStatistics() {
  const Procedure running("MDIForm1_prcStatistics");
  prcInvert(MDIForm1.mnuStatistics);
  running.Step(2);
  if (MDIForm1.mnuStatistics.Value == 1) {
    prcShowModal(frmStatistics.Form);
  } else {
    frmStatistics.Form.Visible = false;
  }
}

void prcSelectaShoe() {
  const Procedure running("MDIForm1_prcSelectaShoe");
  prcLoad(frmSelectaShoe.Form);
  frmSelectaShoe.Form.Visible = !frmSelectaShoe.Form.Visible;
}

void prcOptions() {
  const Procedure running("MDIForm1_prcOptions");
  prcInvert(MDIForm1.mnuOptions);
  running.Step(2);
  if (MDIForm1.mnuOptions.Value == 1) {
    prcShowModal(frmKaNori.Form);
  } else {
    frmKaNori.Form.Visible = false;
  }
}
