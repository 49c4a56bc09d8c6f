#include "export/calendarfiles.h"

#include "core/model/workspace.h"
#include "core/services/clock.h"
#include "core/services/context.h"
#include "core/services/dialogs.h"
#include "core/services/log.h"
#include "core/services/msgbox.h"
#include "export/appointments.h"
#include "export/calendarevents.h"
#include "export/requestjournal.h"
#include "export/shifttimes.h"

#include <QDir>
#include <QSaveFile>

namespace {

// Characters that no file system of the desktops takes in a name, and control characters.
QString fileNameOf(const QString& name) {
    QString result;
    for (const QChar c : name) {
        const bool forbidden = c.unicode() < 32 || QStringLiteral("<>:\"/\\|?*").contains(c);
        result += forbidden ? QLatin1Char('_') : c;
    }
    return result + QStringLiteral(".ics");
}

}  // namespace

std::vector<CalendarFile> calendarFiles(const Workspace& ws, const QDateTime& now) {
    const QDate month(ws.gCurrentYear, ws.gCurrentMonth, 1);
    const int last = readRequestJournal(requestJournalPath(ws.gAppPath), month).sequence;
    const CalendarBuilder builder(now, month, nextSequence(now, last));
    const WeeklyShiftTimes times = interpretWeeklyShifts(ws);
    std::vector<CalendarFile> files;
    std::vector<CalendarEvent> office;
    for (int agent = 1; agent <= ws.gAgentCount; ++agent) {
        std::vector<CalendarEvent> own;
        for (const AgentShift& shift : agentShifts(ws, agent)) {
            CalendarEvent event = shiftEvent(ws, shift, times[shift.weekday][shift.shift]);
            own.push_back(event);
            event.summary = ws.agentName(agent) + QStringLiteral(" (") +
                            ws.gShiftText[shift.weekday][shift.shift] + QLatin1Char(')');
            event.attendee = ws.gAgentEmail[agent];
            event.attendeeName = ws.agentName(agent);
            office.push_back(event);
        }
        files.push_back(
            {fileNameOf(ws.gAgentLast[agent] + QStringLiteral(", ") + ws.gAgentFirst[agent]),
             builder.build(CalendarMethod::Publish, own)});
    }
    files.push_back({QStringLiteral("Office.ics"), builder.build(CalendarMethod::Publish, office)});
    return files;
}

QStringList saveCalendarFiles(const Workspace& ws, const QDateTime& now, const QString& folder) {
    QStringList failed;
    for (const CalendarFile& file : calendarFiles(ws, now)) {
        QSaveFile out(QDir(folder).filePath(file.name));
        if (!out.open(QIODevice::WriteOnly) || out.write(file.text) != file.text.size() ||
            !out.commit()) {
            failed.append(file.name);
        }
    }
    return failed;
}

void saveCalendarsAsIcs(const Workspace& ws, Context& ctx) {
    FileDialog request;
    request.title = QStringLiteral("Save calendars as iCalendar files");
    request.initialDir = ws.gAppPath;
    const std::optional<QString> folder = ctx.dialogs.folderDialog(request);
    if (!folder) {
        return;
    }
    modStatus(ws, ctx, QStringLiteral("Saving the calendars as iCalendar files in ") + *folder);
    const QStringList failed = saveCalendarFiles(ws, ctx.clock.now(), *folder);
    if (failed.isEmpty()) {
        return;
    }
    QString list;
    for (const QString& name : failed) {
        list += QStringLiteral("\r\n     ") + name;
    }
    ctx.dialogs.messageBox(
        modWrapMessage(QStringLiteral("The following calendar files could not be written in ") +
                           *folder + QLatin1Char(':'),
                       ctx.dialogs) +
            list,
        MsgIcon::Exclamation, MsgButtons::OK);
}
