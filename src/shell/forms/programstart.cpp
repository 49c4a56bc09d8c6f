#include "shell/forms/programstart.h"

#include "core/forms/formkit.h"
#include "core/model/agentkeys.h"
#include "core/model/calendar.h"
#include "core/model/textrules.h"
#include "core/model/workspace.h"
#include "core/services/clock.h"
#include "core/services/context.h"
#include "core/services/dialogs.h"
#include "core/services/log.h"
#include "core/services/msgbox.h"
#include "core/services/randomsequence.h"
#include "environment/forms/frmCredit.h"
#include "persistence/storecheck.h"
#include "persistence/workspacefile.h"
#include "shell/forms/frmMain.h"
#include "shell/session.h"
#include "shell/startmonth.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFileInfo>
#include <QLockFile>

namespace {

// One run per program directory. The claim is a lock file that names its process, so the
// claim of a run that crashed lapses with it. A directory where no claim can be written
// (read-only, missing) does not stop the program.
std::unique_ptr<QLockFile> claimProgramDirectory(const QString& appPath, bool& otherRunning) {
    auto lock = std::make_unique<QLockFile>(appPath + QStringLiteral("/Desko40.lock"));
    lock->setStaleLockTime(0);
    otherRunning = !lock->tryLock(0) && lock->error() == QLockFile::LockFailedError;
    return lock;
}

}  // namespace

DeskoRun modProgramStart(Workspace& ws, Context& ctx, const QString& programFile,
                         const QString& commandLine) {
    const QString& appPath = ctx.launch.home;
    ws.gNoErrorTrap = false;
    bool otherRunning = false;
    DeskoRun run;
    run.instance = claimProgramDirectory(appPath, otherRunning);
    if (otherRunning) {
        msgBox(ctx.dialogs,
               QStringLiteral("You may run only one instance of Desko for Windows rev "
                              "4.0 at a time."),
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
    modInitSession(ws, appPath);
    modInitNameTables(ws);
    modMigrateOrCheckStore(ws, ctx);
    modLogOpen(ws, ctx, commandLine);
    modLoadWorkspace(ws, ctx, QString());
    modBuildAgentKeys(ws);
    modStartMonth(ws, ctx);
    modSetupMonth(ws);
    while (splash && splash->isVisible()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    splash.reset();

    run.window = std::make_unique<frmMain>(ws, ctx, programFile);
    run.window->show();
    doEvents();  // the window is up and active before a file on the command line opens
    if (!commandLine.isEmpty() && QFileInfo(commandLine).isFile()) {
        QString path = commandLine;
        run.window->modOpenFromCommandLine(path);
    }
    return run;
}
