// The four engines on three offices over January 2027 (31 days, starting on a Friday):
//
//  W1  the example office: 12 agents, one shift of one agent on Saturday and Sunday, three
//      shifts of two agents Monday to Friday; New Year's Day and Martin Luther King Day off.
//  W2  100 agents, six shifts of four agents every day; New Year's Day off.
//  W3  1,000 agents with W2's table.
//
// Each office has vacation streaks and standing restrictions. Every run starts as the
// generate command starts it: the schedule erased, the random sequence at a fixed state (so
// every iteration does the same work), the Shuffled engine with a draw counter of 0 and the
// ratio of agents to the busiest weekday's positions, the serial engines with a cursor of 1.
// The plain SmartRandom engine of the tests, which rescans the grid for every score, runs on
// W1 and W2 as the yardstick of the shipped one.

#include "core/model/agentkeys.h"
#include "core/model/calendar.h"
#include "core/model/workspace.h"
#include "fakes.h"
#include "generation/engines.h"
#include "generation/generate.h"
#include "plainsmartrandom.h"

#include <QString>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <functional>

namespace {

constexpr std::uint32_t kSeed = 4242;

enum class Office { W1, W2, W3 };

void startMonth(Workspace& ws) {
    modInitNameTables(ws);
    ws.gCurrentYear = 2027;
    ws.gCurrentMonth = 1;
    modSetupMonth(ws);
    ws.gHoliday[1] = 1;
    ws.gHasHolidays = 1;
}

void makeExampleOffice(Workspace& ws) {
    startMonth(ws);
    ws.gHoliday[18] = 1;
    struct Name {
        const char* last;
        const char* first;
    };
    static const std::array<Name, 12> names = {{
        {"Brennan", "Patrick"},
        {"Chen", "Wei"},
        {"Delgado", "Sofia"},
        {"Fischer", "Anna"},
        {"Garcia", "Maria"},
        {"Garcia", "Roberto"},
        {"Hoffman", "Daniel"},
        {"Kowalski", "Anna"},
        {"Nakamura", "Kenji"},
        {"Okafor", "Chinedu"},
        {"Patel", "Priya"},
        {"Svensson", "Erik"},
    }};
    ws.gAgentCount = static_cast<int>(names.size());
    ws.redimAgents(ws.gAgentCount);
    for (int a = 1; a <= ws.gAgentCount; ++a) {
        ws.gAgentLast[a] = QString::fromLatin1(names[a - 1].last);
        ws.gAgentFirst[a] = QString::fromLatin1(names[a - 1].first);
    }
    modBuildAgentKeys(ws);
    for (int w = 0; w < kWeekdays; ++w) {
        const bool weekend = w == 0 || w == 6;
        ws.gShiftCount[w] = weekend ? 1 : 3;
        for (int s = 1; s <= ws.gShiftCount[w]; ++s) {
            ws.gShiftAgents[w][s] = weekend ? 0 : 1;
        }
    }
    // Five-day streaks for four agents, three single days off, three restrictions.
    for (const auto& [agent, first] : {std::pair{2, 11}, {6, 25}, {9, 4}, {11, 20}}) {
        for (int d = first; d < first + 5; ++d) {
            ws.gVacation[agent][d] = 1;
        }
    }
    ws.gVacation[1][14] = ws.gVacation[5][8] = ws.gVacation[12][29] = 1;
    ws.gRestriction[1][1][1] = ws.gRestriction[3][0][1] = ws.gRestriction[7][5][3] = 1;
}

void makeLargeOffice(Workspace& ws, int agents) {
    startMonth(ws);
    ws.gAgentCount = agents;
    ws.redimAgents(agents);
    for (int a = 1; a <= agents; ++a) {
        ws.gAgentLast[a] = QStringLiteral("Agent%1").arg(a, 4, 10, QLatin1Char('0'));
        ws.gAgentFirst[a] = QStringLiteral("Ann");
    }
    modBuildAgentKeys(ws);
    for (int w = 0; w < kWeekdays; ++w) {
        ws.gShiftCount[w] = kMaxShift;
        for (int s = 1; s <= kMaxShift; ++s) {
            ws.gShiftAgents[w][s] = 3;
        }
    }
    // Every seventh agent takes a week off somewhere in the month; every fifth may not work
    // one shift of one weekday.
    for (int a = 7; a <= agents; a += 7) {
        const int first = 1 + (a * 11) % 24;
        for (int d = first; d < first + 7; ++d) {
            ws.gVacation[a][d] = 1;
        }
    }
    for (int a = 5; a <= agents; a += 5) {
        ws.gRestriction[a][a % kWeekdays][1 + a % kMaxShift] = 1;
    }
}

struct Bench {
    QTemporaryDir dir;
    TestServices services;
    Workspace ws;

    explicit Bench(Office office) {
        switch (office) {
            case Office::W1:
                makeExampleOffice(ws);
                break;
            case Office::W2:
                makeLargeOffice(ws, 100);
                break;
            case Office::W3:
                makeLargeOffice(ws, 1000);
                break;
        }
        ws.gHasVacations = 1;
        ws.gHasRestrictions = 1;
        ws.gLogFile = dir.filePath(QStringLiteral("Desko40.log"));
        ws.gAgentRatio = static_cast<double>(ws.gAgentCount) / busiestWeekdayPositions(ws);
    }

    // Runs the engine once per iteration from an erased schedule and the same random state.
    void measure(benchmark::State& state, const std::function<void()>& engine) {
        int positions = 0;
        for (auto _ : state) {
            state.PauseTiming();
            std::fill(ws.gSchedule.begin(), ws.gSchedule.end(), QString());
            services.ctx.random.setState(kSeed);
            state.ResumeTiming();
            engine();
            benchmark::DoNotOptimize(ws.gSchedule.data());
        }
        for (const QString& cell : ws.gSchedule) {
            positions += cell.isEmpty() ? 0 : 1;
        }
        state.counters["positions"] = positions;
    }
};

void BM_SmartRandom(benchmark::State& state, Office office) {
    Bench b(office);
    b.measure(state, [&] { modGenerateSmartRandom(b.ws, b.services.ctx); });
}

void BM_PlainSmartRandom(benchmark::State& state, Office office) {
    Bench b(office);
    b.measure(state, [&] { plain::generateSmartRandom(b.ws, b.services.ctx); });
}

void BM_Shuffled(benchmark::State& state, Office office) {
    Bench b(office);
    b.measure(state, [&] {
        int drawCounter = 0;
        modGenerateShuffled(b.ws, b.services.ctx, drawCounter);
    });
}

void BM_SerialHorizontal(benchmark::State& state, Office office) {
    Bench b(office);
    b.measure(state, [&] {
        int cursor = 1;
        modGenerateSerialHorizontal(b.ws, b.services.ctx, cursor);
    });
}

void BM_SerialMixed(benchmark::State& state, Office office) {
    Bench b(office);
    b.measure(state, [&] {
        int cursor = 1;
        modGenerateSerialMixed(b.ws, b.services.ctx, cursor);
    });
}

}  // namespace

#define DESKO_ENGINE_BENCH(engine, office)            \
    BENCHMARK_CAPTURE(engine, office, Office::office) \
        ->Unit(benchmark::kMillisecond)               \
        ->Repetitions(10)                             \
        ->ReportAggregatesOnly(true)

DESKO_ENGINE_BENCH(BM_SmartRandom, W1);
DESKO_ENGINE_BENCH(BM_SmartRandom, W2);
DESKO_ENGINE_BENCH(BM_SmartRandom, W3);
DESKO_ENGINE_BENCH(BM_PlainSmartRandom, W1);
DESKO_ENGINE_BENCH(BM_PlainSmartRandom, W2);
DESKO_ENGINE_BENCH(BM_Shuffled, W1);
DESKO_ENGINE_BENCH(BM_Shuffled, W2);
DESKO_ENGINE_BENCH(BM_Shuffled, W3);
DESKO_ENGINE_BENCH(BM_SerialHorizontal, W1);
DESKO_ENGINE_BENCH(BM_SerialHorizontal, W2);
DESKO_ENGINE_BENCH(BM_SerialHorizontal, W3);
DESKO_ENGINE_BENCH(BM_SerialMixed, W1);
DESKO_ENGINE_BENCH(BM_SerialMixed, W2);
DESKO_ENGINE_BENCH(BM_SerialMixed, W3);

BENCHMARK_MAIN();
