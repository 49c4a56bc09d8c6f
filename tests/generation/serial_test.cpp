#include "core/model/workspace.h"
#include "fakes.h"
#include "generation/engines.h"
#include "offices.h"

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
    struct Case {
        const char* what;
        Engine engine;
        int year;
        int month;
        std::vector<int> holidays;
        // The weekend days the engine serves first, in order; the other days follow upward.
        std::vector<int> weekendsFirst;
    };
    const Case cases[] = {
        {"horizontal goes day by day", horizontal, 2023, 1, {}, {}},
        {"horizontal leaves holidays out", horizontal, 2023, 1, {7, 10}, {}},
        {"Sunday the 1st, 31 days", mixed, 2023, 1, {}, {1, 8, 15, 22, 29, 28, 21, 14, 7}},
        {"Sunday the 1st, 29 days", mixed, 2004, 2, {}, {1, 8, 15, 22, 29, 28, 21, 14, 7}},
        {"Sunday the 1st, 28 days", mixed, 2026, 2, {}, {1, 8, 15, 22, 28, 21, 14, 7}},
        {"Monday the 1st", mixed, 2024, 1, {}, {7, 14, 21, 28, 27, 20, 13, 6}},
        {"Saturday the 1st", mixed, 2022, 1, {}, {2, 9, 16, 23, 30, 29, 22, 15, 8, 1}},
        // The cursor does not move for a weekend day that is a holiday.
        {"weekend holidays", mixed, 2023, 1, {3, 15, 21}, {1, 8, 22, 29, 28, 14, 7}},
    };
    constexpr int kAgents = 40;
    constexpr int kCursor = 5;
    QTemporaryDir home;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        TestServices s;
        Workspace ws;
        makeOffice(ws, c.year, c.month, kAgents);
        loseLogLines(ws, home);
        fillWithOldSchedule(ws);
        std::vector<int> order = c.weekendsFirst;
        for (int d = 1; d <= ws.currentMonthDays(); ++d) {
            if (std::count(order.begin(), order.end(), d) == 0 &&
                std::count(c.holidays.begin(), c.holidays.end(), d) == 0) {
                order.push_back(d);
            }
        }
        for (const int d : c.holidays) {
            ws.gHoliday[d] = 1;
        }
        int cursor = kCursor;
        c.engine(ws, s.ctx, cursor);

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

// Sundays take their shifts upward and Saturdays downward, the slots of a shift always
// upward; here only weekends have shifts.
TEST(SerialEngines, MixedWalksSaturdayShiftsDownwardAndTheirSlotsUpward) {
    QTemporaryDir home;
    TestServices s;
    Workspace ws;
    makeOffice(ws, 2023, 1, 40);
    loseLogLines(ws, home);
    setTable(ws, 0, 1);
    ws.gShiftCount[0] = 2;
    ws.gShiftAgents[0] = {0, 0, 1};
    ws.gShiftCount[6] = 3;
    ws.gShiftAgents[6] = {0, 1, 0, 2};
    int cursor = 0;
    modGenerateSerialMixed(ws, s.ctx, cursor);

    // Five Sundays of three positions take agents 1 to 15; then the last Saturday.
    const int cells[][3] = {{1, 1, 0},  {1, 2, 0},  {1, 2, 1},  {28, 3, 0}, {28, 3, 1},
                            {28, 3, 2}, {28, 2, 0}, {28, 1, 0}, {28, 1, 1}, {21, 3, 0}};
    const int agents[] = {1, 2, 3, 16, 17, 18, 19, 20, 21, 22};
    for (int i = 0; i < 10; ++i) {
        const auto [day, shift, slot] = cells[i];
        EXPECT_EQ(agentIn(ws, day, shift, slot), agents[i]) << day << "/" << shift << "/" << slot;
    }
    EXPECT_EQ(cursor, 39);  // 15 Sunday and 24 Saturday positions
}
