#include "core/forms/formkit.h"
#include "core/model/agentkeys.h"
#include "core/model/monthdata.h"
#include "core/model/textrules.h"
#include "core/model/workspace.h"
#include "core/services/context.h"
#include "core/services/log.h"
#include "persistence/workspacefile.h"
#include "shell/forms/frmMain.h"

#include <QFileInfo>
#include <QGroupBox>
#include <QLabel>

// A hidden file passes the start's test but not this one: the window then stays busy,
// with the status showing, until it next becomes active.
void frmMain::modOpenFromCommandLine(QString& path) {
    beginLongCommand(QStringLiteral("Opening a desko schedule . . ."));
    const QFileInfo file(path);
    if (!file.isFile() || file.isHidden()) {
        return;
    }
    modStatus(ws_, ctx_, QStringLiteral("Program started with command switch"));
    modStatus(ws_, ctx_, QStringLiteral("Opening desko schedule ") + modProperCase(path));
    modLoadWorkspace(ws_, ctx_, path);
    ws_.gScheduleTag = QStringLiteral(" [") + modProperCase(modBaseName(path)) + QLatin1Char(']');
    ws_.gHasScheduleFile = 1;
    modSaveWorkspace(ws_, ctx_, QString());
    modBuildAgentKeys(ws_);
    modFillDayEditorCombos(ws_);
    ws_.gDirty = 0;
    path = QStringLiteral("0");
    // Also a file without a generated schedule is shown in the review.
    showWholeCalendar();
}
