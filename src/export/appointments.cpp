#include "export/appointments.h"

#include "core/model/leaveempty.h"
#include "core/model/workspace.h"

#include <QCryptographicHash>

std::vector<AgentShift> agentShifts(const Workspace& ws, int agent) {
    std::vector<AgentShift> shifts;
    const QString& key = ws.gAgentKey[agent];
    if (key.isEmpty() || key == leaveEmptyText()) {
        return shifts;
    }
    for (int day = 1; day <= ws.currentMonthDays(); ++day) {
        // A day that no calendar has (29 February 2100, any day of the year 0) holds no
        // appointment.
        const QDate date(ws.gCurrentYear, ws.gCurrentMonth, day);
        if (!date.isValid()) {
            continue;
        }
        const int weekday = ws.weekdayOf(day);
        for (int shift = 1; shift <= shiftsOn(ws, weekday); ++shift) {
            for (int slot = 0; slot <= highestSlotOf(ws, weekday, shift); ++slot) {
                if (ws.schedule(day, shift, slot) == key) {
                    shifts.push_back({agent, date, weekday, shift});
                    break;
                }
            }
        }
    }
    return shifts;
}

QString appointmentId(const Workspace& ws, int agent, const QDate& date, int shift) {
    const QByteArray who =
        (ws.gAgentEmail[agent].toLower() + QLatin1Char('\n') + ws.gAgentKey[agent]).toUtf8();
    return date.toString(QStringLiteral("yyyyMMdd")) + QLatin1Char('-') + QString::number(shift) +
           QLatin1Char('-') +
           QString::fromLatin1(
               QCryptographicHash::hash(who, QCryptographicHash::Sha1).toHex().left(16)) +
           QStringLiteral("@desko");
}

CalendarEvent shiftEvent(const Workspace& ws, const AgentShift& shift, const ShiftTimes& times) {
    CalendarEvent event;
    event.uid = appointmentId(ws, shift.agent, shift.date, shift.shift);
    event.date = shift.date;
    event.allDay = !times.ok;
    event.start = times.start;
    event.end = times.end;
    event.summary = times.ok ? ws.gOutlookSubject : ws.gShiftText[shift.weekday][shift.shift];
    event.description = ws.gOutlookBody;
    return event;
}
