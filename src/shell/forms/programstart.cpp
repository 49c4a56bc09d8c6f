#include "shell/forms/programstart.h"

#include "core/forms/facewindow.h"
#include "core/forms/formkit.h"
#include "core/model/workspace.h"
#include "core/services/clock.h"
#include "core/services/context.h"
#include "core/services/msgbox.h"
#include "environment/forms/frmCredit.h"
#include "shell/filecommands.h"
#include "shell/forms/frmMain.h"
#include "shell/forms/windowkeeper.h"
#include "shell/programstart.h"

#include <QAction>
#include <QCoreApplication>
#include <QEventLoop>
#include <QFileInfo>
#include <QLockFile>

DeskoRun modProgramStart(Workspace& ws, Context& ctx, const QString& programFile,
                         const QString& commandLine) {
    ws.gNoErrorTrap = false;
    bool otherRunning = false;
    DeskoRun run;
    run.instance = claimProgramDirectory(ctx.launch.home, otherRunning);
    if (otherRunning) {
        msgBox(ctx.dialogs,
               QStringLiteral("You may run only one instance of Desko for Windows rev 4.0 at a "
                              "time."),
               MsgIcon::Stop, MsgButtons::OK);
        run.instance.reset();
        return run;
    }
    ctx.random.setState(startingSeed(ctx.clock.now(), ctx.launch.seed));

    std::unique_ptr<frmCredit> splash;
    if (ctx.launch.splashMs > 0) {
        splash = std::make_unique<frmCredit>(ctx.launch.splashMs);
        splash->show();
        doEvents();
    }
    showHourglass();
    prepareWorkspace(ws, ctx, commandLine);
    while (splash && splash->isVisible()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    const bool offerOpenDump = splash && splash->openDumpOffered();
    splash.reset();

    run.window = std::make_unique<FaceWindow>();
    run.main = new frmMain(ws, ctx, *run.window, programFile);
    // Only the key on the splash brings it out, for this run alone.
    run.main->mnuHOpenDump->setVisible(offerOpenDump);
    run.main->show();
    showWindowAsLeft(*run.window, ctx.launch.windowPlaceFile);
    doEvents();  // the window is up and active before a file on the command line opens
    if (!commandLine.isEmpty() && QFileInfo(commandLine).isFile()) {
        QString path = commandLine;
        modOpenFromCommandLine(ws, ctx, *run.main, path);
    }
    return run;
}
