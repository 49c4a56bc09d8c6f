#include "generation/engines.h"

#include "fakes.h"
#include "plainsmartrandom.h"
#include "randomoffice.h"
#include "shell/agentkeys.h"
#include "workspace/workspace.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <random>
#include <vector>

namespace {

constexpr std::uint32_t kState = 327680;

using plain::isWeekend;
using plain::weekdayOf;

// January 2027, starting on a Friday, with agents "A1" … "An" and one table for weekends and
// one for the other days, each of shifts of the same number of agents.
void makeOffice(Workspace& ws, int agents, int weekendShifts, int weekdayShifts,
                int agentsPerShift = 1) {
    openMonth(ws, 2027, 1);
    ws.gAgentCount = agents;
    ws.redimAgents(agents);
    for (int a = 1; a <= agents; ++a) {
        ws.gAgentLast[a] = QStringLiteral("A%1").arg(a);
        ws.gAgentFirst[a] = QStringLiteral("Ann");
    }
    modBuildAgentKeys(ws);
    for (int w = 0; w < kWeekdays; ++w) {
        ws.gShiftCount[w] = isWeekend(w) ? weekendShifts : weekdayShifts;
        for (int s = 1; s <= kMaxShift; ++s) {
            ws.gShiftAgents[w][s] = agentsPerShift - 1;
        }
    }
}

// Calls visit(day, shift, slot) for every position of the month, in the order of the sweep.
void forEachPosition(const Workspace& ws, const std::function<void(int, int, int)>& visit) {
    for (int d = 1; d <= ws.currentMonthDays(); ++d) {
        const int w = weekdayOf(ws, d);
        for (int s = 1; s <= ws.gShiftCount[w] && ws.gHoliday[d] != 1; ++s) {
            for (int k = 0; k <= ws.gShiftAgents[w][s]; ++k) {
                visit(d, s, k);
            }
        }
    }
}

// Weekend positions of each agent.
std::vector<int> weekendTallies(const Workspace& ws) {
    std::vector<int> tallies(static_cast<std::size_t>(ws.gAgentCount) + 1, 0);
    forEachPosition(ws, [&](int d, int s, int k) {
        for (int a = 1; a <= ws.gAgentCount; ++a) {
            tallies[a] += isWeekend(weekdayOf(ws, d)) && ws.schedule(d, s, k) == ws.gAgentKey[a];
        }
    });
    return tallies;
}

// Runs the engine from the fixed state, logging into a scratch folder unless a log is set.
void generate(Workspace& ws, const SmartRandomProgress& progress = {}) {
    static const QTemporaryDir dir;
    if (ws.gLogFile.isEmpty()) {
        ws.gLogFile = dir.filePath(QStringLiteral("Desko40.log"));
    }
    TestServices s;
    s.ctx.random.setState(kState);
    modGenerateSmartRandom(ws, s.ctx, progress);
}

int spread(std::vector<int> tallies) {
    tallies.erase(tallies.begin());
    const auto [low, high] = std::minmax_element(tallies.begin(), tallies.end());
    return *high - *low;
}

// The shipped engine and the plain one, which rescans the grid for every score, leave the
// same grid, cell for cell, and the random sequence in the same state, over offices of every
// shape. Some offices are bent further: an agent whose key is the empty text holds every
// empty cell (day 0 and the repair's unused cell included), and a grid that was not erased
// holds keys and stray texts everywhere, also in the days and shifts outside the month.
TEST(SmartRandom, MatchesThePlainEngine) {
    const QTemporaryDir dir;
    for (std::uint32_t seed = 1; seed <= 400; ++seed) {
        Workspace fast;
        makeRandomOffice(fast, seed);
        fast.gLogFile = dir.filePath(QStringLiteral("Desko40.log"));
        std::mt19937 rng(seed);
        const auto agents = static_cast<unsigned>(fast.gAgentCount);
        if (seed % 4 == 1) {
            fast.gAgentKey[1 + rng() % agents].clear();
        }
        if (seed % 4 == 2) {
            for (QString& cell : fast.gSchedule) {
                const unsigned pick = rng() % (agents + 2);
                cell = pick <= agents ? fast.gAgentKey[pick] : QStringLiteral("Leave empty");
            }
        }
        Workspace slow = fast;
        TestServices s1;
        TestServices s2;
        const std::uint32_t state = seed * 2654435761U % RandomSequence::kStates;
        s1.ctx.random.setState(state);
        s2.ctx.random.setState(state);
        modGenerateSmartRandom(fast, s1.ctx);
        plain::generateSmartRandom(slow, s2.ctx);
        ASSERT_EQ(fast.gSchedule, slow.gSchedule) << "seed " << seed;
        ASSERT_EQ(s1.ctx.random.state(), s2.ctx.random.state()) << "seed " << seed;
    }
}

// A vacation or a restriction is broken only at a position that nobody is free to take.
TEST(SmartRandom, BreaksNoVacationOrRestrictionWhileAnyoneIsFree) {
    for (std::uint32_t seed = 1; seed <= 60; ++seed) {
        Workspace ws;
        makeRandomOffice(ws, seed);
        generate(ws);
        forEachPosition(ws, [&](int d, int shift, int k) {
            const int w = weekdayOf(ws, d);
            bool holderFree = false;
            bool anyoneFree = false;
            for (int a = 1; a <= ws.gAgentCount; ++a) {
                const bool free = ws.gVacation[a][d] == 0 && ws.gRestriction[a][w][shift] == 0;
                anyoneFree = anyoneFree || free;
                holderFree = holderFree || (free && ws.schedule(d, shift, k) == ws.gAgentKey[a]);
            }
            ASSERT_TRUE(holderFree || !anyoneFree)
                << "seed " << seed << ", day " << d << ", shift " << shift << ", slot " << k;
        });
    }
}

// Over small offices of many shapes: where the sweep leaves weekend tallies more than one
// apart, the repair brings them within one; where it leaves them within one, the repair
// changes nothing at all.
TEST(SmartRandom, RepairEvensOutWeekendsAndLeavesEvenOnesAlone) {
    int evened = 0;
    int leftAlone = 0;
    for (int agents = 3; agents <= 10; ++agents) {
        for (int weekendShifts = 1; weekendShifts <= 2; ++weekendShifts) {
            for (int weekdayShifts = 1; weekdayShifts <= 3; ++weekdayShifts) {
                Workspace ws;
                makeOffice(ws, agents, weekendShifts, weekdayShifts);
                std::vector<QString> swept;
                SmartRandomProgress progress;
                progress.repairing = [&] { swept = ws.gSchedule; };
                generate(ws, progress);

                Workspace before = ws;
                before.gSchedule = swept;
                const int spreadBefore = spread(weekendTallies(before));
                if (spreadBefore <= 1) {
                    ++leftAlone;
                    EXPECT_EQ(ws.gSchedule, swept) << agents << " agents";
                } else {
                    ++evened;
                    EXPECT_LE(spread(weekendTallies(ws)), 1) << agents << " agents";
                }
            }
        }
    }
    EXPECT_GT(evened, 0);
    EXPECT_GT(leftAlone, 0);
}

// Where every exchange would break a vacation the pass goes through all its rounds, each
// finding nothing, and leaves the month as the sweep made it, with no message. A round
// without an exchange writes the last one recorded once more; before any, that is the
// unused cell (0, 0, 0), which gets the empty text of agent 0.
TEST(SmartRandom, RepairGivesUpWhenNoExchangeIsAllowed) {
    Workspace ws;
    makeOffice(ws, 2, 1, 1);
    ws.gShiftCount[0] = 0;  // Saturdays only
    for (int d = 1; d <= 31; ++d) {
        ws.gVacation[2][d] = isWeekend(weekdayOf(ws, d)) ? 0 : 1;
    }
    ws.schedule(0, 0, 0) = QStringLiteral("stray");
    std::vector<QString> swept;
    std::vector<int> rounds;
    SmartRandomProgress progress;
    progress.repairing = [&] { swept = ws.gSchedule; };
    progress.exchanged = [&](int agent) { rounds.push_back(agent); };
    generate(ws, progress);

    // Agent 2 took every Saturday, agent 1 every other day: five weekend positions apart.
    EXPECT_EQ(weekendTallies(ws), (std::vector<int>{0, 0, 5}));
    EXPECT_EQ(rounds, std::vector<int>(40, 2));
    swept[scheduleIndex(0, 0, 0)].clear();
    EXPECT_EQ(ws.gSchedule, swept);
}

// Months the engine cannot fill as it would like still end with every position filled,
// without a crash, and with the first agent selected. Without weekend positions to compare
// the repair ends before its first exchange.
TEST(SmartRandom, FillsEveryPositionWhateverTheConstraints) {
    const auto allFilled = [](const Workspace& ws) {
        forEachPosition(ws, [&](int d, int s, int k) {
            EXPECT_FALSE(ws.schedule(d, s, k).isEmpty()) << "day " << d;
        });
    };
    const struct {
        const char* name;
        std::function<void(Workspace&)> setUp;
        std::function<void(const Workspace&)> check;
        bool repairs;
    } cases[] = {
        {"every day a holiday",
         [](Workspace& ws) {
             makeOffice(ws, 5, 1, 2);
             std::fill(ws.gHoliday.begin() + 1, ws.gHoliday.begin() + 32, 1);
         },
         [](const Workspace& ws) {
             EXPECT_TRUE(std::all_of(ws.gSchedule.begin(), ws.gSchedule.end(),
                                     [](const QString& cell) { return cell.isEmpty(); }));
         },
         false},
        {"one agent, two shifts of two", [](Workspace& ws) { makeOffice(ws, 1, 2, 2, 2); },
         [](const Workspace& ws) {
             forEachPosition(ws, [&](int d, int s, int k) {
                 EXPECT_EQ(ws.schedule(d, s, k), ws.gAgentKey[1]);
             });
         },
         false},
        {"everybody away on the 6th",
         [](Workspace& ws) {
             makeOffice(ws, 10, 1, 3, 2);
             for (int a = 1; a <= 10; ++a) {
                 ws.gVacation[a][6] = 1;
             }
         },
         [&](const Workspace& ws) {
             allFilled(ws);
             // The other rules still hold that day: six positions, six different agents.
             QStringList day;
             for (int s = 1; s <= 3; ++s) {
                 day << ws.schedule(6, s, 0) << ws.schedule(6, s, 1);
             }
             day.removeDuplicates();
             EXPECT_EQ(day.size(), 6);
         },
         true},
        {"no weekend shifts", [](Workspace& ws) { makeOffice(ws, 4, 0, 2); }, allFilled, false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        Workspace ws;
        c.setUp(ws);
        ws.gSelectedAgent = 3;
        int rounds = 0;
        SmartRandomProgress progress;
        progress.exchanged = [&](int) { ++rounds; };
        generate(ws, progress);
        c.check(ws);
        EXPECT_EQ(rounds > 0, c.repairs);
        EXPECT_EQ(ws.gSelectedAgent, 0);
    }
}

// The window follows the run: each position reports the agent written there and the share
// done, up to the whole; the repair is announced once, after the last position; the log
// gets its one line.
TEST(SmartRandom, ReportsEveryPositionAndLogsTheRun) {
    const QTemporaryDir dir;
    Workspace ws;
    makeOffice(ws, 6, 1, 3, 2);
    ws.gHoliday[18] = 1;
    ws.gLogFile = dir.filePath(QStringLiteral("Desko40.log"));
    std::vector<std::pair<int, double>> placed;
    std::vector<QString> swept;
    SmartRandomProgress progress;
    progress.placed = [&](int agent, double done) { placed.emplace_back(agent, done); };
    progress.repairing = [&] {
        EXPECT_TRUE(swept.empty());
        swept = ws.gSchedule;
    };
    generate(ws, progress);

    std::size_t i = 0;
    double before = 0;
    forEachPosition(ws, [&](int d, int shift, int k) {
        ASSERT_LT(i, placed.size());
        const auto [agent, done] = placed[i++];
        EXPECT_EQ(swept[scheduleIndex(d, shift, k)], ws.gAgentKey[agent]);
        EXPECT_GT(done, before);
        before = done;
    });
    EXPECT_EQ(i, placed.size());
    EXPECT_EQ(before, 1.0);

    QFile log(ws.gLogFile);
    ASSERT_TRUE(log.open(QIODevice::ReadOnly));
    EXPECT_EQ(log.readAll(),
              "[09:14:03]     Generating a schedule using the SmartRandom schedule\r\n");
}

}  // namespace
