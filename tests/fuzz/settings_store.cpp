#include "fuzzing.h"

#include "core/model/session.h"
#include "persistence/storecheck.h"
#include "persistence/workspacefile.h"

#include <QFile>
#include <QFileInfo>

// The settings store with the move of an earlier version's store: whatever the store file
// holds, the start's check reads it without harm, and a store that was moved lands in the
// working file, which reads back with the store's agents.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString storeFile = scratchFile(QStringLiteral("store.conf"), inputBytes(data, size));
    const QString workingFile = scratchPath(QStringLiteral("Desko40.ini"));
    QFile::remove(workingFile);
    HeadlessRun run;
    run.ws.gConfigFile = workingFile;
    {
        SettingsRegistryStore store(storeFile, kRegistryBase);
        Context ctx{run.clock, run.dialogs, store, {}, {}, {}};
        modMigrateOrCheckStore(run.ws, ctx);
    }
    if (QFileInfo::exists(workingFile)) {
        HeadlessRun back;
        back.ws.gConfigFile = workingFile;
        modLoadWorkspace(back.ws, back.ctx, QString());
        require(back.ws.gAgentCount == run.ws.gAgentCount,
                "the working file holds the agents of the store moved");
    }
    return 0;
}
