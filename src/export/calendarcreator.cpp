#include "export/calendarcreator.h"

#include "core/model/workspace.h"
#include "core/services/log.h"
#include "core/services/textfile.h"
#include "export/exportresults.h"
#include "export/exportview.h"
#include "export/shifttimes.h"

namespace {

QString clockTime(int minutes) {
    return QString::number(minutes / 60) + QLatin1Char(':') +
           QString::number(minutes % 60).rightJustified(2, QLatin1Char('0'));
}

QString row(const Workspace& ws, int day, const QString& start, const QString& end,
            const QString& subject, const QString& kind) {
    return QString::number(ws.gCurrentMonth) + QLatin1Char('/') + QString::number(day) +
           QLatin1Char('/') + QString::number(ws.gCurrentYear).rightJustified(4, QLatin1Char('0')) +
           QLatin1Char(',') + start + QLatin1Char(',') + end + QLatin1Char(',') + subject +
           QStringLiteral(",1,") + kind + QStringLiteral(",,\r\n");
}

}  // namespace

CalendarCreatorFile calendarCreatorFile(const Workspace& ws) {
    const WeeklyShiftTimes times = interpretWeeklyShifts(ws);
    const QString shiftKind = QStringLiteral("Desko schedule ");
    CalendarCreatorFile file;
    QString reported;
    for (int agent = 1; agent <= ws.gAgentCount; ++agent) {
        int rows = 0;
        for (int day = 1; day <= ws.currentMonthDays(); ++day) {
            const int weekday = ws.weekdayOf(day);
            for (int shift = 1; shift <= shiftsOn(ws, weekday); ++shift) {
                const ShiftTimes& read = times[weekday][shift];
                if (!read.ok) {
                    const QString line = uninterpretedShiftLine(ws, weekday, shift);
                    if (addResultOnce(reported, line, line)) {
                        file.failures.append(line);
                    }
                    continue;
                }
                for (int slot = 0; slot <= highestSlotOf(ws, weekday, shift); ++slot) {
                    const QString& cell = ws.schedule(day, shift, slot);
                    if (cell == ws.gAgentKey[agent]) {
                        file.text += row(ws, day, clockTime(read.start), clockTime(read.end),
                                         cell + QString(rows++, QLatin1Char(' ')), shiftKind);
                    }
                }
            }
        }
    }
    const QString midnight = QStringLiteral("0:00");
    for (int day = 1; day <= ws.currentMonthDays(); ++day) {
        if (ws.gHoliday[day] == 1) {
            file.text +=
                row(ws, day, midnight, midnight, ws.gHolidayName[day], QStringLiteral("Holiday"));
        }
        if (ws.gNoted[day] == 1) {
            file.text +=
                row(ws, day, midnight, midnight, ws.gNotedText[day], QStringLiteral("Noted day"));
        }
    }
    return file;
}

void exportToCalendarCreator(Workspace& ws, Context& ctx, ExportView& view, const QString& path) {
    modStatus(ws, ctx, QStringLiteral("Exporting the schedule to Calendar Creator format"));
    view.showStatus(QStringLiteral("Exporting the schedule to Calendar Creator format . . ."));
    const CalendarCreatorFile file = calendarCreatorFile(ws);
    QString results;
    for (const QString& line : file.failures) {
        addResult(results, line);
        modStatus(ws, ctx, line);
    }
    writeTextFile(path, file.text);
    offerResults(ctx, results,
                 QStringLiteral("At least one shift could not be exported to Calendar Creator "
                                "format.  Would you like to see the results?"));
}
