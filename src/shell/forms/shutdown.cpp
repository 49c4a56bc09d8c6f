// The two roads out of a run. They differ on purpose: closing the window writes the working
// file before it asks, offers Cancel, ends even when the save was cancelled and closes the
// log; File Exit asks without Cancel, writes the working file after, stays open when the
// save was cancelled and leaves the log without its closing line.

#include "core/model/textrules.h"
#include "core/model/workspace.h"
#include "core/services/context.h"
#include "core/services/dialogs.h"
#include "core/services/log.h"
#include "core/services/msgbox.h"
#include "persistence/workspacefile.h"
#include "shell/forms/frmMain.h"

bool frmMain::Form_Unload() {
    modStatus(ws_, ctx_, QStringLiteral("Unloading the main form"));
    ws_.gSaveDone = 0;
    modSaveWorkspace(ws_, ctx_, QString());
    if (ws_.gDirty == 1) {
        const MsgAnswer answer =
            msgBox(ctx_.dialogs,
                   QStringLiteral("The current desko schedule has not been saved.  Do you "
                                  "want to save the changes?"),
                   MsgIcon::Question, MsgButtons::YesNoCancel);
        if (answer == MsgAnswer::Cancel) {
            modStatus(ws_, ctx_, QStringLiteral("Cancelling unload"));
            return false;
        }
        // The window closes whether or not the save completed.
        if (answer == MsgAnswer::Yes) {
            mnuFSaveAs_Click();
        }
    }
    modLogClose(ws_, ctx_);
    endProgram();
    return true;
}

void frmMain::mnuFExit_Click() {
    ws_.gSaveDone = 0;
    if (ws_.gDirty == 1) {
        const MsgAnswer answer =
            msgBox(ctx_.dialogs,
                   QStringLiteral("The desko schedule has changed since you last saved the "
                                  "configuration.  Do you want to save the changes?"),
                   MsgIcon::Question, MsgButtons::YesNo);
        // A Yes whose save did not complete keeps the program open.
        if (answer == MsgAnswer::Yes) {
            mnuFSaveAs_Click();
            if (ws_.gSaveDone != 1) {
                return;
            }
        }
    }
    modSaveWorkspace(ws_, ctx_, QString());
    endProgram();
}

void frmMain::endProgram() {
    emit programEnds();
}
