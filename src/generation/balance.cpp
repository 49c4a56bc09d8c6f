#include "generation/balance.h"

#include "core/model/leaveempty.h"
#include "core/model/numbers.h"
#include "core/model/shifttime.h"
#include "generation/generate.h"
#include "generation/positionwalk.h"

#include <algorithm>
#include <optional>

namespace {

// The length of each shift of the weekly table in minutes, nothing where its time text
// cannot be read.
using ShiftMinutes = std::array<std::array<std::optional<int>, kShiftSlots>, kWeekdays>;

ShiftMinutes shiftMinutes(const Workspace& ws) {
    ShiftMinutes minutes{};
    for (int w = 0; w < kWeekdays; ++w) {
        for (int s = 1; s <= std::clamp(ws.gShiftCount[w], 0, kMaxShift); ++s) {
            QString start;
            QString end;
            if (modInterpretShiftTime(ws.gShiftText[w][s], start, end)) {
                minutes[w][s] = *minutesOfDay(end) - *minutesOfDay(start);
            }
        }
    }
    return minutes;
}

bool isOpen(const QString& cell) {
    return cell.isEmpty() || cell == leaveEmptyText() || cell == blankedCellText();
}

// Runs and adjacent days from the days worked; a day not worked, a holiday included, ends a
// run.
void countRuns(AgentBalance& agent, int days) {
    int run = 0;
    for (int d = 1; d <= days; ++d) {
        run = agent.worked[d] ? run + 1 : 0;
        agent.longestRun = std::max(agent.longestRun, run);
        agent.adjacentDays += run > 1 ? 1 : 0;
    }
}

void summarise(MonthBalance& balance) {
    if (balance.agents.empty()) {
        return;
    }
    const auto [fewest, most] = std::minmax_element(
        balance.agents.begin(), balance.agents.end(),
        [](const AgentBalance& a, const AgentBalance& b) { return a.shifts < b.shifts; });
    const auto [shortest, longest] = std::minmax_element(
        balance.agents.begin(), balance.agents.end(),
        [](const AgentBalance& a, const AgentBalance& b) { return a.minutes < b.minutes; });
    balance.shiftSpread = most->shifts - fewest->shifts;
    balance.minuteSpread = longest->minutes - shortest->minutes;
    for (const AgentBalance& agent : balance.agents) {
        balance.meanShifts += agent.shifts;
        balance.meanMinutes += agent.minutes;
    }
    const auto count = static_cast<double>(balance.agents.size());
    balance.meanShifts /= count;
    balance.meanMinutes /= count;
}

}  // namespace

MonthBalance monthBalance(const Workspace& ws) {
    MonthBalance balance;
    const int agents = std::min({ws.gAgentCount, static_cast<int>(ws.gAgentKey.size()) - 1,
                                 static_cast<int>(ws.gVacation.size()) - 1});
    for (int a = 1; a <= agents; ++a) {
        balance.agents.push_back(AgentBalance{.agent = a});
    }
    const int busiest = busiestWeekdayPositions(ws);
    balance.adjacentCounted = busiest > 0 && ws.gAgentCount >= 2 * busiest;

    const ShiftMinutes minutes = shiftMinutes(ws);
    const int days = std::min(ws.currentMonthDays(), kMonthDaySlots - 1);
    for (int d = 1; d <= days; ++d) {
        if (ws.gHoliday[d] == 1) {
            continue;
        }
        const int w = ws.weekdayOf(d);
        std::vector<int> onDay(balance.agents.size(), 0);
        forEachPosition(ws, d, ShiftOrder::Upward, [&](int shift, int slot) {
            const QString& cell = ws.schedule(d, shift, slot);
            if (isOpen(cell)) {
                ++balance.openPositions;
                return;
            }
            bool held = false;
            for (AgentBalance& agent : balance.agents) {
                if (cell != ws.gAgentKey[agent.agent]) {
                    continue;
                }
                held = true;
                ++onDay[agent.agent - 1];
                ++agent.shifts;
                agent.minutes += minutes[w][shift].value_or(0);
                agent.untimed += minutes[w][shift] ? 0 : 1;
                agent.weekendShifts += w == 0 || w == 6 ? 1 : 0;
                agent.notedShifts += ws.gNoted[d] == 1 ? 1 : 0;
            }
            if (!held) {
                auto other = std::find_if(balance.others.begin(), balance.others.end(),
                                          [&](const auto& entry) { return entry.first == cell; });
                if (other == balance.others.end()) {
                    balance.others.emplace_back(cell, 1);
                } else {
                    ++other->second;
                }
            }
        });
        for (AgentBalance& agent : balance.agents) {
            agent.worked[d] = onDay[agent.agent - 1] > 0;
            agent.doubledDays += onDay[agent.agent - 1] > 1 ? 1 : 0;
        }
    }
    for (AgentBalance& agent : balance.agents) {
        countRuns(agent, days);
    }
    summarise(balance);
    return balance;
}

Load loadOf(const MonthBalance& balance, const AgentBalance& agent) {
    if (agent.shifts - balance.meanShifts > 1) {
        return Load::Over;
    }
    if (balance.meanShifts - agent.shifts > 1) {
        return Load::Under;
    }
    return Load::Even;
}

QString hoursText(double minutes) {
    return decimalText(minutes / 60, 2);
}

QStringList balanceHeader() {
    return {QStringLiteral("Agent"),   QStringLiteral("Shifts"),   QStringLiteral("Hours"),
            QStringLiteral("Weekend"), QStringLiteral("Noted"),    QStringLiteral("Run"),
            QStringLiteral("Double"),  QStringLiteral("Adjacent"), QStringLiteral("Load")};
}

QStringList balanceRow(const Workspace& ws, const MonthBalance& balance,
                       const AgentBalance& agent) {
    static const QStringList loads = {QString(), QStringLiteral("over"), QStringLiteral("under")};
    return {ws.gAgentKey[agent.agent],
            QString::number(agent.shifts),
            hoursText(agent.minutes),
            QString::number(agent.weekendShifts),
            QString::number(agent.notedShifts),
            QString::number(agent.longestRun),
            QString::number(agent.doubledDays),
            balance.adjacentCounted ? QString::number(agent.adjacentDays) : QStringLiteral("-"),
            loads[static_cast<int>(loadOf(balance, agent))]};
}

std::vector<QStringList> balanceSummary(const MonthBalance& balance) {
    int others = 0;
    for (const auto& [text, positions] : balance.others) {
        others += positions;
    }
    return {{QStringLiteral("Spread"), QString::number(balance.shiftSpread),
             hoursText(balance.minuteSpread)},
            {QStringLiteral("Mean"), decimalText(balance.meanShifts, 2),
             hoursText(balance.meanMinutes)},
            {QStringLiteral("Open"), QString::number(balance.openPositions)},
            {QStringLiteral("Others"), QString::number(others)}};
}
