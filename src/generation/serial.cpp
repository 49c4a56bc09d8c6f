#include "generation/engines.h"

#include "core/model/workspace.h"
#include "core/services/context.h"
#include "core/services/log.h"
#include "generation/positionwalk.h"

#include <utility>
#include <vector>

namespace {

// Agents looked at for one position before the one under the cursor takes it whatever the
// rules say. Fixed, whatever the length of the list: a long list can reach it with someone
// free further on, a short one is walked round several times first.
constexpr int kTriesPerPosition = 150;

// A name of an agent, or the empty text for a number outside the list.
QString agentText(const Workspace& ws, const std::vector<QString>& texts, int agent) {
    return agent >= 0 && agent <= ws.gAgentCount ? texts[static_cast<std::size_t>(agent)]
                                                 : QString();
}

// Logs the engine and its base agent, the one after the cursor, and keeps the cursor for
// the review form, which shows the base agent as the one after it.
void startRota(Workspace& ws, Context& ctx, const QString& engineLine, int cursor) {
    const int base = cursor >= ws.gAgentCount ? 1 : cursor + 1;
    modStatus(ws, ctx, engineLine);
    modStatus(ws, ctx,
              QStringLiteral("Base agent is ") + agentText(ws, ws.gAgentFirst, base) +
                  QLatin1Char(' ') + agentText(ws, ws.gAgentLast, base));
    ws.gBaseAgent = cursor;
}

// Gives the position to the next agent in list order who is free for it, leaving the
// cursor on that agent.
void placeNext(Workspace& ws, int& cursor, int day, int shift, int slot) {
    for (int tries = 1;; ++tries) {
        cursor = cursor >= ws.gAgentCount ? 1 : cursor + 1;
        if (tries > kTriesPerPosition || !agentBarred(ws, cursor, day, shift)) {
            break;
        }
    }
    ws.schedule(day, shift, slot) = agentText(ws, ws.gAgentKey, cursor);
}

void placeDay(Workspace& ws, int& cursor, int day, ShiftOrder order) {
    forEachPosition(ws, day, order,
                    [&](int shift, int slot) { placeNext(ws, cursor, day, shift, slot); });
}

// The month day by day, holidays left out, and weekends too when they have been served.
void placeDays(Workspace& ws, int& cursor, bool skipWeekends) {
    const int days = ws.currentMonthDays();
    for (int day = 1; day <= days; ++day) {
        const int weekday = ws.weekdayOf(day);
        if (ws.gHoliday[day] == 1 || (skipWeekends && (weekday == 0 || weekday == 6))) {
            continue;
        }
        placeDay(ws, cursor, day, ShiftOrder::Upward);
    }
}

// The first and the last day of the month that fall on the weekday.
std::pair<int, int> weekdaySpan(const Workspace& ws, int weekday) {
    int first = weekday + 1 - ws.gFirstWeekday;
    if (first < 1) {
        first += 7;
    }
    int last = first + 28;
    if (last > ws.currentMonthDays()) {
        last -= 7;
    }
    return {first, last};
}

}  // namespace

void modGenerateSerialHorizontal(Workspace& ws, Context& ctx, int& cursor) {
    startRota(ws, ctx, QStringLiteral("Generating a schedule using the Serial Horizontal engine"),
              cursor);
    placeDays(ws, cursor, false);
}

void modGenerateSerialMixed(Workspace& ws, Context& ctx, int& cursor) {
    startRota(ws, ctx, QStringLiteral("Generating a schedule using the Serial Mixed engine"),
              cursor);
    // Sundays forward and Saturdays backward, so that weekend duty goes round the list by
    // itself: the agent of the last Sunday is close to the one of the last Saturday.
    const auto [firstSunday, lastSunday] = weekdaySpan(ws, 0);
    for (int day = firstSunday; day <= lastSunday; day += 7) {
        if (ws.gHoliday[day] != 1) {
            placeDay(ws, cursor, day, ShiftOrder::Upward);
        }
    }
    const auto [firstSaturday, lastSaturday] = weekdaySpan(ws, 6);
    for (int day = lastSaturday; day >= firstSaturday; day -= 7) {
        if (ws.gHoliday[day] != 1) {
            placeDay(ws, cursor, day, ShiftOrder::Downward);
        }
    }
    placeDays(ws, cursor, true);
}
