#include "shell/MDIForm1.h"

MDIFormWindow MDIForm1;

void prcShowFrame() { prcShow(MDIForm1.Form); }
