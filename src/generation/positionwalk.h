#pragma once

#include "core/model/workspace.h"

#include <algorithm>

// The positions of a day and the agent facts the deal-out engines read, shared so that
// every engine walks a day and reads an agent the same way.

enum class ShiftOrder { Upward, Downward };

// Calls visit(shift, slot) for every position of the day: its weekday's shifts in the given
// order, the slots of each shift always upward. Holidays are the caller's business. The
// table is kept inside gSchedule's bounds, so a damaged one cannot reach past it.
template <typename Visit>
void forEachPosition(const Workspace& ws, int day, ShiftOrder order, Visit&& visit) {
    const int weekday = ws.weekdayOf(day);
    const int shifts = std::clamp(ws.gShiftCount[weekday], 0, kMaxShift);
    for (int i = 1; i <= shifts; ++i) {
        const int shift = order == ShiftOrder::Upward ? i : shifts + 1 - i;
        const int highestSlot = std::min(ws.gShiftAgents[weekday][shift], kMaxSlot);
        for (int slot = 0; slot <= highestSlot; ++slot) {
            visit(shift, slot);
        }
    }
}

// True when a position of the day holds the text, filled or not: an empty text is found
// in any empty position.
inline bool dayHolds(const Workspace& ws, int day, const QString& text) {
    bool found = false;
    forEachPosition(ws, day, ShiftOrder::Upward, [&](int shift, int slot) {
        found = found || ws.schedule(day, shift, slot) == text;
    });
    return found;
}

// Whether the agent may not take a position of the day and shift. A number outside the
// agent list, or a day outside the vacation table, reads as nothing set.
inline bool agentBarred(const Workspace& ws, int agent, int day, int shift) {
    if (agent < 0 || agent > ws.gAgentCount) {
        return false;
    }
    const bool away = day >= 0 && day < kMonthDaySlots && ws.gVacation[agent][day] == 1;
    return away || ws.gRestriction[agent][ws.weekdayOf(day)][shift] == 1;
}
