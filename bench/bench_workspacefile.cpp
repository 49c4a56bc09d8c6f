// Loading and saving a schedule file of a large office: 1,000 agents, each with vacation days
// and restrictions, and a busy month (weekdays six shifts of four agents, weekends three
// shifts of two) with every position filled.
//
// The key names of a section are read through one buffer of 8,192 characters, which holds
// the running numbers 1 to 1,859, and the program writes no file with more rows than that.
// The office is as large as a file can keep it: [Agents] (1,000 rows), [Vacations] and
// [Restrictions] (1,500 rows each) and [Schedule] (564 rows for January 2027) are all read
// whole.

#include "core/model/agentkeys.h"
#include "core/model/calendar.h"
#include "core/model/monthdata.h"
#include "core/model/session.h"
#include "core/model/workspace.h"
#include "fakes.h"
#include "persistence/workspacefile.h"

#include <QFileInfo>
#include <QString>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <array>
#include <memory>

namespace {

constexpr int kAgents = 1000;

// Fifty last names; with 1,000 agents each is shared by twenty, so agent keys carry a
// first-name suffix, as they do in a real office with families of common names.
const std::array<const char*, 50> kLastNames = {
    "Smith",     "Johnson",  "Williams",  "Brown",   "Jones",    "Garcia",   "Miller",   "Davis",
    "Rodriguez", "Martinez", "Hernandez", "Lopez",   "Gonzalez", "Wilson",   "Anderson", "Thomas",
    "Taylor",    "Moore",    "Jackson",   "Martin",  "Lee",      "Perez",    "Thompson", "White",
    "Harris",    "Sanchez",  "Clark",     "Ramirez", "Lewis",    "Robinson", "Walker",   "Young",
    "Allen",     "King",     "Wright",    "Scott",   "Torres",   "Nguyen",   "Hill",     "Flores",
    "Green",     "Adams",    "Nelson",    "Baker",   "Hall",     "Rivera",   "Campbell", "Mitchell",
    "Carter",    "Roberts"};

// Forty first names, several sharing their first letters (Maria, Mark, Mary, Matthew), so
// the suffixes need more than one character.
const std::array<const char*, 40> kFirstNames = {
    "James",   "Mary",      "Robert",  "Patricia", "John",    "Jennifer", "Michael", "Linda",
    "David",   "Elizabeth", "William", "Barbara",  "Richard", "Susan",    "Joseph",  "Jessica",
    "Thomas",  "Sarah",     "Charles", "Karen",    "Daniel",  "Nancy",    "Matthew", "Lisa",
    "Anthony", "Betty",     "Mark",    "Margaret", "Donald",  "Sandra",   "Steven",  "Ashley",
    "Paul",    "Kimberly",  "Andrew",  "Emily",    "Joshua",  "Donna",    "Kenneth", "Maria"};

bool isWeekend(int weekday) {
    return weekday == 0 || weekday == 6;
}

void fillAgents(Workspace& ws) {
    ws.redimAgents(kAgents);
    ws.gAgentCount = kAgents;
    for (int agent = 1; agent <= kAgents; ++agent) {
        // Agents with the same last name (same r) get distinct first names: 31 is prime to
        // 40, so the twenty values of k give twenty different first names.
        const int r = (agent - 1) % static_cast<int>(kLastNames.size());
        const int k = (agent - 1) / static_cast<int>(kLastNames.size());
        const QString last = QString::fromLatin1(kLastNames[r]);
        const QString first = QString::fromLatin1(
            kFirstNames[(7 * r + 31 * k) % static_cast<int>(kFirstNames.size())]);
        ws.gAgentLast[agent] = last;
        ws.gAgentFirst[agent] = first;
        ws.gAgentEmail[agent] =
            first.toLower() + QLatin1Char('.') + last.toLower() + QStringLiteral("@example.org");
    }
    modBuildAgentKeys(ws);
}

void fillShiftTable(Workspace& ws) {
    const std::array<const char*, kMaxShift> weekdayShifts = {"6am-9am", "9am-12pm", "12pm-3pm",
                                                              "3pm-6pm", "6pm-9pm",  "9pm-12am"};
    const std::array<const char*, 3> weekendShifts = {"8am-12pm", "12pm-4pm", "4pm-8pm"};
    for (int weekday = 0; weekday < kWeekdays; ++weekday) {
        const bool weekend = isWeekend(weekday);
        ws.gShiftCount[weekday] = weekend ? 3 : kMaxShift;
        for (int shift = 1; shift <= ws.gShiftCount[weekday]; ++shift) {
            ws.gShiftText[weekday][shift] =
                QString::fromLatin1(weekend ? weekendShifts[shift - 1] : weekdayShifts[shift - 1]);
            ws.gShiftAgents[weekday][shift] = weekend ? 1 : 3;  // highest slot: 2 or 4 agents
        }
    }
}

void fillConstraints(Workspace& ws) {
    const int days = ws.currentMonthDays();
    for (int agent = 1; agent <= kAgents; ++agent) {
        // 1 or 2 vacation days; 9 * j differs for j < 4 modulo 31, so the days are distinct.
        for (int j = 0; j < 1 + agent % 2; ++j) {
            ws.gVacation[agent][1 + (agent * 5 + j * 9) % days] = 1;
        }
        // 1 or 2 restrictions on distinct weekdays, each on a shift that day has.
        for (int j = 0; j < 1 + agent % 2; ++j) {
            const int weekday = (agent + j * 3) % kWeekdays;
            ws.gRestriction[agent][weekday][1 + (agent + j) % ws.gShiftCount[weekday]] = 1;
        }
    }
    ws.gNoted[6] = 1;
    ws.gNotedText[6] = QStringLiteral("Staff meeting at 9am");
    ws.gNoted[20] = 1;
    ws.gNotedText[20] = QStringLiteral("Quarterly inventory");
}

// Every position of the month gets an agent, taken in turn and passing over those on
// vacation that day or restricted from that shift, so no agent works twice a day.
void fillSchedule(Workspace& ws) {
    int next = 0;
    for (int day = 1; day <= ws.currentMonthDays(); ++day) {
        const int weekday = (day + 6 + ws.gFirstWeekday) % kWeekdays;
        for (int shift = 1; shift <= ws.gShiftCount[weekday]; ++shift) {
            for (int slot = 0; slot <= ws.gShiftAgents[weekday][shift]; ++slot) {
                int agent = 0;
                do {
                    next = next % kAgents + 1;
                    agent = next;
                } while (ws.gVacation[agent][day] == 1 ||
                         ws.gRestriction[agent][weekday][shift] == 1);
                ws.schedule(day, shift, slot) = ws.gAgentKey[agent];
            }
        }
    }
    ws.gScheduleGenerated = 1;
}

// Every title is set, so loading finds nothing to default and never writes back into the
// file: each iteration reads the same bytes.
void fillTitles(Workspace& ws) {
    modDefaultTexts(ws);
    ws.gCalendarNotes = QStringLiteral("Call the front desk to trade a shift.");
    ws.gCalendarFont = QStringLiteral("Times New Roman");
    ws.gCalendarCopies = QStringLiteral("1");
    ws.gCalendarUseFirstName = QStringLiteral("0");
    ws.gCalendarHideTimeText = QStringLiteral("0");
    ws.gGridNotes = QStringLiteral("Weekend shifts are two agents each.");
    ws.gGridFont = QStringLiteral("Arial");
    ws.gGridCopies = QStringLiteral("2");
    ws.gTearsheetFont = QStringLiteral("Times New Roman");
    ws.gTearsheetFontsize = QStringLiteral("12");
    ws.gOutlookBody = QStringLiteral("Your shift for the month.");
    ws.chkPrint = {1, 1, 1, 0, 0, 0};
    ws.gEngine = 1;
    ws.cmbGenerateListIndex = 1;
}

void buildOffice(Workspace& ws, const QString& dir) {
    modInitNameTables(ws);
    modInitSession(ws, dir);
    ws.gCurrentYear = 2027;
    ws.gCurrentMonth = 1;
    modSetupMonth(ws);
    fillAgents(ws);
    fillShiftTable(ws);
    fillConstraints(ws);
    fillSchedule(ws);
    fillTitles(ws);
}

void reportFileSize(benchmark::State& state, const QString& path) {
    state.counters["file_bytes"] = benchmark::Counter(static_cast<double>(QFileInfo(path).size()));
}

void BM_SaveScheduleFile(benchmark::State& state) {
    const QTemporaryDir dir;
    if (!dir.isValid()) {
        state.SkipWithError("no temporary directory");
        return;
    }
    TestServices services;
    Workspace ws;
    buildOffice(ws, dir.path());
    const QString path = dir.filePath(QStringLiteral("Large Office.dko"));
    for (auto _ : state) {
        if (!modSaveWorkspace(ws, services.ctx, path)) {
            state.SkipWithError("the schedule file could not be written");
            return;
        }
    }
    reportFileSize(state, path);
}

// The fresh Workspace of each load (name tables and session, as at start-up) is made, and
// the previous one destroyed, while the timer is paused: only the load itself is measured.
void BM_LoadScheduleFile(benchmark::State& state) {
    const QTemporaryDir dir;
    if (!dir.isValid()) {
        state.SkipWithError("no temporary directory");
        return;
    }
    TestServices services;
    const QString path = dir.filePath(QStringLiteral("Large Office.dko"));
    {
        Workspace office;
        buildOffice(office, dir.path());
        if (!modSaveWorkspace(office, services.ctx, path)) {
            state.SkipWithError("the schedule file could not be written");
            return;
        }
    }
    auto ws = std::make_unique<Workspace>();
    for (auto _ : state) {
        state.PauseTiming();
        ws = std::make_unique<Workspace>();
        modInitNameTables(*ws);
        modInitSession(*ws, dir.path());
        state.ResumeTiming();
        modLoadWorkspace(*ws, services.ctx, path);
        benchmark::DoNotOptimize(ws->gAgentCount);
    }
    reportFileSize(state, path);
}

}  // namespace

BENCHMARK(BM_SaveScheduleFile)
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(10)
    ->ReportAggregatesOnly(true);
BENCHMARK(BM_LoadScheduleFile)
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(10)
    ->ReportAggregatesOnly(true);

BENCHMARK_MAIN();
