// The export command of the main window. It joins with the export channels.

#include "shell/forms/frmMain.h"

void frmMain::cmdExport_Click() {}
