#pragma once

#include "core/model/workspace.h"

#include <QString>

#include <algorithm>
#include <array>

// A weekly shift's time text as the calendar exports read it: whether it could be read, and
// its start and end in minutes after midnight.
struct ShiftTimes {
    bool ok = false;
    int start = 0;
    int end = 0;
};
using WeeklyShiftTimes = std::array<std::array<ShiftTimes, kShiftSlots>, kWeekdays>;

// Every shift of the weekly table read once: the exports meet each shift on every date of
// the month and for every agent, and the reading depends on the text alone.
WeeklyShiftTimes interpretWeeklyShifts(const Workspace& ws);

// The line that reports a weekly shift whose time no reader understands, as in "Failed to
// interpret the first shift on Monday  (9-5)".
QString uninterpretedShiftLine(const Workspace& ws, int weekday, int shift);

// The shifts of a weekday and the highest slot of a shift, within the table's bounds
// whatever a file said.
inline int shiftsOn(const Workspace& ws, int weekday) {
    return std::clamp(ws.gShiftCount[weekday], 0, kMaxShift);
}
inline int highestSlotOf(const Workspace& ws, int weekday, int shift) {
    return std::clamp(ws.gShiftAgents[weekday][shift], -1, kMaxSlot);
}
