#include "core/model/workspace.h"
#include "fakes.h"
#include "generation/engines.h"
#include "offices.h"
#include "tables.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
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
    struct Case {
        const char* what;
        Engine engine;
        int agents;
        int cursor;
        std::function<void(Workspace&)> setUp;
        std::vector<int> firstDays;  // 0: the cell kept what it held
        int base;                    // the agent the log names
    };
    const auto away = [](int from, int to, int day) {
        return [=](Workspace& ws) {
            for (int a = from; a <= to; ++a) {
                ws.gVacation[a][day] = 1;
            }
        };
    };
    const auto restricted = [](Workspace& ws) { ws.gRestriction[3][0][1] = 1; };
    const auto noPositions = [](Workspace& ws) { setTable(ws, 0, 1); };
    const Case cases[] = {
        {"base agent away on the 1st", horizontal, 5, 0, away(1, 1, 1), {2, 3, 4, 5, 1}, 1},
        {"agent 3 restricted on Sundays", horizontal, 5, 2, restricted, {4, 5, 1, 2, 3}, 3},
        {"the cursor at the end of the list", horizontal, 5, 5, {}, {1, 2, 3}, 1},
        // The cursor goes round the list of seven 21 times and more: 151 places from agent
        // 2, it stops on agent 6, who is away too.
        {"everybody away: 151 tries", horizontal, 7, 0, away(1, 7, 3), {1, 2, 6, 7, 1}, 1},
        // 151 agents away: the limit gives day 1 to agent 151 while agent 152 is free.
        {"the limit before a free agent", horizontal, 200, 0, away(1, 151, 1), {151, 152}, 1},
        {"no positions: only the log", mixed, 5, 2, noPositions, {0, 0}, 3},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        QTemporaryDir home;
        TestServices s;
        Workspace ws;
        makeOffice(ws, 2023, 1, c.agents, home.path());
        fillWithOldSchedule(ws);
        if (c.setUp) {
            c.setUp(ws);
        }
        int cursor = c.cursor;
        c.engine(ws, s.ctx, cursor);
        std::vector<int> got;
        for (int d = 1; d <= static_cast<int>(c.firstDays.size()); ++d) {
            got.push_back(agentIn(ws, d, 1, 0));
        }
        EXPECT_EQ(got, c.firstDays);
        EXPECT_EQ(logText(ws),
                  std::string("[09:14:03]     Generating a schedule using the Serial ") +
                      (c.engine == mixed ? "Mixed" : "Horizontal") +
                      " engine\r\n[09:14:03]     Base agent is " +
                      (ws.gAgentFirst[c.base] + u' ' + ws.gAgentLast[c.base]).toStdString() +
                      "\r\n");
    }
}
