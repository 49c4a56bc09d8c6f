#include "core/model/workspace.h"
#include "fakes.h"
#include "generation/engines.h"
#include "offices.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>

namespace {

// The number of draws between two states of the random sequence.
int drawsBetween(std::uint32_t from, std::uint32_t to) {
    RandomSequence random(from);
    int draws = 0;
    while (random.state() != to && draws < 1000000) {
        random.next();
        ++draws;
    }
    return draws;
}

}  // namespace

// When nobody can be placed the position still gets the last agent drawn, after 10000
// draws for it, and every other cell is erased. The ratio switches the same-day rule on at
// 1 and the adjacent-day rule at 2, which one agent shows at once. The count the caller
// passes goes on over the month: its 1001st draw puts every agent back in the deck and is
// thrown away. A month without positions draws nothing and is only erased.
TEST(ShuffledEngine, FillsEveryPositionEvenWhenNobodyFits) {
    struct Case {
        const char* what;
        int agents;
        int agentsPerShift;
        double ratio;
        int everybodyAway;  // a day, or 0
        bool positions;
        int minDraws;
        int maxDraws;
        int endCount;  // -1: left open
    };
    // March 2023 has 31 days, the 12th a holiday here; each run starts from a count of 990.
    const Case cases[] = {
        // Each position of day 5 is given up at its 10001st draw, or at the next when that
        // one reshuffles the deck; the other 58 positions take a few draws each.
        {"everybody away on a day", 10, 2, 5.0, 5, true, 2 * 10001 + 58, 2 * 10002 + 1000, -1},
        // One agent draws itself every time, so the draws are fixed. Each day's second
        // position is given up, and the agent stays out of the deck until the count puts it
        // back, so the next day's first position waits.
        {"one agent, two positions a day", 1, 2, 1.0, 0, true, 300303, 300303, 993},
        {"one agent, no same-day rule", 1, 2, 0.5, 0, true, 61, 61, 50},
        // Every day but the 1st and the 13th, after the holiday, is given up.
        {"one agent, adjacent days", 1, 1, 2.0, 0, true, 280130, 280130, 840},
        {"one agent, no adjacent-day rule", 1, 1, 1.5, 0, true, 31, 31, 20},
        {"no positions", 5, 1, 1.0, 0, false, 0, 0, 990},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        QTemporaryDir home;
        TestServices s;
        Workspace ws;
        makeOffice(ws, 2023, 3, c.agents, home.path());
        setTable(ws, c.positions ? 1 : 0, c.agentsPerShift);
        ws.gAgentRatio = c.ratio;
        ws.gHoliday[12] = 1;
        for (int a = 1; a <= c.agents && c.everybodyAway != 0; ++a) {
            ws.gVacation[a][c.everybodyAway] = 1;
        }
        fillWithOldSchedule(ws);
        s.ctx.random.setState(4242);
        int drawCounter = 990;
        modGenerateShuffled(ws, s.ctx, drawCounter);

        // Every position holds a key, and every other cell is erased.
        int filled = 0;
        for (const QString& cell : ws.gSchedule) {
            filled += cell.isEmpty() ? 0 : 1;
            EXPECT_TRUE(cell.isEmpty() ||
                        std::count(ws.gAgentKey.begin(), ws.gAgentKey.end(), cell))
                << cell.toStdString();
        }
        EXPECT_EQ(filled, c.positions ? 30 * c.agentsPerShift : 0);
        const int draws = drawsBetween(4242, s.ctx.random.state());
        EXPECT_GE(draws, c.minDraws);
        EXPECT_LE(draws, c.maxDraws);
        EXPECT_TRUE(c.endCount < 0 || drawCounter == c.endCount) << drawCounter;
        EXPECT_EQ(logText(ws),
                  "[09:14:03]     Generating a schedule using the Shuffled engine\r\n");
    }
}
