#include "generation/review.h"

#include "core/model/workspace.h"
#include "core/services/context.h"
#include "generation/engines.h"
#include "generation/generate.h"

#include <algorithm>

QString holidayMessage(const Workspace& ws, int day) {
    return ws.currentMonthName() + QLatin1Char(' ') + QString::number(day) +
           QStringLiteral(" is ") + ws.gHolidayName[day] + QLatin1Char('.');
}

void rerunFromAgent(Workspace& ws, Context& ctx, int engine, int listIndex) {
    ws.gInitialAgent = listIndex;
    switch (engine) {
        // Shuffled takes the index as its draw count. Its review has no agent list, so this
        // case does not come from the form.
        case kEngineShuffled:
            modGenerateShuffled(ws, ctx, ws.gInitialAgent);
            break;
        case kEngineHorizontal:
            modGenerateSerialHorizontal(ws, ctx, ws.gInitialAgent);
            break;
        case kEngineMixed:
            modGenerateSerialMixed(ws, ctx, ws.gInitialAgent);
            break;
        default:
            break;
    }
}

QString shiftWord(int shift) {
    static const std::array<QString, kDayEditorShifts> words = {
        QStringLiteral("First shift"), QStringLiteral("Second shift"),
        QStringLiteral("Third shift"), QStringLiteral("Fourth shift"),
        QStringLiteral("Fifth shift"), QStringLiteral("Sixth shift")};
    return words[static_cast<std::size_t>(shift - 1)];
}

QString shiftFrameCaption(const Workspace& ws, int weekday, int shift) {
    return shiftWord(shift) + QStringLiteral(": ") + ws.gShiftText[weekday][shift];
}

void storeDay(Workspace& ws, int day, const DayLists& lists) {
    if (!scheduleInRange(day, 0, 0)) {
        return;
    }
    const int w = ws.weekdayOf(day);
    for (int n = 1; n <= kDayEditorShifts; ++n) {
        const int last = std::min(ws.gShiftAgents[w][n], kDayEditorSlots - 1);
        for (int k = 0; k <= last; ++k) {
            ws.schedule(day, n, k) = lists[n - 1][k];
        }
    }
}
