#include "core/model/calendar.h"

#include "core/model/workspace.h"

void modInitNameTables(Workspace& ws) {
    ws.gDayNames = {QStringLiteral("Sunday"),   QStringLiteral("Monday"),
                    QStringLiteral("Tuesday"),  QStringLiteral("Wednesday"),
                    QStringLiteral("Thursday"), QStringLiteral("Friday"),
                    QStringLiteral("Saturday")};
    ws.gMonthNames = {QString(),
                      QStringLiteral("January"),
                      QStringLiteral("February"),
                      QStringLiteral("March"),
                      QStringLiteral("April"),
                      QStringLiteral("May"),
                      QStringLiteral("June"),
                      QStringLiteral("July"),
                      QStringLiteral("August"),
                      QStringLiteral("September"),
                      QStringLiteral("October"),
                      QStringLiteral("November"),
                      QStringLiteral("December")};
    ws.gMonthDays = {0, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    ws.gMonthOffset = {0, 0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334};
}

// The calendar's own arithmetic from the Friday of 1 January 1993. Every fourth year is a
// leap year, 2100 included, and years before 1993 come out as the sums give them: the
// remainder keeps the sign of the sum, as the weekday formula everywhere else expects.
// A month outside 1..12 reads its table entries as unset, so nothing indexes past them.
void modSetupMonth(Workspace& ws) {
    const long long y = ws.gCurrentYear;
    const int m = ws.gCurrentMonth;
    const bool knownMonth = m >= 0 && m <= 12;
    const long long offset = knownMonth ? ws.gMonthOffset[m] : 0;

    long long w = ((y - 1993) * 365 + offset + 5) % 7;
    const long long k = (y - 1992) / 4;
    if (y > 1995) {
        // Every leap day since the base counts, except this year's before it has come.
        const bool leapDayAhead = y % 4 == 0 && m < 3;
        w += leapDayAhead ? k - 1 : k;
    }
    ws.gMonthDays[2] = y % 4 == 0 ? 29 : 28;
    ws.gFirstWeekday = static_cast<int>(w % 7);

    const int days = knownMonth ? ws.gMonthDays[m] : 0;
    ws.gCalendarSixRows =
        (days == 31 && ws.gFirstWeekday == 5) || (days > 29 && ws.gFirstWeekday == 6) ? 1 : 0;
}
