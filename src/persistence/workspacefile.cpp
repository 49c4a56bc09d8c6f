#include "persistence/workspacefile.h"

#include "core/model/workspace.h"
#include "core/services/context.h"
#include "core/services/msgbox.h"
#include "core/services/registryapi.h"
#include "core/services/textfile.h"
#include "persistence/profileapi.h"
#include "persistence/profilefile.h"
#include "persistence/rowlimit.h"
#include "persistence/scheduleformat.h"

bool modSaveWorkspace(Workspace& ws, Context& ctx, const QString& path) {
    // A file that reading would cut short is not written: the old one stays whole. The editors
    // refuse every change that would come to this.
    if (!readsBackWhole(ws)) {
        return false;
    }
    const FileKind kind = path.isEmpty() ? FileKind::Working : FileKind::Schedule;
    const QString text = scheduleFileText(ws, kind);
    modRegSetValue(ctx.registry, kHkeyLocalMachine, ws.gRegistryBase + QStringLiteral("\\Settings"),
                   QStringLiteral("Version"), ws.versionText());
    return writeTextFile(path.isEmpty() ? ws.gConfigFile : path, text);
}

bool modLoadWorkspace(Workspace& ws, Context& ctx, const QString& path) {
    const FileKind kind = path.isEmpty() ? FileKind::Working : FileKind::Schedule;
    ProfileFile file = ProfileFile::read(path.isEmpty() ? ws.gConfigFile : path);
    const ReadResult read = readScheduleFile(ws, file, kind);
    if (read.refused) {
        msgBox(ctx.dialogs,
               QStringLiteral("The file you are attempting to open cannot be read by this "
                              "version of the program.  Please open this DKO file using the "
                              "version of Desko for Windows with which it was created."),
               MsgIcon::Stop, MsgButtons::OK);
        return false;
    }
    if (!read.defaults.empty()) {
        modWriteProfileValue(file, QStringLiteral("Titles"), read.defaults);
    }
    return true;
}
