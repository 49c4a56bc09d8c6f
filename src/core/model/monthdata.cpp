#include "core/model/monthdata.h"

#include "core/model/workspace.h"

QString monthTitle(const Workspace& ws) {
    return ws.currentMonthAndYear() + QStringLiteral(" Desko Schedule");
}

void modDefaultTexts(Workspace& ws) {
    const QString title = monthTitle(ws);
    ws.gCalendarTitle = title;
    ws.gGridTitle = title;
    ws.gEmailSubject = title;
    ws.gOutlookSubject = title;
    ws.gEmailBody =
        QStringLiteral("You have been assigned the following shifts for the month of ") +
        ws.currentMonthAndYear() + QLatin1Char(':');
}

void modFillDayEditorCombos(Workspace& ws) {
    if (ws.gCalendarTitle.isEmpty()) {
        ws.gCalendarTitle = monthTitle(ws);
    }
    if (ws.gGridTitle.isEmpty()) {
        ws.gGridTitle = monthTitle(ws);
    }
}

void eraseMonthData(Workspace& ws) {
    ws.gVacation.assign(static_cast<std::size_t>(ws.gAgentCount) + 1, DayFlags{});
    ws.gNotedText.fill(QString());
    ws.gNoted.fill(0);
    ws.gHolidayName.fill(QString());
    ws.gHoliday.fill(0);
    ws.gSchedule.assign(kScheduleCells, QString());
    ws.gCalendarTitle.clear();
    ws.gGridTitle.clear();
    ws.gEmailSubject.clear();
    ws.gEmailBody.clear();
    ws.gOutlookSubject.clear();
}
