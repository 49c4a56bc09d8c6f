#include "core/model/calendar.h"
#include "core/model/workspace.h"
#include "fakes.h"
#include "fuzzing.h"

#include <climits>
#include <set>
#include <utility>

#include <gtest/gtest.h>

// A month of any year goes the whole road without harm: opened in its own month, every
// engine's schedule made, looked over in the review, the day editor and the day pickers,
// printed in every report and exported through every channel. From 1900 to 2100 the first
// month of each shape a month can have on the calendar is taken, its first weekday (negative
// before 1993, as the calendar's arithmetic gives it) and its length; then months and years
// that no calendar has. Where the first weekday is one of the week's, every engine fills
// every position; before 1993 the weekend walk of Serial (mixed) misses a first Saturday or
// Sunday, as its arithmetic has it.
TEST(WholeRoad, MonthsOfAnyYear) {
    std::vector<std::pair<int, int>> months;  // year and month as the file holds them
    std::set<std::pair<int, int>> shapes;
    Workspace calendar;
    modInitNameTables(calendar);
    const auto setMonth = [&](int year, int month) {
        calendar.gCurrentYear = year;
        calendar.gCurrentMonth = month;
        modSetupMonth(calendar);
    };
    for (int year = 1900; year <= 2100; ++year) {
        for (int month = 1; month <= 12; ++month) {
            setMonth(year, month);
            if (shapes.insert({calendar.gFirstWeekday, calendar.currentMonthDays()}).second) {
                months.emplace_back(year, month);
            }
        }
    }
    ASSERT_EQ(shapes.size(), 13u * 4);
    months.insert(months.end(),
                  {{1992, 0}, {1992, 13}, {1992, -2}, {0, 2}, {INT_MIN, 1}, {INT_MAX, 12}});

    const QByteArray example =
        fileText(QStringLiteral(DESKO_EXAMPLES_DIR "/office/Example Office.dko")).toUtf8();
    for (const auto& [year, month] : months) {
        SCOPED_TRACE(std::to_string(year) + '/' + std::to_string(month));
        QByteArray text = example;
        text.replace("Current Month=1\r\n", "Current Month=" + QByteArray::number(month) + "\r\n")
            .replace("Current Year=2027\r\n", "Current Year=" + QByteArray::number(year) + "\r\n");
        const RoadResult road = travelWholeRoad(scratchFile(QStringLiteral("month.dko"), text));
        ASSERT_TRUE(road.opened);
        EXPECT_EQ(road.month, month >= 1 && month <= 12 ? month : 1);
        EXPECT_EQ(road.year, year);
        EXPECT_EQ(road.schedulesGenerated, 4);
        setMonth(road.year, road.month);
        if (calendar.gFirstWeekday >= 0) {
            EXPECT_EQ(road.unfilledPositions, 0);
        }
        EXPECT_GT(road.documents, 0);
        EXPECT_GT(road.messages, 0);
    }
}
