#include "shell/monthchange.h"

#include "core/model/workspace.h"
#include "core/services/msgbox.h"
#include "fakes.h"

#include <QTemporaryDir>

#include <climits>

#include <gtest/gtest.h>

// The stepper's values in turn, from 0: +1 is one step down (the month before), -1 one step up
// (the month after); anything else is a drag of the thumb. Only a month with data (a holiday,
// a vacation and a schedule) asks before it loses them, and the answers come in turn. After a
// No the bar is out of step: the next step is a difference of 2, which erases but does not
// move the month.
TEST(MonthChange, StepsTheMonthAndErasesItsData) {
    struct Case {
        const char* what;
        int month;
        int year;
        std::vector<int> values;
        std::vector<MsgAnswer> answers;
        const char* end;  // the month and year afterwards
        bool erased;
    };
    const QString question = QStringLiteral(
        "Changing the date of the calendar will erase the schedule, as well as all holidays, "
        "vacations, and notes.  Do you want to proceed anyway?");
    const MsgAnswer yes = MsgAnswer::Yes;
    const MsgAnswer no = MsgAnswer::No;
    const Case cases[] = {
        {"forward over December", 12, 2026, {-1}, {}, "January 2027", true},
        {"back over January", 1, 2027, {1}, {}, "December 2026", true},
        {"two steps back", 3, 2027, {1, 2}, {}, "January 2027", true},
        {"a Yes erases and steps", 5, 2027, {-1}, {yes}, "June 2027", true},
        {"a No keeps all", 5, 2027, {-1}, {no}, "May 2027", false},
        {"a step after a No", 5, 2027, {-1, -2}, {no, yes}, "May 2027", true},
        {"a drag", 5, 2027, {-7}, {}, "May 2027", true},
        {"forward over the last year", 12, INT_MAX, {-1}, {}, "January 2147483647", true},
        {"back over the first year", 1, INT_MIN, {1}, {}, "December -2147483648", true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        const bool data = !c.answers.empty();
        QTemporaryDir home;
        TestServices s;
        Workspace ws;
        openMonth(ws, c.year, c.month, home.path());
        ws.gAgentCount = 1;
        ws.redimAgents(1);
        ws.gRestriction[1][2][1] = 1;
        ws.gOutlookBody = QStringLiteral("kept");
        if (data) {
            ws.gHoliday[4] = ws.gHasHolidays = 1;
            ws.gVacation[1][9] = ws.gHasVacations = 1;
            ws.schedule(2, 1, 0) = QStringLiteral("Chen");
            ws.gScheduleGenerated = 1;
            ws.gCalendarTitle = QStringLiteral("Old title");
        }
        s.dialogs.answers.assign(c.answers.begin(), c.answers.end());
        bool changed = false;
        for (const int value : c.values) {
            changed = changeMonth(ws, s.ctx, value);
        }

        EXPECT_EQ(changed, c.erased);
        const QString end = QString::fromUtf8(c.end);
        EXPECT_EQ(ws.currentMonthName() + QLatin1Char(' ') + QString::number(ws.gCurrentYear), end);
        ASSERT_EQ(s.dialogs.shown.size(), c.answers.size());
        for (const ScriptedDialogs::Shown& box : s.dialogs.shown) {
            EXPECT_EQ(box.text, modWrapMessage(question, s.dialogs));
            EXPECT_EQ(box.icon, MsgIcon::Exclamation);
            EXPECT_EQ(box.defaultButton, 2);
        }
        if (data) {
            EXPECT_EQ(ws.gHoliday[4] + ws.gVacation[1][9] + ws.gScheduleGenerated,
                      c.erased ? 0 : 3);
            EXPECT_EQ(ws.schedule(2, 1, 0).isEmpty(), c.erased);
            EXPECT_EQ(ws.gCalendarTitle.isEmpty(), c.erased);
        }
        // What outlives a month: restrictions and the Outlook body; the change flag stays.
        EXPECT_EQ(ws.gRestriction[1][2][1], 1);
        EXPECT_EQ(ws.gOutlookBody, QStringLiteral("kept"));
        EXPECT_FALSE(ws.gDirty.has_value());
        EXPECT_EQ(fileText(ws.gConfigFile)
                      .contains(QStringLiteral("\r\nCurrent Month=") +
                                QString::number(ws.gCurrentMonth) + QStringLiteral("\r\n")),
                  c.erased);
        EXPECT_EQ(logged(ws, QStringLiteral("Changing the present month to ") + end), c.erased);
    }
}
