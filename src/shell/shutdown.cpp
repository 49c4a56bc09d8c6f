#include "shell/shutdown.h"

#include "core/model/workspace.h"
#include "core/services/context.h"
#include "core/services/log.h"
#include "core/services/msgbox.h"
#include "persistence/workspacefile.h"
#include "shell/filecommands.h"

bool closeMainWindow(Workspace& ws, Context& ctx, MainView& view) {
    modStatus(ws, ctx, QStringLiteral("Unloading the main form"));
    ws.gSaveDone = 0;
    modSaveWorkspace(ws, ctx, QString());
    if (ws.gDirty == 1) {
        const MsgAnswer answer =
            msgBox(ctx.dialogs,
                   QStringLiteral("The current desko schedule has not been saved.  Do you want "
                                  "to save the changes?"),
                   MsgIcon::Question, MsgButtons::YesNoCancel);
        if (answer == MsgAnswer::Cancel) {
            modStatus(ws, ctx, QStringLiteral("Cancelling unload"));
            return false;
        }
        // The window closes whether or not the save completed.
        if (answer == MsgAnswer::Yes) {
            saveScheduleAs(ws, ctx, view);
        }
    }
    modLogClose(ws, ctx);
    return true;
}

bool exitProgram(Workspace& ws, Context& ctx, MainView& view) {
    ws.gSaveDone = 0;
    if (ws.gDirty == 1 &&
        msgBox(ctx.dialogs,
               QStringLiteral("The desko schedule has changed since you last saved the "
                              "configuration.  Do you want to save the changes?"),
               MsgIcon::Question, MsgButtons::YesNo) == MsgAnswer::Yes) {
        saveScheduleAs(ws, ctx, view);
        // A Yes whose save did not complete keeps the program open.
        if (ws.gSaveDone != 1) {
            return false;
        }
    }
    modSaveWorkspace(ws, ctx, QString());
    return true;
}
