#include "core/model/workspace.h"
#include "fakes.h"
#include "generation/engines.h"
#include "offices.h"
#include "tables.h"

#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace {

using Engine = void (*)(Workspace&, Context&, int&);
const Engine horizontal = modGenerateSerialHorizontal;
const Engine mixed = modGenerateSerialMixed;

}  // namespace

// With more agents than the month has positions, the agent a day gets tells when the day
// was visited: the i-th day visited gets the i-th agent after the cursor.
TEST(SerialEngines, VisitTheDaysInTheirOrder) {
    constexpr int kAgents = 40;
    constexpr int kCursor = 5;
    QTemporaryDir home;
    for (const QStringList& row : tableRows("generation/golden/tables/serialdays.tsv")) {
        SCOPED_TRACE(row.join(QLatin1Char(' ')).toStdString());
        TestServices s;
        Workspace ws;
        makeOffice(ws, row[1].toInt(), row[2].toInt(), kAgents);
        loseLogLines(ws, home);
        fillWithOldSchedule(ws);
        const auto days = [](const QString& field) {
            std::vector<int> list;
            for (const QString& day : field.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
                list.push_back(day.toInt());
            }
            return list;
        };
        const std::vector<int> holidays = days(row.value(3));
        std::vector<int> order = days(row.value(4));
        for (int d = 1; d <= ws.currentMonthDays(); ++d) {
            if (std::count(order.begin(), order.end(), d) == 0 &&
                std::count(holidays.begin(), holidays.end(), d) == 0) {
                order.push_back(d);
            }
        }
        for (const int d : holidays) {
            ws.gHoliday[d] = 1;
        }
        int cursor = kCursor;
        (row[0] == QStringLiteral("mixed") ? mixed : horizontal)(ws, s.ctx, cursor);

        for (std::size_t i = 0; i < order.size(); ++i) {
            EXPECT_EQ(agentIn(ws, order[i], 1, 0), (kCursor + static_cast<int>(i)) % kAgents + 1)
                << "day " << order[i];
        }
        EXPECT_EQ(cursor, (kCursor + static_cast<int>(order.size()) - 1) % kAgents + 1);
    }
}

// One position a day in January 2023, which starts on a Sunday: who takes the first days,
// for a start cursor and the agents barred from some of them; and the log's two lines, which
// name the engine and the agent after the cursor.
TEST(SerialEngines, PassOverBarredAgentsUpToTheirLimit) {
    const QRegularExpression away(QStringLiteral("away (\\d+)-(\\d+) (\\d+)"));
    for (const QStringList& row : tableRows("generation/golden/tables/serialbars.tsv")) {
        SCOPED_TRACE(row[0].toStdString());
        const bool isMixed = row[1] == u"mixed";
        QTemporaryDir home;
        TestServices s;
        Workspace ws;
        makeOffice(ws, 2023, 1, row[2].toInt(), home.path());
        fillWithOldSchedule(ws);
        if (const QRegularExpressionMatch m = away.match(row[4]); m.hasMatch()) {
            for (int a = m.captured(1).toInt(); a <= m.captured(2).toInt(); ++a) {
                ws.gVacation[a][m.captured(3).toInt()] = 1;
            }
        }
        ws.gRestriction[3][0][1] = row[4] == u"restricted" ? 1 : 0;
        if (row[4] == u"no positions") {
            setTable(ws, 0, 1);
        }
        int cursor = row[3].toInt();
        (isMixed ? mixed : horizontal)(ws, s.ctx, cursor);
        QStringList firstDays;
        for (qsizetype d = 1; d <= row[5].count(u',') + 1; ++d) {
            firstDays.append(QString::number(agentIn(ws, static_cast<int>(d), 1, 0)));
        }
        EXPECT_EQ(firstDays.join(u','), row[5]);
        const int base = row[6].toInt();
        EXPECT_EQ(logText(ws),
                  std::string("[09:14:03]     Generating a schedule using the Serial ") +
                      (isMixed ? "Mixed" : "Horizontal") +
                      " engine\r\n[09:14:03]     Base agent is " +
                      (ws.gAgentFirst[base] + u' ' + ws.gAgentLast[base]).toStdString() + "\r\n");
    }
}
