#include "shell/forms/application.h"

#include "core/forms/facewindow.h"
#include "core/model/session.h"
#include "core/model/workspace.h"
#include "core/services/clock.h"
#include "core/services/context.h"
#include "core/services/launch.h"
#include "core/services/printers.h"
#include "core/services/registrystore.h"
#include "environment/systemmachine.h"
#include "printing/forms/machineprinters.h"
#include "shell/forms/frmMain.h"
#include "shell/forms/programstart.h"
#include "shell/forms/qtdialogs.h"
#include "shell/forms/windowkeeper.h"

#include <QApplication>
#include <QFileInfo>
#include <QLockFile>

int runProgram(QApplication& app, const Launch& launch, const std::function<void()>& afterStart) {
    // The program ends only by its own two roads, never by a window closing on its own.
    QApplication::setQuitOnLastWindowClosed(false);

    prepareUserFolder(launch);
    Workspace ws;
    SystemClock clock;
    QtDialogs dialogs;
    const std::unique_ptr<RegistryStore> registry = SettingsRegistryStore::native(kRegistryBase);
    const SystemMachine machine;
    Context ctx{clock, dialogs, *registry, {}, {}, launch};
    ctx.machine = &machine;
    const std::unique_ptr<Printers> printers = machinePrinters(launch.pdfDir);
    ctx.printers = printers.get();

    // The command line is one text: a schedule file's name, blanks and all.
    const QString commandLine = QApplication::arguments().mid(1).join(QLatin1Char(' '));
    const QString programFile = QFileInfo(QApplication::applicationFilePath()).fileName();
    const DeskoRun run = modProgramStart(ws, ctx, programFile, commandLine);
    if (!run.window) {
        return 0;
    }
    dialogs.setParent(run.window.get());
    QObject::connect(run.main, &frmMain::programEnds, &app, [] { QApplication::exit(0); });
    if (afterStart) {
        afterStart();
    }
    const int status = QApplication::exec();
    keepWindowPlace(*run.window, launch.windowPlaceFile);
    return status;
}
