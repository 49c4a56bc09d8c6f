#include "fakes.h"
#include "generation/engines.h"
#include "handmadeoffice.h"
#include "persistence/log.h"
#include "randomoffice.h"
#include "shell/session.h"
#include "workspace/workspace.h"

#include <QFile>
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

void fillWithOldSchedule(Workspace& ws) {
    for (std::size_t i = 0; i < ws.gSchedule.size(); ++i) {
        ws.gSchedule[i] = QStringLiteral("old %1").arg(i);
    }
}

// Whether a cell is one of the month's positions.
bool isPosition(const Workspace& ws, int day, int shift, int slot) {
    if (day < 1 || day > ws.currentMonthDays() || ws.gHoliday[day] == 1) {
        return false;
    }
    const int w = (day + 6 + ws.gFirstWeekday) % 7;
    return shift >= 1 && shift <= ws.gShiftCount[w] && slot <= ws.gShiftAgents[w][shift];
}

// How a deal turned out, against the rules it was asked to keep.
struct Outcome {
    bool barredPlaced = false;  // someone on vacation or restricted got a position
    bool twiceADay = false;
    bool consecutiveDays = false;
    bool emptyPosition = false;
    bool oldCellLeft = false;
};

Outcome judge(const Workspace& ws) {
    Outcome out;
    std::vector<std::vector<int>> onDay(kScheduleDays);
    for (int d = 0; d < kScheduleDays; ++d) {
        for (int s = 0; s < kShiftSlots; ++s) {
            for (int k = 0; k <= kMaxSlot; ++k) {
                if (!isPosition(ws, d, s, k)) {
                    out.oldCellLeft = out.oldCellLeft || !ws.schedule(d, s, k).isEmpty();
                    continue;
                }
                const int a = handmade::agentIn(ws, d, s, k);
                const int w = (d + 6 + ws.gFirstWeekday) % 7;
                out.emptyPosition = out.emptyPosition || a == 0;
                out.barredPlaced =
                    out.barredPlaced || ws.gVacation[a][d] == 1 || ws.gRestriction[a][w][s] == 1;
                out.twiceADay = out.twiceADay || std::count(onDay[d].begin(), onDay[d].end(), a);
                onDay[d].push_back(a);
            }
        }
        if (d > 0) {
            for (const int a : onDay[d]) {
                out.consecutiveDays =
                    out.consecutiveDays || std::count(onDay[d - 1].begin(), onDay[d - 1].end(), a);
            }
        }
    }
    return out;
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
        fillWithOldSchedule(office);
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

// What the deal promises when there are agents enough, and what it leaves open when the
// ratio turns a rule off; over many random states, as it is a matter of chance whether an
// allowed repeat comes up.
TEST(ShuffledEngine, KeepsTheRulesItsRatioAsksFor) {
    struct Case {
        const char* what;
        int agents;
        int shifts;
        int agentsPerShift;
        double ratio;
        bool barred;  // vacations and restrictions for some
        bool twiceAllowed;
        bool consecutiveAllowed;
    };
    const Case cases[] = {
        {"plenty of agents", 24, 2, 2, 6.0, true, false, false},
        {"twice as many agents as a day needs", 8, 2, 2, 2.0, false, false, false},
        {"from 1 to 2 consecutive days are allowed", 6, 1, 4, 1.5, false, false, true},
        {"below 1 a day can have an agent twice", 3, 1, 4, 0.75, false, true, true},
    };
    QTemporaryDir home;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        Outcome seen;
        for (std::uint32_t state = 1; state <= 30; ++state) {
            TestServices s;
            s.ctx.random.setState(state * 99991U);
            Workspace ws;
            handmade::makeOffice(ws, 2023, 3, c.agents);
            handmade::loseLogLines(ws, home);
            handmade::setTable(ws, c.shifts, c.agentsPerShift);
            ws.gAgentRatio = c.ratio;
            ws.gHoliday[12] = 1;
            if (c.barred) {
                for (int a = 1; a <= c.agents; ++a) {
                    for (int d = a % 5 + 1; d <= 31; d += 5) {
                        ws.gVacation[a][d] = 1;
                    }
                    ws.gRestriction[a][a % kWeekdays][1 + a % 2] = 1;
                }
            }
            fillWithOldSchedule(ws);
            int drawCounter = 0;
            modGenerateShuffled(ws, s.ctx, drawCounter);
            const Outcome out = judge(ws);
            EXPECT_FALSE(out.barredPlaced);
            EXPECT_FALSE(out.emptyPosition);
            EXPECT_FALSE(out.oldCellLeft);
            seen.twiceADay = seen.twiceADay || out.twiceADay;
            seen.consecutiveDays = seen.consecutiveDays || out.consecutiveDays;
        }
        EXPECT_EQ(seen.twiceADay, c.twiceAllowed);
        EXPECT_EQ(seen.consecutiveDays, c.consecutiveAllowed);
    }
}

// When nobody can be placed the position still gets the last agent drawn, after 10000
// draws for it; a month without positions draws nothing and is only erased.
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
    };
    // March 2023 has 31 days, one of them a holiday here.
    const Case cases[] = {
        // Each position of day 5 is given up at its 10001st draw, or at the next when that
        // one reshuffles the deck; the other 58 positions take a few draws each.
        {"everybody away on a day", 10, 2, 5.0, 5, true, 2 * 10001 + 58, 2 * 10002 + 1000},
        // Each day's second position is given up, and the agent it goes to stays out of the
        // deck until the draw counter reshuffles it, so the next day's first position may wait.
        {"one agent, two positions a day", 1, 2, 1.0, 0, true, 30 * 10002, 30 * 11004},
        {"one agent, no same-day rule", 1, 2, 0.5, 0, true, 60, 60},
        {"no positions", 5, 1, 1.0, 0, false, 0, 0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        QTemporaryDir home;
        TestServices s;
        Workspace ws;
        modInitSession(ws, home.path());
        handmade::makeOffice(ws, 2023, 3, c.agents);
        handmade::setTable(ws, c.positions ? 1 : 0, c.agentsPerShift);
        ws.gAgentRatio = c.ratio;
        ws.gHoliday[12] = 1;
        if (c.everybodyAway != 0) {
            for (int a = 1; a <= c.agents; ++a) {
                ws.gVacation[a][c.everybodyAway] = 1;
            }
        }
        fillWithOldSchedule(ws);
        s.ctx.random.setState(4242);
        int drawCounter = 17;
        modGenerateShuffled(ws, s.ctx, drawCounter);

        const Outcome out = judge(ws);
        EXPECT_FALSE(out.emptyPosition);
        EXPECT_FALSE(out.oldCellLeft);
        const int draws = drawsBetween(4242, s.ctx.random.state());
        EXPECT_GE(draws, c.minDraws);
        EXPECT_LE(draws, c.maxDraws);
        QFile log(ws.gLogFile);
        ASSERT_TRUE(log.open(QIODevice::ReadOnly));
        EXPECT_EQ(log.readAll().toStdString(),
                  "[09:14:03]     Generating a schedule using the Shuffled engine\r\n");
    }
}
