#include "core/model/workspace.h"
#include "core/services/log.h"
#include "fakes.h"
#include "generation/engines.h"
#include "handmadeoffice.h"
#include "randomoffice.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

// The deal written out plainly as its rules read, rescans and all, with nothing taken
// from the engine, so that the engine can be held to it on many offices.
void plainShuffled(Workspace& ws, Context& ctx, int& drawCounter) {
    std::vector<int> agentPick(static_cast<std::size_t>(ws.gAgentCount) + 1);
    modStatus(ws, ctx, QStringLiteral("Generating a schedule using the Shuffled engine"));
    for (QString& cell : ws.gSchedule) {
        cell = QString();
    }
    int dealt = 0;
    for (int d = 1; d <= ws.gMonthDays[ws.gCurrentMonth]; ++d) {
        if (ws.gHoliday[d] == 1) {
            continue;
        }
        const int w = (d + 6 + ws.gFirstWeekday) % 7;
        for (int s = 1; s <= ws.gShiftCount[w]; ++s) {
            for (int k = 0; k <= ws.gShiftAgents[w][s]; ++k) {
                int tries = 0;
                int a = 0;
            draw:
                a = static_cast<int>(
                    std::floor(static_cast<double>(ctx.random.next()) * ws.gAgentCount + 1));
                drawCounter = drawCounter + 1;
                tries = tries + 1;
                if (drawCounter > 1000) {
                    agentPick.assign(static_cast<std::size_t>(ws.gAgentCount) + 1, 0);
                    drawCounter = 0;
                    goto draw;
                }
                if (tries > 10000) {
                    goto place;
                }
                if (agentPick[a] == 1 || ws.gVacation[a][d] == 1 || ws.gRestriction[a][w][s] == 1) {
                    goto draw;
                }
                if (ws.gAgentRatio >= 1) {
                    for (int s2 = 1; s2 <= ws.gShiftCount[w]; ++s2) {
                        for (int k2 = 0; k2 <= ws.gShiftAgents[w][s2]; ++k2) {
                            if (ws.schedule(d, s2, k2) == ws.gAgentKey[a]) {
                                goto draw;
                            }
                        }
                    }
                }
                if (ws.gAgentRatio >= 2) {
                    const int p = d - 1;
                    const int wp = (p + ws.gFirstWeekday + 6) % 7;
                    for (int s2 = 1; s2 <= ws.gShiftCount[wp]; ++s2) {
                        for (int k2 = 0; k2 <= ws.gShiftAgents[wp][s2]; ++k2) {
                            if (ws.schedule(p, s2, k2) == ws.gAgentKey[a]) {
                                goto draw;
                            }
                        }
                    }
                }
                dealt = dealt + 1;
            place:
                agentPick[a] = 1;
                ws.schedule(d, s, k) = ws.gAgentKey[a];
                if (dealt == ws.gAgentCount) {
                    agentPick.assign(static_cast<std::size_t>(ws.gAgentCount) + 1, 0);
                    dealt = 0;
                }
            }
        }
    }
}

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

TEST(ShuffledEngine, FollowsThePlainDealOnRandomOffices) {
    QTemporaryDir home;
    TestServices shippedRun;
    TestServices plainRun;
    for (std::uint32_t seed = 1; seed <= 400; ++seed) {
        SCOPED_TRACE(seed);
        Workspace office;
        makeRandomOffice(office, seed);
        handmade::fillWithOldSchedule(office);
        handmade::loseLogLines(office, home);
        const std::uint32_t state = (seed * 2654435761U) % RandomSequence::kStates;
        // The caller's count: 0 from the generate command, anything from the review form.
        const int startCount = seed % 2 == 0 ? 0 : static_cast<int>(seed * 37 % 1100);
        Workspace shipped = office;
        Workspace plain = office;
        int shippedCount = startCount;
        int plainCount = startCount;
        shippedRun.ctx.random.setState(state);
        plainRun.ctx.random.setState(state);
        modGenerateShuffled(shipped, shippedRun.ctx, shippedCount);
        plainShuffled(plain, plainRun.ctx, plainCount);
        ASSERT_EQ(shipped.gSchedule, plain.gSchedule) << "draw count " << startCount;
        ASSERT_EQ(shippedCount, plainCount);
        ASSERT_EQ(shippedRun.ctx.random.state(), plainRun.ctx.random.state());
    }
}

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
        handmade::makeOffice(ws, 2023, 3, c.agents, home.path());
        handmade::setTable(ws, c.positions ? 1 : 0, c.agentsPerShift);
        ws.gAgentRatio = c.ratio;
        ws.gHoliday[12] = 1;
        for (int a = 1; a <= c.agents && c.everybodyAway != 0; ++a) {
            ws.gVacation[a][c.everybodyAway] = 1;
        }
        handmade::fillWithOldSchedule(ws);
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
        EXPECT_EQ(handmade::logText(ws),
                  "[09:14:03]     Generating a schedule using the Shuffled engine\r\n");
    }
}
