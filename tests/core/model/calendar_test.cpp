#include "core/model/calendar.h"
#include "core/model/monthdata.h"
#include "core/model/workspace.h"
#include "fakes.h"

#include <QDate>

#include <gtest/gtest.h>

// Between the base year and 2099 the calendar's own arithmetic must agree with the real
// calendar for every month, and a sixth row is needed exactly when the weeks overflow five.
// Where it differs from the real one is held by tests/core/model/golden/months.tsv.
TEST(SetupMonth, AgreesWithTheRealCalendarFrom1993To2099) {
    for (int year = 1993; year <= 2099; ++year) {
        for (int month = 1; month <= 12; ++month) {
            Workspace ws;
            openMonth(ws, year, month);
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
            Workspace ws;
            openMonth(ws, year, month);
            EXPECT_GT(ws.gFirstWeekday, -7);
            EXPECT_LT(ws.gFirstWeekday, 7);
            EXPECT_TRUE(ws.gCalendarSixRows == 0 || ws.gCalendarSixRows == 1);
        }
    }
}

// Five texts take the month's defaults; the others are the user's own and stay.
TEST(DefaultTexts, OverwriteFiveTextsAndLeaveTheRest) {
    Workspace ws;
    openMonth(ws, 2027, 3);
    ws.gCalendarTitle = ws.gEmailBody = QStringLiteral("old");
    ws.gOutlookBody = ws.gCalendarNotes = ws.gGridNotes = QStringLiteral("kept");
    modDefaultTexts(ws);
    EXPECT_EQ(QStringList({ws.gCalendarTitle, ws.gGridTitle, ws.gEmailSubject, ws.gOutlookSubject}),
              QStringList(4, QStringLiteral("March 2027 Desko Schedule")));
    EXPECT_EQ(
        ws.gEmailBody,
        QStringLiteral("You have been assigned the following shifts for the month of March 2027:"));
    EXPECT_EQ(QStringList({ws.gOutlookBody, ws.gCalendarNotes, ws.gGridNotes}),
              QStringList(3, QStringLiteral("kept")));
}
