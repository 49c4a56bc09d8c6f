#include "shell/application.h"

#include "persistence/registrystore.h"
#include "shell/clock.h"
#include "shell/context.h"
#include "shell/frmMain.h"
#include "shell/programstart.h"
#include "shell/qtdialogs.h"
#include "shell/session.h"
#include "workspace/workspace.h"

#include <QApplication>
#include <QFileInfo>
#include <QLockFile>

int modRunProgram(QApplication& app, const std::function<void()>& afterStart) {
    QApplication::setApplicationDisplayName(QStringLiteral("Desko"));
    // The program ends only by its own two roads, never by a window closing on its own.
    QApplication::setQuitOnLastWindowClosed(false);

    const QString appPath = modAppPath();
    Workspace ws;
    SystemClock clock;
    QtDialogs dialogs;
    FileRegistryStore registry(appPath + QStringLiteral("/Desko40.reg"));
    Context ctx{clock, dialogs, registry, {}};

    // The command line is one text: a schedule file's name, blanks and all.
    const QString commandLine = QApplication::arguments().mid(1).join(QLatin1Char(' '));
    const QString programFile = QFileInfo(QApplication::applicationFilePath()).fileName();
    const DeskoRun run =
        modProgramStart(ws, ctx, appPath, programFile, commandLine, modSplashLength());
    if (!run.window) {
        return 0;
    }
    dialogs.setParent(run.window.get());
    QObject::connect(run.window.get(), &frmMain::programEnds, &app, [] { QApplication::exit(0); });
    if (afterStart) {
        afterStart();
    }
    return QApplication::exec();
}
