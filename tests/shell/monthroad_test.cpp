#include "core/model/calendar.h"
#include "core/model/workspace.h"
#include "fakes.h"
#include "fuzzing.h"

#include <QFile>
#include <QTemporaryDir>

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
    std::vector<std::pair<QString, QString>> months;  // year and month as the file holds them
    std::set<std::pair<int, int>> shapes;
    Workspace calendar;
    modInitNameTables(calendar);
    for (int year = 1900; year <= 2100; ++year) {
        for (int month = 1; month <= 12; ++month) {
            calendar.gCurrentYear = year;
            calendar.gCurrentMonth = month;
            modSetupMonth(calendar);
            if (shapes.insert({calendar.gFirstWeekday, calendar.currentMonthDays()}).second) {
                months.emplace_back(QString::number(year), QString::number(month));
            }
        }
    }
    ASSERT_EQ(shapes.size(), 13u * 4);
    const std::pair<QString, QString> nowhere[] = {
        {QStringLiteral("1992"), QStringLiteral("0")},
        {QStringLiteral("1992"), QStringLiteral("13")},
        {QStringLiteral("1992"), QStringLiteral("-2")},
        {QStringLiteral("0"), QStringLiteral("2")},
        {QStringLiteral("-2147483648"), QStringLiteral("1")},
        {QStringLiteral("2147483647"), QStringLiteral("12")},
    };
    months.insert(months.end(), std::begin(nowhere), std::end(nowhere));

    const QString example =
        fileText(QStringLiteral(DESKO_EXAMPLES_DIR "/office/Example Office.dko"));
    QTemporaryDir dir;
    for (const auto& [year, month] : months) {
        SCOPED_TRACE((year + QLatin1Char('/') + month).toStdString());
        QString text = example;
        text.replace(QStringLiteral("Current Month=1\r\n"),
                     QStringLiteral("Current Month=") + month + QStringLiteral("\r\n"));
        text.replace(QStringLiteral("Current Year=2027\r\n"),
                     QStringLiteral("Current Year=") + year + QStringLiteral("\r\n"));
        const QString path = dir.filePath(QStringLiteral("month.dko"));
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(text.toUtf8());
        file.close();

        const RoadResult road = travelWholeRoad(path);
        ASSERT_TRUE(road.opened);
        const int opened = month.toInt() >= 1 && month.toInt() <= 12 ? month.toInt() : 1;
        EXPECT_EQ(road.month, opened);
        EXPECT_EQ(road.year, year.toInt());
        EXPECT_EQ(road.schedulesGenerated, 4);
        calendar.gCurrentYear = road.year;
        calendar.gCurrentMonth = road.month;
        modSetupMonth(calendar);
        if (calendar.gFirstWeekday >= 0) {
            EXPECT_EQ(road.unfilledPositions, 0);
        }
        EXPECT_GT(road.documents, 0);
        EXPECT_GT(road.messages, 0);
    }
}
