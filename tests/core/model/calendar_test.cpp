#include "core/model/calendar.h"
#include "core/model/monthdata.h"
#include "core/model/workspace.h"

#include <QDate>

#include <gtest/gtest.h>

namespace {

Workspace monthOf(int year, int month) {
    Workspace ws;
    modInitNameTables(ws);
    ws.gCurrentYear = year;
    ws.gCurrentMonth = month;
    modSetupMonth(ws);
    return ws;
}

}  // namespace

// Between the base year and 2099 the calendar's own arithmetic must agree with the real
// calendar for every month, and a sixth row is needed exactly when the weeks overflow five.
// Where it differs from the real one is held by tests/core/model/golden/months.tsv.
TEST(SetupMonth, AgreesWithTheRealCalendarFrom1993To2099) {
    for (int year = 1993; year <= 2099; ++year) {
        for (int month = 1; month <= 12; ++month) {
            const Workspace ws = monthOf(year, month);
            const QDate first(year, month, 1);
            ASSERT_EQ(ws.gFirstWeekday, first.dayOfWeek() % 7) << year << "-" << month;
            ASSERT_EQ(ws.gMonthDays[month], first.daysInMonth()) << year << "-" << month;
            const bool sixRows = (ws.gFirstWeekday + ws.gMonthDays[month] + 6) / 7 > 5;
            ASSERT_EQ(ws.gCalendarSixRows, sixRows ? 1 : 0) << year << "-" << month;
        }
    }
}

TEST(SetupMonth, YearsFarOutsideAndUnknownMonthsStayInBounds) {
    for (const int year : {-2147483647, -5000, 0, 1, 1900, 99999, 2147483647}) {
        for (const int month : {-1, 0, 1, 2, 12, 13, 1000}) {
            const Workspace ws = monthOf(year, month);
            EXPECT_GT(ws.gFirstWeekday, -7);
            EXPECT_LT(ws.gFirstWeekday, 7);
            EXPECT_TRUE(ws.gCalendarSixRows == 0 || ws.gCalendarSixRows == 1);
        }
    }
}

TEST(DefaultTexts, OverwriteFiveTextsAndLeaveTheRest) {
    Workspace ws = monthOf(2027, 3);
    ws.gCalendarTitle = QStringLiteral("old");
    ws.gEmailBody = QStringLiteral("old");
    ws.gOutlookBody = QStringLiteral("kept body");
    ws.gCalendarNotes = QStringLiteral("kept notes");
    ws.gGridNotes = QStringLiteral("kept grid notes");
    modDefaultTexts(ws);
    const QString title = QStringLiteral("March 2027 Desko Schedule");
    EXPECT_EQ(ws.gCalendarTitle, title);
    EXPECT_EQ(ws.gGridTitle, title);
    EXPECT_EQ(ws.gEmailSubject, title);
    EXPECT_EQ(ws.gOutlookSubject, title);
    EXPECT_EQ(
        ws.gEmailBody,
        QStringLiteral("You have been assigned the following shifts for the month of March 2027:"));
    EXPECT_EQ(ws.gOutlookBody, QStringLiteral("kept body"));
    EXPECT_EQ(ws.gCalendarNotes, QStringLiteral("kept notes"));
    EXPECT_EQ(ws.gGridNotes, QStringLiteral("kept grid notes"));
}
