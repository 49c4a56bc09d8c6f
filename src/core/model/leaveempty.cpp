#include "core/model/leaveempty.h"

#include "core/model/workspace.h"

#include <algorithm>

namespace {

// Every cell of the weekly table's positions on the month's days, or on its working days.
template <typename Visit>
void forEachPosition(Workspace& ws, bool workingDaysOnly, Visit visit) {
    for (int day = 1; day <= ws.currentMonthDays(); ++day) {
        if (workingDaysOnly && ws.gHoliday[day] == 1) {
            continue;
        }
        const int weekday = ws.weekdayOf(day);
        const int shifts = std::clamp(ws.gShiftCount[weekday], 0, kMaxShift);
        for (int shift = 1; shift <= shifts; ++shift) {
            const int highestSlot = std::min(ws.gShiftAgents[weekday][shift], kMaxSlot);
            for (int slot = 0; slot <= highestSlot; ++slot) {
                visit(ws.schedule(day, shift, slot));
            }
        }
    }
}

}  // namespace

QString leaveEmptyText() {
    return QStringLiteral("Leave empty");
}

QString blankedCellText() {
    return QString(10, QLatin1Char(' '));
}

void blankLeaveEmptyCells(Workspace& ws) {
    forEachPosition(ws, true, [](QString& cell) {
        if (cell == leaveEmptyText()) {
            cell = blankedCellText();
        }
    });
}

void restoreLeaveEmptyCells(Workspace& ws) {
    forEachPosition(ws, false, [](QString& cell) {
        if (cell == blankedCellText()) {
            cell = leaveEmptyText();
        }
    });
}
