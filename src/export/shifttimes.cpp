#include "export/shifttimes.h"

#include "core/model/shifttime.h"

namespace {

// "09:30 PM", as the reading of a shift time gives it, in minutes after midnight.
int minutesOf(const QString& time) {
    const int hour = QStringView(time).left(2).toInt();
    const int minute = QStringView(time).mid(3, 2).toInt();
    return (hour % 12 + (time.endsWith(QLatin1String("PM")) ? 12 : 0)) * 60 + minute;
}

}  // namespace

WeeklyShiftTimes interpretWeeklyShifts(const Workspace& ws) {
    WeeklyShiftTimes times{};
    for (int weekday = 0; weekday < kWeekdays; ++weekday) {
        for (int shift = 1; shift <= shiftsOn(ws, weekday); ++shift) {
            QString start;
            QString end;
            ShiftTimes& read = times[weekday][shift];
            read.ok = modInterpretShiftTime(ws.gShiftText[weekday][shift], start, end);
            if (read.ok) {
                read.start = minutesOf(start);
                read.end = minutesOf(end);
            }
        }
    }
    return times;
}

QString uninterpretedShiftLine(const Workspace& ws, int weekday, int shift) {
    return QStringLiteral("Failed to interpret the ") + modOrdinalWord(shift) +
           QStringLiteral(" shift on ") + ws.gDayNames[weekday] + QStringLiteral("  (") +
           ws.gShiftText[weekday][shift] + QLatin1Char(')');
}
