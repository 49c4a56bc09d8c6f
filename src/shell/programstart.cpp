#include "shell/programstart.h"

#include "generation/randomsequence.h"
#include "persistence/log.h"
#include "persistence/storecheck.h"
#include "persistence/workspacefile.h"
#include "shell/agentkeys.h"
#include "shell/clock.h"
#include "shell/context.h"
#include "shell/dialogs.h"
#include "shell/formhelpers.h"
#include "shell/frmCredit.h"
#include "shell/frmMain.h"
#include "shell/session.h"
#include "shell/startmonth.h"
#include "shell/textrules.h"
#include "workspace/workspace.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFileInfo>
#include <QLockFile>

namespace {

constexpr int kSplashMs = 7500;

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

int modSplashLength() {
    bool ok = false;
    const int length = qEnvironmentVariableIntValue("DESKO_SPLASH_MS", &ok);
    return ok && length >= 0 ? length : kSplashMs;
}

DeskoRun modProgramStart(Workspace& ws, Context& ctx, const QString& appPath,
                         const QString& programFile, const QString& commandLine, int splashMs) {
    ws.gNoErrorTrap = false;
    bool otherRunning = false;
    DeskoRun run;
    run.instance = claimProgramDirectory(appPath, otherRunning);
    if (otherRunning) {
        modMsgBox(ctx.dialogs,
                  QStringLiteral("You may run only one instance of Desko for Windows rev "
                                 "4.0 at a time."),
                  MsgIcon::Stop, MsgButtons::OK);
        run.instance.reset();
        return run;
    }
    ctx.random.setState(modStartingSeed(ctx.clock.now()));

    std::unique_ptr<frmCredit> splash;
    if (splashMs > 0) {
        splash = std::make_unique<frmCredit>(splashMs);
        splash->show();
        modDoEvents();
    }
    modHourglass();
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
    modDoEvents();  // the window is up and active before a file on the command line opens
    if (!commandLine.isEmpty() && QFileInfo(commandLine).isFile()) {
        QString path = commandLine;
        run.window->modOpenFromCommandLine(path);
    }
    return run;
}
