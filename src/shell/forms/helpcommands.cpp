// The main window's Help menu: the help pages, the configuration dump both ways, and the
// About box.

#include "core/forms/formkit.h"
#include "core/model/workspace.h"
#include "core/services/context.h"
#include "environment/forms/frmAbout.h"
#include "persistence/configdump.h"
#include "shell/forms/frmMain.h"

#include <QDesktopServices>
#include <QLabel>
#include <QUrl>

// The help opens in the desktop's viewer for its pages, which runs on its own; whether it
// found them is the viewer's to say.
void frmMain::mnuHHelp_Click() {
    QDesktopServices::openUrl(QUrl::fromLocalFile(ctx_.launch.helpFile));
}

void frmMain::mnuHDump_Click() {
    createConfigurationDump(ws_, ctx_);
}

// The window shows the restored agents and month, and the print boxes and engine that the
// commands will act on; the rest of it follows at the next command.
void frmMain::mnuHOpenDump_Click() {
    if (!openConfigurationDump(ws_, ctx_)) {
        return;
    }
    showOpenedSchedule();
    labDate->setText(ws_.currentMonthAndYear());
}

void frmMain::mnuHAbout_Click() {
    modEnterBusyState();
    showHourglass();
    about_->show();
}
