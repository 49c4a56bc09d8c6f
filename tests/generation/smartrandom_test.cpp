#include "generation/engines.h"
#include "generation/positionwalk.h"

#include "core/model/workspace.h"
#include "fakes.h"
#include "offices.h"
#include "tables.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <set>
#include <vector>

namespace {

constexpr std::uint32_t kState = 327680;

bool isWeekend(int weekday) {
    return weekday == 0 || weekday == 6;
}

// January 2027, starting on a Friday, with shifts of the same number of agents, so many on
// Saturdays and Sundays and so many on the other days.
void makeJanuary(Workspace& ws, int agents, int weekendShifts, int weekdayShifts,
                 int agentsPerShift = 1) {
    makeOffice(ws, 2027, 1, agents);
    setTable(ws, weekdayShifts, agentsPerShift, weekendShifts);
}

// Calls visit(day, shift, slot) for every position of the month, in the order of the sweep.
void forEachPosition(const Workspace& ws, const std::function<void(int, int, int)>& visit) {
    for (int d = 1; d <= ws.currentMonthDays(); ++d) {
        if (ws.gHoliday[d] != 1) {
            forEachPosition(ws, d, ShiftOrder::Upward, [&](int s, int k) { visit(d, s, k); });
        }
    }
}

// Weekend positions of each agent.
std::vector<int> weekendTallies(const Workspace& ws) {
    std::vector<int> tallies(static_cast<std::size_t>(ws.gAgentCount) + 1, 0);
    forEachPosition(ws, [&](int d, int s, int k) {
        if (isWeekend(ws.weekdayOf(d))) {
            ++tallies[agentIn(ws, d, s, k)];
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

// Months the engine cannot fill as it would like still end with every position filled, no
// agent twice in a day while another is left, and the first agent selected. Without weekend
// positions to compare the repair ends before its first exchange.
TEST(SmartRandom, FillsEveryPositionWhateverTheConstraints) {
    for (const QStringList& row : tableRows("generation/golden/tables/smartrandomfills.tsv")) {
        SCOPED_TRACE(row[0].toStdString());
        const int agents = row[1].toInt();
        Workspace ws;
        makeJanuary(ws, agents, row[2].toInt(), row[3].toInt(), row[4].toInt());
        for (int d = 1; d <= 31; ++d) {
            ws.gHoliday[d] = row[5].toInt();
            for (int a = 1; a <= agents && d == row[6].toInt(); ++a) {
                ws.gVacation[a][d] = 1;
            }
        }
        ws.gSelectedAgent = 3;
        int rounds = 0;
        SmartRandomProgress progress;
        progress.exchanged = [&](int) { ++rounds; };
        generate(ws, progress);

        std::vector<std::set<int>> agentsOf(32);
        std::vector<int> positionsOf(32, 0);
        forEachPosition(ws, [&](int d, int s, int k) {
            EXPECT_NE(agentIn(ws, d, s, k), 0) << "day " << d;
            agentsOf[d].insert(agentIn(ws, d, s, k));
            ++positionsOf[d];
        });
        for (int d = 1; d <= 31; ++d) {
            EXPECT_EQ(static_cast<int>(agentsOf[d].size()),
                      std::min(positionsOf[d], ws.gAgentCount))
                << "day " << d;
        }
        EXPECT_EQ(rounds > 0, row[7] == u"1");
        EXPECT_EQ(ws.gSelectedAgent, 0);
    }
}

// The window follows the run: each position reports the agent written there and the share
// done, up to the whole; the repair is announced once, after the last position, and reports
// each round. Here every exchange would break a vacation, so the pass goes through all its
// rounds, each finding nothing, and leaves the month as the sweep made it, with no message.
// A round without an exchange writes the last one recorded once more; before any, that is
// the unused cell (0, 0, 0), which gets the empty text of agent 0. The log gets one line.
TEST(SmartRandom, ReportsTheRunAndGivesUpTheRepairWhenNoExchangeIsAllowed) {
    const QTemporaryDir dir;
    Workspace ws;
    makeJanuary(ws, 2, 1, 2);
    ws.gShiftCount[0] = 0;  // Saturdays only
    for (int d = 1; d <= 31; ++d) {
        ws.gVacation[2][d] = isWeekend(ws.weekdayOf(d)) ? 0 : 1;
    }
    ws.gHoliday[18] = 1;
    ws.schedule(0, 0, 0) = QStringLiteral("stray");
    ws.gLogFile = dir.filePath(QStringLiteral("Desko40.log"));
    std::vector<std::pair<int, double>> placed;
    std::vector<QString> swept;
    std::vector<int> rounds;
    SmartRandomProgress progress;
    progress.placed = [&](int agent, double done) { placed.emplace_back(agent, done); };
    progress.repairing = [&] {
        EXPECT_TRUE(swept.empty());
        swept = ws.gSchedule;
    };
    progress.exchanged = [&](int agent) { rounds.push_back(agent); };
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
    // Agent 2 took every Saturday, agent 1 every other day: five weekend positions apart.
    EXPECT_EQ(weekendTallies(ws), (std::vector<int>{0, 0, 5}));
    EXPECT_EQ(rounds, std::vector<int>(40, 2));
    swept[scheduleIndex(0, 0, 0)].clear();
    EXPECT_EQ(ws.gSchedule, swept);
    EXPECT_EQ(logText(ws),
              "[09:14:03]     Generating a schedule using the SmartRandom schedule\r\n");
}

}  // namespace
