// The Help menu of the main window. It joins with help, the dump and the About box.

#include "shell/forms/frmMain.h"

void frmMain::mnuHHelp_Click() {}

void frmMain::mnuHDump_Click() {}

void frmMain::mnuHOpenDump_Click() {}

void frmMain::mnuHAbout_Click() {}
