#include "export/exportcommand.h"

#include "core/model/leaveempty.h"
#include "core/model/workspace.h"
#include "core/services/context.h"
#include "core/services/log.h"
#include "core/services/printers.h"
#include "core/services/surface.h"
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
    ws.gExportResults.clear();
    // The printer's orientation as found is put back at the end, as after printing.
    Surface* printer = ctx.printers != nullptr ? &ctx.printers->printer() : nullptr;
    const int orientation = printer != nullptr ? printer->Orientation() : 0;
    blankLeaveEmptyCells(ws);
    // Each channel after pending events, and none once the program is ending. The boxes are
    // read again: the pre-flight may have unticked some.
    if (ctx.events.doEvents() && exportBoxTicked(ws, kEmailBox)) {
        exportToEmail(ws, ctx, view, session);
    }
    if (ctx.events.doEvents() && exportBoxTicked(ws, kOutlookBox)) {
        exportToOutlook(ws, ctx, view, session);
    }
    if (ctx.events.doEvents() && exportBoxTicked(ws, kCreatorBox)) {
        exportToCalendarCreator(ws, ctx, view, plan->creatorFile);
    }
    restoreLeaveEmptyCells(ws);
    view.endExport();
    if (printer != nullptr) {
        modSetOrientation(*printer, orientation);
    }
}
