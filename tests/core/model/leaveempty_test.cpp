#include "core/model/leaveempty.h"
#include "fakes.h"
#include "offices.h"

#include <gtest/gtest.h>

// January 2027: one shift of two agents every day; the 1st is a holiday.
TEST(LeaveEmpty, BlanksWorkingDaysAndRestoresEveryDay) {
    Workspace ws;
    openMonth(ws, 2027, 1);
    setTable(ws, 1, 2);
    ws.gHoliday[1] = 1;
    const QString leave = QStringLiteral("Leave empty");
    const QString blanks(10, QLatin1Char(' '));
    const struct {
        int day, slot;
        QString before, blanked, restored;
    } cases[] = {
        {2, 1, leave, blanks, leave},   // a working day's wish prints as blanks
        {1, 0, leave, leave, leave},    // a holiday is passed over
        {1, 1, blanks, blanks, leave},  // a holiday's blanks come back as the wish
        {3, 0, blanks, blanks, leave},  // so do blanks that were there before
        {4, 1, QStringLiteral("Chen"), QStringLiteral("Chen"), QStringLiteral("Chen")},
        {5, 2, leave, leave, leave},    // a slot beyond the shift's agents is no position
        {31, 0, leave, blanks, leave},  // the month's last day
    };
    for (const auto& c : cases) {
        ws.schedule(c.day, 1, c.slot) = c.before;
    }
    blankLeaveEmptyCells(ws);
    for (const auto& c : cases) {
        EXPECT_EQ(ws.schedule(c.day, 1, c.slot), c.blanked) << c.day << '/' << c.slot;
    }
    restoreLeaveEmptyCells(ws);
    for (const auto& c : cases) {
        EXPECT_EQ(ws.schedule(c.day, 1, c.slot), c.restored) << c.day << '/' << c.slot;
    }
}
