#include "core/model/leaveempty.h"
#include "fakes.h"
#include "offices.h"
#include "tables.h"

#include <gtest/gtest.h>

// Cells of January 2027: one shift of two agents every day; the 1st is a holiday.
TEST(LeaveEmpty, BlanksWorkingDaysAndRestoresEveryDay) {
    Workspace ws;
    openMonth(ws, 2027, 1);
    setTable(ws, 1, 2);
    ws.gHoliday[1] = 1;
    QList<QStringList> rows = tableRows("core/model/golden/leaveempty.tsv");
    for (QStringList& row : rows) {
        row.replaceInStrings(QStringLiteral("{blanks}"), QString(10, u' '));
        ws.schedule(row[0].toInt(), 1, row[1].toInt()) = row[2];
    }
    blankLeaveEmptyCells(ws);
    for (const QStringList& row : rows) {
        EXPECT_EQ(ws.schedule(row[0].toInt(), 1, row[1].toInt()), row[3]) << row[0].toStdString();
    }
    restoreLeaveEmptyCells(ws);
    for (const QStringList& row : rows) {
        EXPECT_EQ(ws.schedule(row[0].toInt(), 1, row[1].toInt()), row[4]) << row[0].toStdString();
    }
}
