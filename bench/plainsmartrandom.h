#pragma once

#include "core/model/workspace.h"
#include "core/services/context.h"
#include "core/services/log.h"
#include "generation/engines.h"

#include <QString>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <vector>

// The SmartRandom engine written the plain way: every score term rescans the grid and
// compares cells with agent keys as texts, with no index and no cache. It is the yardstick
// of the shipped engine, which must leave the same schedule cell for cell and the random
// sequence in the same state; the equivalence tests and the benchmark run both.
namespace plain {

inline int weekdayOf(const Workspace& ws, int day) {
    return ((day + 6 + ws.gFirstWeekday) % 7 + 7) % 7;
}

// The weekly table, kept inside the grid's bounds as every engine keeps it.
inline int shiftsOf(const Workspace& ws, int weekday) {
    return std::clamp(ws.gShiftCount[weekday], 0, kMaxShift);
}
inline int highestSlotOf(const Workspace& ws, int weekday, int shift) {
    return std::min(ws.gShiftAgents[weekday][shift], kMaxSlot);
}

inline bool holds(const Workspace& ws, int day, int shift, int slot, int agent) {
    return ws.schedule(day, shift, slot) == ws.gAgentKey[agent];
}

inline bool isWeekend(int weekday) {
    return weekday == 0 || weekday == 6;
}

// The score of an exchange in which h takes (e, t, m) and l takes (d, s, k), cells as they
// stand before it.
inline double exchangeScore(const Workspace& ws, int window, int d, int s, int e, int t, int h,
                            int l) {
    const int days = ws.currentMonthDays();
    const int w = weekdayOf(ws, d);
    const int we = weekdayOf(ws, e);
    double score = 0;
    for (int j = 0; j <= highestSlotOf(ws, we, t); ++j) {
        if (holds(ws, e, t, j, h)) {
            score += 100000;
        }
    }
    for (int j = 0; j <= highestSlotOf(ws, w, s); ++j) {
        if (holds(ws, d, s, j, l)) {
            score += 100000;
        }
    }
    for (int u = 1; u <= shiftsOf(ws, we); ++u) {
        for (int j = 0; j <= highestSlotOf(ws, we, u); ++j) {
            if (holds(ws, e, u, j, h)) {
                score += 10000;
            }
        }
    }
    for (int u = 1; u <= shiftsOf(ws, w); ++u) {
        for (int j = 0; j <= highestSlotOf(ws, w, u); ++j) {
            if (holds(ws, d, u, j, l)) {
                score += 10000;
            }
        }
    }
    const auto near = [&](int centre, int agent) {
        for (int f = std::max(1, centre - window); f <= std::min(days, centre + window); ++f) {
            if (f == centre) {
                continue;
            }
            const int wf = weekdayOf(ws, f);
            for (int u = 1; u <= shiftsOf(ws, wf); ++u) {
                for (int j = 0; j <= highestSlotOf(ws, wf, u); ++j) {
                    if (holds(ws, f, u, j, agent)) {
                        score += 10000 * (1 - std::abs(f - centre) / static_cast<double>(window));
                    }
                }
            }
        }
    };
    near(e, h);
    near(d, l);
    const auto sameWeekday = [&](int centre, int agent) {
        const int wc = weekdayOf(ws, centre);
        for (int f = centre % 7 == 0 ? 7 : centre % 7; f <= days; f += 7) {
            if (f == centre) {
                continue;
            }
            for (int u = 1; u <= shiftsOf(ws, wc); ++u) {
                for (int j = 0; j <= highestSlotOf(ws, wc, u); ++j) {
                    if (holds(ws, f, u, j, agent)) {
                        score += (4 - std::abs(centre - f) / 7.0) * 300;
                    }
                }
            }
        }
    };
    sameWeekday(e, h);
    sameWeekday(d, l);
    return score;
}

inline void generateSmartRandom(Workspace& ws, Context& ctx,
                                const SmartRandomProgress& progress = {}) {
    modStatus(ws, ctx, QStringLiteral("Generating a schedule using the SmartRandom schedule"));
    const int n = ws.gAgentCount;
    const int days = ws.currentMonthDays();
    std::vector<double> restrictedShare(n + 1);
    std::vector<double> restrictedWeekendShare(n + 1);
    std::vector<double> restrictedWeekdayShare(n + 1);
    std::vector<double> expectedLoad(n + 1);

    const auto countPositions = [&] {
        int total = 0;
        for (int d = 1; d <= days; ++d) {
            if (ws.gHoliday[d] == 1) {
                continue;
            }
            const int w = weekdayOf(ws, d);
            for (int s = 1; s <= shiftsOf(ws, w); ++s) {
                for (int k = 0; k <= highestSlotOf(ws, w, s); ++k) {
                    ++total;
                }
            }
        }
        return total;
    };
    int total = countPositions();
    for (int a = 1; a <= n; ++a) {
        for (int d = 1; d <= days; ++d) {
            if (ws.gVacation[a][d] == 1) {
                expectedLoad[a] += 1;
            }
        }
    }
    for (int a = 1; a <= n; ++a) {
        if (days != 0) {  // else the division fails and the count stays
            expectedLoad[a] = (static_cast<double>(total) / n) * (1 - expectedLoad[a] / days);
        }
    }
    total = countPositions();

    int weekShifts = 0;
    int weekendShifts = 0;
    int weekdayShifts = 0;
    for (int w = 0; w < kWeekdays; ++w) {
        for (int s = 1; s <= shiftsOf(ws, w); ++s) {
            ++weekShifts;
            if (isWeekend(w)) {
                ++weekendShifts;
            } else {
                ++weekdayShifts;
            }
        }
    }
    for (int a = 1; a <= n; ++a) {
        for (int w = 0; w < kWeekdays; ++w) {
            for (int s = 1; s <= shiftsOf(ws, w); ++s) {
                if (ws.gRestriction[a][w][s] == 1) {
                    restrictedShare[a] += 1;
                    if (isWeekend(w)) {
                        restrictedWeekendShare[a] += 1;
                    } else {
                        restrictedWeekdayShare[a] += 1;
                    }
                }
            }
        }
        if (weekShifts > 0) {
            restrictedShare[a] /= weekShifts;
        }
        restrictedWeekendShare[a] =
            weekendShifts > 0 ? restrictedWeekendShare[a] / weekendShifts : 10000000;
        restrictedWeekdayShare[a] =
            weekdayShifts > 0 ? restrictedWeekdayShare[a] / weekdayShifts : 10000000;
    }
    int window = 0;
    if (n > 0 && total > 0) {  // else the division fails and the window stays 0
        window = static_cast<int>(std::floor(0.67 * days / (static_cast<double>(total) / n)));
    }

    // The sweep.
    int done = 0;
    std::vector<double> pick;
    for (int d = 1; d <= days; ++d) {
        if (ws.gHoliday[d] == 1) {
            continue;
        }
        const int w = weekdayOf(ws, d);
        for (int s = 1; s <= shiftsOf(ws, w); ++s) {
            for (int k = 0; k <= highestSlotOf(ws, w, s); ++k) {
                pick.assign(n + 1, 0.0);
                ++done;
                for (int a = 1; a <= n; ++a) {
                    double score = 0;
                    if (ws.gVacation[a][d] == 1 || ws.gRestriction[a][w][s] == 1) {
                        score += 1e11;
                    }
                    for (int j = k - 1; j >= 0; --j) {
                        if (holds(ws, d, s, j, a)) {
                            score += 1e9;
                        }
                    }
                    for (int t = s - 1; t >= 1; --t) {
                        for (int j = 0; j <= highestSlotOf(ws, w, t); ++j) {
                            if (holds(ws, d, t, j, a)) {
                                score += 30000000;
                            }
                        }
                    }
                    for (int e = 1; e <= d - 1; ++e) {
                        const int we = weekdayOf(ws, e);
                        for (int t = 1; t <= shiftsOf(ws, we); ++t) {
                            for (int j = 0; j <= highestSlotOf(ws, we, t); ++j) {
                                if (holds(ws, e, t, j, a)) {
                                    score += 750;
                                }
                            }
                        }
                    }
                    int from = d - window;
                    if (from < 1) {
                        from = 0;
                    }
                    for (int e = from; e <= d - 1; ++e) {
                        const int we = weekdayOf(ws, e);
                        for (int t = 1; t <= shiftsOf(ws, we); ++t) {
                            for (int j = 0; j <= highestSlotOf(ws, we, t); ++j) {
                                if (holds(ws, e, t, j, a)) {
                                    score += 2000.0 * (window + 1 - (d - e)) / window;
                                }
                            }
                        }
                    }
                    for (int e = d % 7 == 0 ? 7 : d % 7; e <= d - 1; e += 7) {
                        for (int t = 1; t <= shiftsOf(ws, w); ++t) {
                            for (int j = 0; j <= highestSlotOf(ws, w, t); ++j) {
                                if (holds(ws, e, t, j, a)) {
                                    score += (4 - (d - e) / 7.0) * 300;
                                }
                            }
                        }
                    }
                    int load = 0;
                    int vacationTally = 0;
                    const auto walk = [&](int e, int t, int j) {
                        if (holds(ws, e, t, j, a)) {
                            ++load;
                        }
                        if (ws.gVacation[a][e] == 1) {
                            ++vacationTally;
                        }
                    };
                    for (int e = 1; e <= d - 1; ++e) {
                        const int we = weekdayOf(ws, e);
                        for (int t = 1; t <= shiftsOf(ws, we); ++t) {
                            for (int j = 0; j <= highestSlotOf(ws, we, t); ++j) {
                                walk(e, t, j);
                            }
                        }
                    }
                    for (int t = 1; t <= shiftsOf(ws, w) - 1; ++t) {
                        for (int j = 0; j <= highestSlotOf(ws, w, t); ++j) {
                            walk(d, t, j);
                        }
                    }
                    for (int j = 0; j <= highestSlotOf(ws, w, s) - 1; ++j) {
                        walk(d, s, j);
                    }
                    if (vacationTally > 1 && load > 1.2 * expectedLoad[a] * d / days) {
                        if (expectedLoad[a] != 0) {  // else the division fails: no term
                            score +=
                                30000000 * ((static_cast<double>(load) / done) / expectedLoad[a]);
                        }
                    }
                    pick[a] = score;
                }
                const double r = ctx.random.next();
                const int start = static_cast<int>(std::floor(r * n)) + 1;
                double best = 1e15;
                int chosen = 0;
                for (int i = 1; i <= n; ++i) {
                    const int a = ((i + start) % n) + 1;
                    if (pick[a] < best) {
                        best = pick[a];
                        chosen = a;
                    }
                }
                ws.schedule(d, s, k) = ws.gAgentKey[chosen];
                if (progress.placed) {
                    progress.placed(chosen, 1 - static_cast<double>(total - done) / total);
                }
            }
        }
    }

    // The repair pass.
    if (progress.repairing) {
        progress.repairing();
    }
    int rd = 0, rs = 0, rk = 0, re = 0, rt = 0, rm = 0, rh = 0, rl = 0;
    int h = 0;
    for (int round = 1; round <= 40; ++round) {
        int minimum = 10000000;
        int maximum = 0;
        double bestSwap = 1000000000;
        for (int a = 1; a <= n; ++a) {
            int count = 0;
            bool dropped = false;
            for (int d = 1; d <= days && !dropped; ++d) {
                const int w = weekdayOf(ws, d);
                if (!isWeekend(w) || ws.gHoliday[d] != 0) {
                    continue;
                }
                for (int s = 0; s <= shiftsOf(ws, w) && !dropped; ++s) {
                    if (ws.gVacation[a][d] == 1) {
                        dropped = true;
                        break;
                    }
                    for (int k = 0; k <= highestSlotOf(ws, w, s); ++k) {
                        if (holds(ws, d, s, k, a)) {
                            ++count;
                        }
                    }
                }
            }
            if (dropped) {
                continue;
            }
            if (count > maximum && restrictedWeekdayShare[a] < 0.4) {
                maximum = count;
            }
            if (count < minimum && restrictedWeekendShare[a] < 0.4) {
                minimum = count;
            }
        }
        if (maximum - minimum <= 1) {
            break;
        }
        std::vector<int> high;
        std::vector<int> low;
        for (int a = 1; a <= n; ++a) {
            int count = 0;
            for (int d = 1; d <= days; ++d) {
                const int w = weekdayOf(ws, d);
                if (!isWeekend(w) || ws.gHoliday[d] != 0) {
                    continue;
                }
                for (int s = 1; s <= shiftsOf(ws, w); ++s) {
                    for (int k = 0; k <= highestSlotOf(ws, w, s); ++k) {
                        if (holds(ws, d, s, k, a)) {
                            ++count;
                        }
                    }
                }
            }
            if (count == maximum && restrictedWeekdayShare[a] < 0.4) {
                high.push_back(a);
            }
            if (count == minimum && restrictedWeekendShare[a] < 0.4) {
                low.push_back(a);
            }
        }
        for (const int highAgent : high) {
            h = highAgent;
            for (const int l : low) {
                for (int d = 1; d <= days; ++d) {
                    const int w = weekdayOf(ws, d);
                    if (!isWeekend(w) || ws.gHoliday[d] != 0) {
                        continue;
                    }
                    for (int s = 1; s <= shiftsOf(ws, w); ++s) {
                        for (int k = 0; k <= highestSlotOf(ws, w, s); ++k) {
                            if (!holds(ws, d, s, k, h)) {
                                continue;
                            }
                            bool stop = false;
                            for (int e = 1; e <= days && !stop; ++e) {
                                const int we = weekdayOf(ws, e);
                                if (isWeekend(we)) {
                                    continue;
                                }
                                for (int t = 1; t <= shiftsOf(ws, we) && !stop; ++t) {
                                    for (int m = 0; m <= highestSlotOf(ws, we, t); ++m) {
                                        if (!holds(ws, e, t, m, l)) {
                                            continue;
                                        }
                                        if (ws.gRestriction[l][w][s] == 1 ||
                                            ws.gVacation[l][d] == 1) {
                                            stop = true;
                                            break;
                                        }
                                        if (ws.gRestriction[h][we][t] == 1 ||
                                            ws.gVacation[h][e] == 1) {
                                            continue;
                                        }
                                        const double score =
                                            exchangeScore(ws, window, d, s, e, t, h, l);
                                        if (score < bestSwap) {
                                            rd = d, rs = s, rk = k, re = e, rt = t, rm = m;
                                            rh = h, rl = l;
                                            bestSwap = score;
                                        }
                                    }
                                }
                            }
                        }
                    }
                }
            }
        }
        ws.schedule(rd, rs, rk) = ws.gAgentKey[rl];
        ws.schedule(re, rt, rm) = ws.gAgentKey[rh];
        if (progress.exchanged) {
            progress.exchanged(h);
        }
    }
    ws.gSelectedAgent = 0;
}

}  // namespace plain
