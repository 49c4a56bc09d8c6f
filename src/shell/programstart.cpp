#include "shell/programstart.h"

#include "core/model/agentkeys.h"
#include "core/model/calendar.h"
#include "core/model/session.h"
#include "core/model/workspace.h"
#include "core/services/clock.h"
#include "core/services/context.h"
#include "core/services/log.h"
#include "environment/probe.h"
#include "persistence/backupring.h"
#include "persistence/storecheck.h"
#include "persistence/workspacefile.h"
#include "printing/printersetup.h"
#include "shell/startmonth.h"

#include <QLockFile>

std::unique_ptr<QLockFile> claimProgramDirectory(const QString& appPath, bool& otherRunning) {
    auto lock = std::make_unique<QLockFile>(appPath + QStringLiteral("/Desko40.lock"));
    lock->setStaleLockTime(0);
    otherRunning = !lock->tryLock(0) && lock->error() == QLockFile::LockFailedError;
    return lock;
}

void prepareWorkspace(Workspace& ws, Context& ctx, const QString& commandLine) {
    modInitSession(ws, ctx.launch.home);
    // The working file as the last run left it, before this run writes anything over it.
    keepBackup(ws.gConfigFile, ctx.clock.now());
    modInitNameTables(ws);
    modMigrateOrCheckStore(ws, ctx);
    modProbeEnvironment(ws, ctx);
    modLogOpen(ws, ctx, commandLine);
    modLoadWorkspace(ws, ctx, QString());
    modBuildAgentKeys(ws);
    modStartMonth(ws, ctx);
    modSetupMonth(ws);
    modFillFontTable(ws, ctx);
}
