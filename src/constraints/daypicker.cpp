#include "constraints/daypicker.h"

#include "core/services/context.h"
#include "core/services/dialogs.h"
#include "core/services/log.h"
#include "persistence/rowlimit.h"
#include "persistence/scheduleformat.h"
#include "persistence/workspacefile.h"

#include <functional>
#include <vector>

namespace {

// The date of gEditDay as the rules see it: its weekday, and which of those weekdays of the
// month it is.
struct DayFacts {
    int month;
    int day;
    int wd;
    int nth;
    int firstWeekday;
};

using Rule = std::function<bool(const DayFacts&)>;

Rule on(int month, int day) {
    return [=](const DayFacts& f) { return f.month == month && f.day == day; };
}

// nth 0 stands for every such weekday of the month.
Rule onWeekday(int month, int wd, int nth) {
    return [=](const DayFacts& f) {
        return f.month == month && f.wd == wd && (nth == 0 || f.nth == nth);
    };
}

// The last Monday of a May of 31 days: five Mondays when the 1st is a Sunday or a Monday.
bool memorialDay(const DayFacts& f) {
    return f.month == 5 && f.wd == 1 &&
           ((f.nth == 4 && f.firstWeekday > 1) || (f.nth == 5 && f.firstWeekday < 2));
}

struct Proposal {
    Rule rule;
    QString text;
};

// The rules in their testing order; each that matches overwrites the proposal.
const std::vector<Proposal>& holidayNames() {
    static const std::vector<Proposal> names = {
        {onWeekday(1, 1, 3), QStringLiteral("Martin Luther King, Jr. Day")},
        {onWeekday(2, 1, 0), QStringLiteral("President's Day")},
        {onWeekday(5, 0, 2), QStringLiteral("Mother's Day")},
        {memorialDay, QStringLiteral("Memorial Day")},
        {onWeekday(6, 0, 3), QStringLiteral("Father's Day")},
        {onWeekday(11, 4, 4), QStringLiteral("Thanksgiving Day")},
        {on(1, 1), QStringLiteral("New Year's Day")},
        {on(2, 14), QStringLiteral("Valentine's Day")},
        {on(2, 22), QStringLiteral("Washington's Birthday")},
        {on(3, 17), QStringLiteral("St. Patrick's Day")},
        {on(6, 14), QStringLiteral("Flag Day")},
        {on(7, 4), QStringLiteral("Independence Day")},
        {onWeekday(9, 1, 1), QStringLiteral("Labor Day")},
        {on(10, 31), QStringLiteral("Halloween")},
        {on(11, 11), QStringLiteral("Veteran's Day")},
        {on(12, 24), QStringLiteral("Christmas Eve")},
        {on(12, 25), QStringLiteral("Christmas Day")},
        {on(12, 31), QStringLiteral("New Year's Eve")},
    };
    return names;
}

const std::vector<Proposal>& notedDayNames() {
    static const std::vector<Proposal> names = {
        {on(1, 1), QStringLiteral("New Year's Day")},
        {onWeekday(1, 1, 3), QStringLiteral("Martin Luther King, Jr. Day")},
        {on(2, 14), QStringLiteral("Valentine's Day")},
        {onWeekday(2, 1, 0), QStringLiteral("President's Day")},
        {on(2, 22), QStringLiteral("Washington's Birthday")},
        {on(3, 17), QStringLiteral("St. Patrick's Day")},
        {onWeekday(5, 0, 2), QStringLiteral("Mother's Day")},
        {memorialDay, QStringLiteral("Memorial Day")},
        {on(6, 14), QStringLiteral("Flag Day")},
        {onWeekday(6, 0, 3), QStringLiteral("Father's Day")},
        {on(7, 4), QStringLiteral("Independence Day")},
        {onWeekday(9, 1, 1), QStringLiteral("Labor Day")},
        {on(10, 31), QStringLiteral("Halloween")},
        {on(11, 1), QStringLiteral("All Saints' Day")},
        {on(11, 11), QStringLiteral("Veteran's Day")},
        {onWeekday(11, 4, 4), QStringLiteral("Thanksgiving Day")},
        {on(12, 24), QStringLiteral("Christmas Eve")},
        {on(12, 25), QStringLiteral("Christmas")},
        {on(12, 31), QStringLiteral("New Year's Eve")},
    };
    return names;
}

QString monthDay(const Workspace& ws, int day) {
    return ws.currentMonthName() + QLatin1Char(' ') + QString::number(day);
}

// The picks as the table of the mode; days past the month's end are left as they stand.
void storePicks(Workspace& ws, const PickedDays& picks, int mode, int agent) {
    for (int d = 1; d <= ws.currentMonthDays(); ++d) {
        const int flag = picks[d] ? 1 : 0;
        if (mode == kPickHolidays) {
            ws.gHoliday[d] = flag;
        } else if (mode == kPickNotedDays) {
            ws.gNoted[d] = flag;
        } else if (ws.hasAgent(agent)) {
            ws.gVacation[agent][d] = flag;
        }
    }
}

// Whether the file can keep the month's vacation days with the picks as the agent's on show;
// the user is told when it cannot.
bool roomForPicks(Workspace& ws, Context& ctx, const PickedDays& picks) {
    const int agent = ws.gDayPickerAgent;
    if (!ws.hasAgent(agent)) {
        return true;
    }
    const DayFlags before = ws.gVacation[agent];
    storePicks(ws, picks, kPickVacations, agent);
    const int rows = sectionRows(ws, RowSection::Vacations);
    ws.gVacation[agent] = before;
    return roomForRows(ctx, RowSection::Vacations, rows);
}

}  // namespace

QString dayPickerOpenLine(const Workspace& ws) {
    switch (ws.gDayPickerMode) {
        case kPickHolidays:
            return QStringLiteral("Viewing holidays in ") + ws.currentMonthName();
        case kPickVacations:
            return QStringLiteral("Viewing vacation days for ") + ws.agentName(ws.gDayPickerAgent);
        default:
            return QStringLiteral("Viewing noted days in ") + ws.currentMonthName();
    }
}

QString dayPickerCaption(const Workspace& ws) {
    switch (ws.gDayPickerMode) {
        case kPickHolidays:
            return ws.currentMonthName() + QStringLiteral(" holidays");
        case kPickVacations:
            return QStringLiteral("Vacation days for ") + ws.agentName(ws.gDayPickerAgent);
        default:
            return ws.currentMonthName() + QStringLiteral(" noted days");
    }
}

PickedDays pickedDays(const Workspace& ws) {
    PickedDays picks{};
    for (int d = 1; d <= ws.currentMonthDays(); ++d) {
        switch (ws.gDayPickerMode) {
            case kPickHolidays:
                picks[d] = ws.gHoliday[d] == 1;
                break;
            case kPickVacations:
                picks[d] =
                    ws.hasAgent(ws.gDayPickerAgent) && ws.gVacation[ws.gDayPickerAgent][d] == 1;
                break;
            default:
                picks[d] = ws.gNoted[d] == 1;
                break;
        }
    }
    return picks;
}

QString proposedDayName(const Workspace& ws) {
    // The weekday's remainder keeps the sign of the sum, as the calendar's own does.
    const DayFacts facts{ws.gCurrentMonth, ws.gEditDay, (ws.gEditDay + ws.gFirstWeekday - 1) % 7,
                         (ws.gEditDay - 1) / 7 + 1, ws.gFirstWeekday};
    const bool holiday = ws.gDayPickerMode == kPickHolidays;
    QString proposal = holiday ? QStringLiteral("Office Holiday") : QString();
    for (const Proposal& name : holiday ? holidayNames() : notedDayNames()) {
        if (name.rule(facts)) {
            proposal = name.text;
        }
    }
    return proposal;
}

bool modNameDay(Workspace& ws, Context& ctx) {
    const bool holiday = ws.gDayPickerMode == kPickHolidays;
    const QString day = monthDay(ws, ws.gEditDay);
    const QString prompt =
        holiday ? QStringLiteral("Enter the name of the holiday on ") + day + QLatin1Char('.')
                : QStringLiteral("Enter notes for ") + day + QLatin1Char('.');
    // Kept as the file will give it back, so that what is shown now is what the next run
    // reads: on one line, without blanks around it, and no longer than a value may be.
    const QString name =
        storedText(ctx.dialogs.inputBox(prompt, proposedDayName(ws)).value_or(QString()));
    if (name.isEmpty()) {
        return false;
    }
    if (holiday) {
        ws.gHolidayName[ws.gEditDay] = name;
        modStatus(ws, ctx,
                  QStringLiteral("Naming the holiday on ") + day + QStringLiteral(" xDayDesc"));
    } else {
        ws.gNotedText[ws.gEditDay] = name;
        modStatus(ws, ctx,
                  QStringLiteral("Naming the noted day on ") + day + QStringLiteral(" xDayDesc"));
    }
    return true;
}

bool clickPickerDay(Workspace& ws, Context& ctx, int day, bool picked) {
    ws.gEditDay = day;
    const QString as = ws.gDayPickerMode == kPickHolidays    ? QStringLiteral(" as a holiday")
                       : ws.gDayPickerMode == kPickVacations ? QStringLiteral(" as a vacation day")
                                                             : QStringLiteral(" as a noted day");
    const QString what = monthDay(ws, day) + as;
    if (picked) {
        modStatus(ws, ctx, QStringLiteral("Deselected ") + what);
        return false;
    }
    // The line comes before the question, so a refused name still leaves it.
    modStatus(ws, ctx, QStringLiteral("Selected ") + what);
    return ws.gDayPickerMode == kPickVacations || modNameDay(ws, ctx);
}

bool savePickedDays(Workspace& ws, Context& ctx, const PickedDays& picks) {
    const int mode = ws.gDayPickerMode;
    if (mode == kPickVacations && !roomForPicks(ws, ctx, picks)) {
        return false;
    }
    ws.gDirty = 1;
    if (mode == kPickHolidays) {
        modStatus(ws, ctx, QStringLiteral("Saving holidays for ") + ws.currentMonthName());
    } else if (mode == kPickNotedDays) {
        modStatus(ws, ctx, QStringLiteral("Saving noted days for ") + ws.currentMonthName());
        ws.gHasNotedDays = 0;
    } else {
        ws.gHasVacations = 0;
    }
    storePicks(ws, picks, mode, ws.gDayPickerAgent);
    modSaveWorkspace(ws, ctx, QString());
    return true;
}

bool switchVacationAgent(Workspace& ws, Context& ctx, int listIndex, const PickedDays& picks) {
    if (listIndex == -1 || listIndex + 1 == ws.gDayPickerAgent || !roomForPicks(ws, ctx, picks)) {
        return false;
    }
    ws.gDirty = 1;
    storePicks(ws, picks, kPickVacations, ws.gDayPickerAgent);
    ws.gHasVacations = 0;
    modSaveWorkspace(ws, ctx, QString());
    if (ws.gDayPickerAgent > 0) {
        ws.gDayPickerAgent = listIndex + 1;
    }
    return true;
}
