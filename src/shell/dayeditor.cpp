#include "shell/dayeditor.h"

#include "workspace/workspace.h"

void modFillDayEditorCombos(Workspace& ws) {
    if (ws.gCalendarTitle.isEmpty()) {
        ws.gCalendarTitle = monthTitle(ws);
    }
    if (ws.gGridTitle.isEmpty()) {
        ws.gGridTitle = monthTitle(ws);
    }
}
