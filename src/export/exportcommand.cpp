#include "export/exportcommand.h"

#include "core/model/leaveempty.h"
#include "core/model/workspace.h"
#include "core/services/log.h"
#include "export/calendarcreator.h"
#include "export/emailexport.h"
#include "export/exportview.h"
#include "export/outlookexport.h"
#include "export/preflight.h"

void cmdExport(Workspace& ws, Context& ctx, ExportView& view, MailSession& session) {
    const std::optional<ExportPlan> plan = exportPreflight(ws, ctx, view);
    if (!plan) {
        return;
    }
    modStatus(ws, ctx, QStringLiteral("Exporting the schedule for ") + ws.currentMonthName());
    view.beginExport(QStringLiteral("Exporting the schedule . . ."));
    blankLeaveEmptyCells(ws);
    view.doEvents();
    // The boxes are read again: the pre-flight may have unticked some.
    if (exportBoxTicked(ws, kEmailBox)) {
        exportToEmail(ws, ctx, view, session);
    }
    if (exportBoxTicked(ws, kOutlookBox)) {
        exportToOutlook(ws, ctx, view, session);
    }
    if (exportBoxTicked(ws, kCreatorBox)) {
        exportToCalendarCreator(ws, ctx, view, plan->creatorFile);
    }
    restoreLeaveEmptyCells(ws);
    view.endExport();
}
