#include "constraints/restrictions.h"

#include "core/model/workspace.h"
#include "core/services/context.h"
#include "core/services/log.h"
#include "persistence/rowlimit.h"
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

// Whether the file can keep the restrictions with the boxes as the agent's on show; the user
// is told when it cannot.
bool roomForBoxes(Workspace& ws, Context& ctx, const RestrictionBoxes& boxes) {
    const int agent = ws.gRestrictionAgent;
    if (!ws.hasAgent(agent)) {
        return true;
    }
    const ShiftTable before = ws.gRestriction[agent];
    storeBoxes(ws, boxes);
    const int rows = sectionRows(ws, RowSection::Restrictions);
    ws.gRestriction[agent] = before;
    return roomForRows(ctx, RowSection::Restrictions, rows);
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
    if (listIndex + 1 == ws.gRestrictionAgent || !roomForBoxes(ws, ctx, boxes)) {
        return false;
    }
    ws.gDirty = 1;
    storeBoxes(ws, boxes);
    ws.gHasRestrictions = 0;
    ws.gRestrictionAgent = listIndex + 1;
    modStatus(ws, ctx, restrictionsLine(ws));
    return true;
}

bool saveRestrictions(Workspace& ws, Context& ctx, const RestrictionBoxes& boxes) {
    if (!roomForBoxes(ws, ctx, boxes)) {
        return false;
    }
    ws.gDirty = 1;
    // The line has always named no agent: two blanks end it.
    modStatus(ws, ctx, QStringLiteral("Saving shift restrictions for  "));
    storeBoxes(ws, boxes);
    ws.gHasRestrictions = 0;
    modSaveWorkspace(ws, ctx, QString());
    return true;
}
