#include "shell/startmonth.h"

#include "core/model/monthdata.h"
#include "core/model/numbers.h"
#include "core/model/workspace.h"
#include "core/services/clock.h"
#include "core/services/context.h"
#include "core/services/log.h"

namespace {

// A month's name and year as the log shows them; a saved month that is no month shows no
// name.
QString monthAndYear(const Workspace& ws, const QString& month, const QString& year) {
    const int number = static_cast<int>(leadingNumber(month));
    const QString name = number >= 1 && number <= 12 ? ws.gMonthNames[number] : QString();
    return name + QLatin1Char(' ') + year;
}

}  // namespace

void modStartMonth(Workspace& ws, Context& ctx) {
    const QDate today = ctx.clock.now().date();
    ws.gCurrentMonth = today.month() + 1;
    ws.gCurrentYear = today.year();
    if (ws.gCurrentMonth > 12) {
        ws.gCurrentMonth = 1;
        ws.gCurrentYear += 1;
    }
    if (ws.gSavedMonth.isEmpty()) {
        ws.gSavedMonth = QString::number(today.month());
    }
    if (ws.gSavedYear.isEmpty()) {
        ws.gSavedYear = QString::number(today.year());
    }
    modStatus(ws, ctx,
              QStringLiteral("Saved month is ") + monthAndYear(ws, ws.gSavedMonth, ws.gSavedYear));
    modStatus(ws, ctx,
              QStringLiteral("Next month is ") + monthAndYear(ws, QString::number(ws.gCurrentMonth),
                                                              QString::number(ws.gCurrentYear)));
    if (leadingNumber(ws.gSavedMonth) == ws.gCurrentMonth &&
        leadingNumber(ws.gSavedYear) == ws.gCurrentYear) {
        return;
    }
    modStatus(ws, ctx,
              QStringLiteral("Month number has changed since program was last used--resetting "
                             "month-specific data"));
    eraseMonthData(ws);
    ws.gHasHolidays = 0;
    ws.gHasNotedDays = 0;
    ws.gHasVacations = 0;
}
