#include "generation/generate.h"

#include "core/model/monthdata.h"
#include "core/model/textrules.h"
#include "core/model/workspace.h"
#include "core/services/context.h"
#include "core/services/dialogs.h"
#include "core/services/log.h"
#include "core/services/msgbox.h"

#include <algorithm>
#include <array>

namespace {

// Every question of the command warns, and only a No stops it.
bool goOn(Context& ctx, const QString& question) {
    return msgBox(ctx.dialogs, question, MsgIcon::Exclamation, MsgButtons::YesNo, 2) !=
           MsgAnswer::No;
}

const std::array<QString, 4> kEngineLines = {
    QStringLiteral("Using SmartRandom engine for schedule generation"),
    QStringLiteral("Using Shuffled engine for schedule generation"),
    QStringLiteral("Using Serial (horizontal) engine for schedule generation"),
    QStringLiteral("Using Serial (mixed) engine for schedule generation"),
};

}  // namespace

int busiestWeekdayPositions(const Workspace& ws) {
    int busiest = 0;
    for (int w = 0; w < kWeekdays; ++w) {
        int positions = 0;
        for (int s = 1; s <= std::min(ws.gShiftCount[w], kMaxShift); ++s) {
            positions += ws.gShiftAgents[w][s] + 1;
        }
        busiest = std::max(busiest, positions);
    }
    return busiest;
}

bool prepareGenerate(Workspace& ws, Context& ctx, int listIndex) {
    if (ws.gScheduleGenerated == 1 &&
        !goOn(ctx, QStringLiteral("Generating a new schedule will erase the previous schedule.  "
                                  "Would you like to proceed?"))) {
        return false;
    }
    ws.gCalendarAgentIndex = 0;
    // A table without positions leaves the ratio of the last command.
    if (const int busiest = busiestWeekdayPositions(ws); busiest > 0) {
        ws.gAgentRatio = static_cast<double>(ws.gAgentCount) / busiest;
    }
    const bool twiceADay = ws.gAgentRatio < 1;
    const bool adjacentDays = ws.gAgentRatio >= 1 && ws.gAgentRatio < 2;
    if (twiceADay && !goOn(ctx, QStringLiteral("With the current configuration, an agent may be "
                                               "scheduled twice in a day.  Would you like to "
                                               "proceed anyway?"))) {
        return false;
    }
    if (adjacentDays && !goOn(ctx, QStringLiteral("With the current configuration, an agent may "
                                                  "be scheduled on adjacent days.  Would you "
                                                  "like to proceed anyway?"))) {
        return false;
    }
    modStatus(ws, ctx, QStringLiteral("Generating a schedule"));
    if (twiceADay) {
        modStatus(
            ws, ctx,
            QStringLiteral("Some agents may be scheduled twice in a day due to configuration"));
    }
    if (adjacentDays) {
        modStatus(ws, ctx,
                  QStringLiteral("Some agents may be scheduled on adjacent days due to "
                                 "configuration"));
    }
    ws.gDirty = 1;
    modDefaultTexts(ws);
    ws.gEngine = listIndex < 0 ? kEngineSmartRandom : listIndex;
    if (ws.gEngine >= 0 && ws.gEngine < static_cast<int>(kEngineLines.size())) {
        modStatus(ws, ctx, kEngineLines[static_cast<std::size_t>(ws.gEngine)]);
    }
    return true;
}

void runEngine(Workspace& ws, Context& ctx, const SmartRandomProgress& progress,
               std::optional<int> serialCursor) {
    const auto replaced = ws.gSchedule;
    std::fill(ws.gSchedule.begin(), ws.gSchedule.end(), QString());
    switch (ws.gEngine) {
        case kEngineSmartRandom:
            modGenerateSmartRandom(ws, ctx, progress);
            break;
        case kEngineShuffled: {
            int drawCounter = 0;
            modGenerateShuffled(ws, ctx, drawCounter);
            break;
        }
        case kEngineHorizontal:
        case kEngineMixed: {
            int cursor = serialCursor ? *serialCursor : ctx.random.drawAgent(ws.gAgentCount);
            if (ws.gEngine == kEngineHorizontal) {
                modGenerateSerialHorizontal(ws, ctx, cursor);
            } else {
                modGenerateSerialMixed(ws, ctx, cursor);
            }
            break;
        }
        default:
            break;
    }
    // A deal cut short by the program's end leaves no half of a schedule behind.
    if (ctx.events.ending()) {
        ws.gSchedule = replaced;
    }
}
