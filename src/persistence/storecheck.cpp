#include "persistence/storecheck.h"

#include "core/model/textrules.h"
#include "core/model/workspace.h"
#include "core/services/context.h"
#include "core/services/dialogs.h"
#include "core/services/log.h"
#include "core/services/msgbox.h"

#include <QFileInfo>

void modMigrateOrCheckStore(Workspace& ws, Context& ctx) {
    // Hidden and read-only files count as there; a directory does not.
    if (QFileInfo(ws.gConfigFile).isFile()) {
        return;
    }
    modStatus(ws, ctx, QStringLiteral("INI file not found at ") + ws.gConfigFile);
    msgBox(ctx.dialogs,
           QStringLiteral("The Desko for Windows configuration file, Desko40.ini, could "
                          "not be found in the program directory.  The program will "
                          "still run, but some configuration data may be lost."),
           MsgIcon::Stop, MsgButtons::OK);
}
