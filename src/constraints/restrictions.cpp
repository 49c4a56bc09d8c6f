#include "constraints/restrictions.h"

#include "core/model/workspace.h"
#include "core/services/context.h"
#include "core/services/log.h"
#include "persistence/workspacefile.h"

#include <algorithm>

namespace {

// Only the shifts on show are written: a restriction of a shift that a weekday no longer has
// stays in the table as it stands.
void storeBoxes(Workspace& ws, const RestrictionBoxes& boxes) {
    const int agent = ws.gRestrictionAgent;
    if (!ws.hasAgent(agent)) {
        return;
    }
    for (int w = 0; w < kWeekdays; ++w) {
        for (int s = 1; s <= std::clamp(ws.gShiftCount[w], 0, kMaxShift); ++s) {
            ws.gRestriction[agent][w][s] = boxes[w][s - 1] ? 1 : 0;
        }
    }
}

}  // namespace

QString restrictionsLine(const Workspace& ws) {
    return QStringLiteral("Viewing shift restrictions for ") + ws.agentName(ws.gRestrictionAgent);
}

RestrictionBoxes restrictionBoxes(const Workspace& ws) {
    RestrictionBoxes boxes{};
    const int agent = ws.gRestrictionAgent;
    for (int w = 0; w < kWeekdays && ws.hasAgent(agent); ++w) {
        for (int s = 1; s <= std::clamp(ws.gShiftCount[w], 0, kMaxShift); ++s) {
            boxes[w][s - 1] = ws.gRestriction[agent][w][s] == 1;
        }
    }
    return boxes;
}

bool switchRestrictionAgent(Workspace& ws, Context& ctx, int listIndex,
                            const RestrictionBoxes& boxes) {
    if (listIndex + 1 == ws.gRestrictionAgent) {
        return false;
    }
    ws.gDirty = 1;
    storeBoxes(ws, boxes);
    ws.gHasRestrictions = 0;
    ws.gRestrictionAgent = listIndex + 1;
    modStatus(ws, ctx, restrictionsLine(ws));
    return true;
}

void saveRestrictions(Workspace& ws, Context& ctx, const RestrictionBoxes& boxes) {
    ws.gDirty = 1;
    // The line has always named no agent: two blanks end it.
    modStatus(ws, ctx, QStringLiteral("Saving shift restrictions for  "));
    storeBoxes(ws, boxes);
    ws.gHasRestrictions = 0;
    modSaveWorkspace(ws, ctx, QString());
}
