// The print command of the main window. It joins with the reports.

#include "shell/forms/frmMain.h"

void frmMain::cmdPrint_Click() {}

void frmMain::modPrintIndividualFormat(int position) {
    Q_UNUSED(position);
}
