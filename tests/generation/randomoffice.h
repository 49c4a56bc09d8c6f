#pragma once

#include "core/model/agentkeys.h"
#include "core/model/calendar.h"
#include "core/model/workspace.h"

#include <QStringList>

#include <cstdint>
#include <random>

// Offices drawn at random for comparing an engine with its plain transcription: 1 to 60
// agents with last names often shared (and now and then one key held by two agents), a
// random weekly table, holidays, vacation streaks, a day on which everybody is away, and
// restrictions. The same seed always gives the same office.
inline void makeRandomOffice(Workspace& ws, std::uint32_t seed) {
    std::mt19937 rng(seed);
    const auto below = [&rng](int n) { return static_cast<int>(rng() % static_cast<unsigned>(n)); };
    const auto chance = [&below](int percent) { return below(100) < percent; };

    modInitNameTables(ws);
    ws.gCurrentYear = 2020 + below(12);
    ws.gCurrentMonth = 1 + below(12);
    modSetupMonth(ws);
    const int days = ws.currentMonthDays();

    static const QStringList lasts =
        QStringLiteral("Adams Baker Clark Davis Evans Ford Green Hill Irwin Jones King Lee")
            .split(QLatin1Char(' '));
    static const QStringList firsts =
        QStringLiteral("Ann Bob Cy Dee Ed Flo Gus Hal Ivy Jo Kim Lou").split(QLatin1Char(' '));
    const int agents = 1 + below(60);
    ws.gAgentCount = agents;
    ws.redimAgents(agents);
    for (int a = 1; a <= agents; ++a) {
        ws.gAgentLast[a] = lasts[below(static_cast<int>(lasts.size()))];
        ws.gAgentFirst[a] = firsts[below(static_cast<int>(firsts.size()))] + QString::number(a);
    }
    modBuildAgentKeys(ws);
    if (agents > 1 && chance(30)) {
        ws.gAgentKey[1 + below(agents)] = ws.gAgentKey[1 + below(agents)];
    }

    for (int w = 0; w < kWeekdays; ++w) {
        ws.gShiftCount[w] = chance(15) ? 0 : 1 + below(kMaxShift);
        for (int s = 1; s <= kMaxShift; ++s) {
            ws.gShiftAgents[w][s] = below(4);
        }
    }
    for (int d = 1; d <= days; ++d) {
        ws.gHoliday[d] = chance(8) ? 1 : 0;
    }
    const int everybodyAway = chance(15) ? 1 + below(days) : 0;
    for (int a = 1; a <= agents; ++a) {
        if (chance(35)) {
            const int from = 1 + below(days);
            const int to = std::min(days, from + below(10));
            for (int d = from; d <= to; ++d) {
                ws.gVacation[a][d] = 1;
            }
        }
        if (everybodyAway != 0) {
            ws.gVacation[a][everybodyAway] = 1;
        }
        if (chance(35)) {
            for (int w = 0; w < kWeekdays; ++w) {
                for (int s = 1; s <= kMaxShift; ++s) {
                    ws.gRestriction[a][w][s] = chance(20) ? 1 : 0;
                }
            }
        }
    }
    ws.gHasVacations = 1;
    ws.gHasRestrictions = 1;
    ws.gHasHolidays = 1;
    static const double ratios[] = {0.5, 1.0, 1.5, 2.0, 3.0};
    ws.gAgentRatio = ratios[below(5)];
}
