#include "shell/monthchange.h"

#include "core/model/calendar.h"
#include "core/model/monthdata.h"
#include "core/model/workspace.h"
#include "core/services/clock.h"
#include "core/services/context.h"
#include "core/services/log.h"
#include "core/services/msgbox.h"
#include "persistence/backupring.h"
#include "persistence/workspacefile.h"

#include <limits>

bool changeMonth(Workspace& ws, Context& ctx, int barValue) {
    const bool monthHasData = ws.gHasHolidays == 1 || ws.gHasNotedDays == 1 ||
                              ws.gHasVacations == 1 || ws.gScheduleGenerated == 1;
    if (monthHasData &&
        msgBox(ctx.dialogs,
               QStringLiteral("Changing the date of the calendar will erase the schedule, as "
                              "well as all holidays, vacations, and notes.  Do you want to "
                              "proceed anyway?"),
               MsgIcon::Exclamation, MsgButtons::YesNo, 2) != MsgAnswer::Yes) {
        return false;
    }
    eraseMonthData(ws);
    ws.gHasHolidays = 0;
    ws.gHasNotedDays = 0;
    ws.gHasVacations = 0;
    ws.gScheduleGenerated = 0;

    const int delta = barValue - ws.gScrollValue;
    ws.gScrollValue = barValue;
    // A year at the end of the numbers that a file can name stays: the step that would
    // overflow it is passed over, the month's is not.
    if (delta == 1 || delta == -1) {
        ws.gCurrentMonth -= delta;
        if (ws.gCurrentMonth < 1) {
            ws.gCurrentMonth = 12;
            ws.gCurrentYear -= ws.gCurrentYear > std::numeric_limits<int>::min() ? 1 : 0;
        } else if (ws.gCurrentMonth > 12) {
            ws.gCurrentMonth = 1;
            ws.gCurrentYear += ws.gCurrentYear < std::numeric_limits<int>::max() ? 1 : 0;
        }
    }
    modStatus(ws, ctx, QStringLiteral("Changing the present month to ") + ws.currentMonthAndYear());
    // The month's days go from the working file too: the file as it held them stays in the
    // ring.
    if (monthHasData) {
        keepBackup(ws.gConfigFile, ctx.clock.now());
    }
    modSaveWorkspace(ws, ctx, QString());
    modSetupMonth(ws);
    return true;
}
