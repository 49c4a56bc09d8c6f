#include "persistence/storecheck.h"

#include "core/model/session.h"
#include "core/model/workspace.h"
#include "core/services/context.h"
#include "core/services/dialogs.h"
#include "core/services/log.h"
#include "core/services/msgbox.h"
#include "core/services/registryapi.h"
#include "core/services/registrystore.h"
#include "persistence/oldstore.h"
#include "persistence/workspacefile.h"

#include <QFileInfo>

#include <array>

namespace {

// The keys of the old store, in the order they are removed.
const std::array<QString, 9> kOldKeys = {
    QStringLiteral("\\Agents"),     QStringLiteral("\\Log"),          QStringLiteral("\\Holidays"),
    QStringLiteral("\\Noted Days"), QStringLiteral("\\Restrictions"), QStringLiteral("\\Settings"),
    QStringLiteral("\\Shifts"),     QStringLiteral("\\Titles"),       QStringLiteral("\\Vacations"),
};

void eraseOldStore(const Workspace& ws, Context& ctx) {
    modStatus(ws, ctx, QStringLiteral("Erasing previous configuration data in registry"));
    for (const QString& key : kOldKeys) {
        modRegDeleteTree(ctx.registry, kHkeyLocalMachine, ws.gRegistryBase + key);
    }
    for (const QString& key : kOldKeys) {
        modRegDeleteKey(ctx.registry, kHkeyLocalMachine, ws.gRegistryBase + key);
    }
}

// Hidden and read-only files count as there; a directory does not.
bool workingFileExists(const Workspace& ws) {
    return QFileInfo(ws.gConfigFile).isFile();
}

}  // namespace

void modMigrateOrCheckStore(Workspace& ws, Context& ctx) {
    if (const QString file = ctx.registry.unreadableFile(); !file.isEmpty()) {
        modStatus(ws, ctx,
                  QStringLiteral("Settings store at ") + file +
                      QStringLiteral(" cannot be read--leaving it untouched"));
    }
    // This version keeps one key below the base, "\Settings", where every save notes the
    // version: a second key is left by an earlier version. The rights check's own key, which
    // a run that ended during the check leaves behind, is none.
    QStringList keys = modRegListKeys(ctx.registry, kHkeyLocalMachine, ws.gRegistryBase);
    keys.removeAll(kRightsCheckKey);
    const bool earlierStore = keys.size() > 1;
    // A store that cannot be emptied would be read again at every start, over the working
    // file and every change made since: it is read only where there is no working file yet.
    if (earlierStore && (ctx.registry.writable() || !workingFileExists(ws))) {
        modStatus(ws, ctx, QStringLiteral("Found version of software predating 4.0.7"));
        readOldStore(ws, ctx);
        // The store goes only once the working file holds what was read from it; else it waits
        // for the next start.
        if (modSaveWorkspace(ws, ctx, QString())) {
            eraseOldStore(ws, ctx);
        }
    }
    if (workingFileExists(ws)) {
        return;
    }
    modStatus(ws, ctx, QStringLiteral("INI file not found at ") + ws.gConfigFile);
    msgBox(ctx.dialogs,
           QStringLiteral("The Desko for Windows configuration file, Desko40.ini, could "
                          "not be found in the program directory.  The program will "
                          "still run, but some configuration data may be lost."),
           MsgIcon::Stop, MsgButtons::OK);
}
