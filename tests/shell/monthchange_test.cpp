#include "fakes.h"
#include "persistence/textfile.h"
#include "shell/frmMain.h"
#include "shell/session.h"
#include "shell/textrules.h"
#include "workspace/workspace.h"

#include <QLabel>
#include <QScrollBar>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

// Steps of the month stepper: +1 is one step down (the month before), -1 one step up (the
// month after); anything else is a drag of the thumb.
struct Case {
    const char* what;
    int month;
    int year;
    bool data;  // a holiday, a vacation and a schedule to lose
    std::vector<int> steps;
    std::vector<MsgAnswer> answers;
    int endMonth;
    int endYear;
    bool erased;
};

}  // namespace

TEST(MonthChange, StepsTheMonthAndErasesItsData) {
    const Case cases[] = {
        {"forward over December", 12, 2026, false, {-1}, {}, 1, 2027, true},
        {"back over January", 1, 2027, false, {1}, {}, 12, 2026, true},
        {"two steps back", 3, 2027, false, {1, 1}, {}, 1, 2027, true},
        {"a Yes erases and steps", 5, 2027, true, {-1}, {MsgAnswer::Yes}, 6, 2027, true},
        {"a No keeps all", 5, 2027, true, {-1}, {MsgAnswer::No}, 5, 2027, false},
        // After a No the bar is out of step: the next step is a difference of 2, which erases
        // but does not move the month.
        {"a step after a No",
         5,
         2027,
         true,
         {-1, -1},
         {MsgAnswer::No, MsgAnswer::Yes},
         5,
         2027,
         true},
        {"a drag", 5, 2027, false, {-7}, {}, 5, 2027, true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        QTemporaryDir home;
        TestServices s;
        Workspace ws;
        modInitNameTables(ws);
        modInitSession(ws, home.path());
        ws.gCurrentMonth = c.month;
        ws.gCurrentYear = c.year;
        modSetupMonth(ws);
        ws.gAgentCount = 1;
        ws.redimAgents(1);
        ws.gAgentLast[1] = QStringLiteral("Chen");
        ws.gRestriction[1][2][1] = 1;
        ws.gOutlookBody = QStringLiteral("kept");
        if (c.data) {
            ws.gHoliday[4] = ws.gHasHolidays = 1;
            ws.gVacation[1][9] = ws.gHasVacations = 1;
            ws.schedule(2, 1, 0) = QStringLiteral("Chen");
            ws.gScheduleGenerated = 1;
            ws.gCalendarTitle = QStringLiteral("Old title");
        }
        for (const MsgAnswer answer : c.answers) {
            s.dialogs.answers.push_back(answer);
        }
        frmMain window(ws, s.ctx, QStringLiteral("desko40"));
        window.show();
        for (const int step : c.steps) {
            window.vscDate->setValue(window.vscDate->value() + step);
        }

        EXPECT_EQ(ws.gCurrentMonth, c.endMonth);
        EXPECT_EQ(ws.gCurrentYear, c.endYear);
        EXPECT_EQ(window.labDate->text(),
                  ws.currentMonthName() + QLatin1Char(' ') + QString::number(c.endYear));
        EXPECT_EQ(s.dialogs.shown.size(), c.answers.size());
        if (!c.answers.empty()) {
            EXPECT_EQ(s.dialogs.shown[0].text,
                      modWrapMessage(QStringLiteral("Changing the date of the calendar will erase "
                                                    "the schedule, as well as all holidays, "
                                                    "vacations, and notes.  Do you want to "
                                                    "proceed anyway?"),
                                     s.dialogs));
            EXPECT_EQ(s.dialogs.shown[0].defaultButton, 2);
        }
        if (c.data) {
            EXPECT_EQ(ws.gHoliday[4], c.erased ? 0 : 1);
            EXPECT_EQ(ws.gVacation[1][9], c.erased ? 0 : 1);
            EXPECT_EQ(ws.schedule(2, 1, 0).isEmpty(), c.erased);
            EXPECT_EQ(ws.gScheduleGenerated, c.erased ? 0 : 1);
            EXPECT_EQ(ws.gCalendarTitle.isEmpty(), c.erased);
        }
        // What outlives a month: restrictions and the Outlook body; the change flag stays.
        EXPECT_EQ(ws.gRestriction[1][2][1], 1);
        EXPECT_EQ(ws.gOutlookBody, QStringLiteral("kept"));
        EXPECT_FALSE(ws.gDirty.has_value());
        const QString ini = readTextFile(ws.gConfigFile).value_or(QString());
        EXPECT_EQ(ini.contains(QStringLiteral("\r\nCurrent Month=") + QString::number(c.endMonth) +
                               QStringLiteral("\r\n")),
                  c.erased);
        const QString log = readTextFile(ws.gLogFile).value_or(QString());
        EXPECT_EQ(log.contains(QStringLiteral("]     Changing the present month to ") +
                               ws.currentMonthName() + QLatin1Char(' ') +
                               QString::number(c.endYear) + QStringLiteral("\r\n")),
                  c.erased);
    }
}
