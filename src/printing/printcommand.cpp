#include "printing/printcommand.h"

#include "core/model/leaveempty.h"
#include "core/model/workspace.h"
#include "core/services/context.h"
#include "core/services/log.h"
#include "core/services/printers.h"
#include "core/services/surface.h"
#include "persistence/scheduleformat.h"
#include "persistence/workspacefile.h"
#include "printing/dailyshifts.h"
#include "printing/fullcalendar.h"
#include "printing/officegrid.h"
#include "printing/printframe.h"
#include "printing/printview.h"
#include "printing/tearsheet.h"

namespace {

void printFullCalendar(Workspace& ws, Context& ctx, PrintView& view, Surface& printer) {
    ctx.printers->setDocumentTitle(documentTitle(ws, QStringLiteral("Full calendar")));
    printCopies(ws, ctx, view, QStringLiteral("Printing the full calendar"),
                QStringLiteral("full calendar"), ws.gCalendarCopies,
                [&] { printFullCalendarCopy(ws, ctx, printer); });
    printer.EndDoc();
}

void printOfficeGrid(Workspace& ws, Context& ctx, PrintView& view, Surface& printer) {
    ctx.printers->setDocumentTitle(documentTitle(ws, QStringLiteral("Office grid")));
    printCopies(ws, ctx, view, QStringLiteral("Printing the office grid"),
                QStringLiteral("office grid"), ws.gGridCopies,
                [&] { printOfficeGridCopy(ws, printer); });
    printer.setFillStyle(1);
}

void printTearsheetReport(Workspace& ws, Context& ctx, PrintView& view, Surface& printer) {
    ctx.printers->setDocumentTitle(documentTitle(ws, QStringLiteral("Tearsheet")));
    view.showPrintStatus(QStringLiteral("Printing the tearsheet . . ."));
    modStatus(ws, ctx, QStringLiteral("Printing the tearsheet"));
    printTearsheet(ws, printer);
}

}  // namespace

QString documentTitle(const Workspace& ws, const QString& report) {
    return ws.currentMonthAndYear() + QLatin1Char(' ') + report;
}

void printSchedule(Workspace& ws, Context& ctx, PrintView& view) {
    modSaveWorkspace(ws, ctx, QString());
    if (ws.chkPrint[0] != 1 && ws.chkPrint[1] != 1 && ws.chkPrint[2] != 1) {
        return;
    }
    modStatus(ws, ctx, QStringLiteral("Printing the schedule for ") + ws.currentMonthName());
    view.beginPrinting(QStringLiteral("Printing the schedule . . ."));
    ws.gExportResults.clear();
    blankLeaveEmptyCells(ws);
    // Without a printer every report is passed over, as a printer that fails each call is.
    // Each report comes after pending events, and none once the program is ending.
    if (ctx.printers != nullptr) {
        Surface& printer = ctx.printers->printer();
        const int savedOrientation = printer.Orientation();
        if (ctx.events.doEvents() && ws.chkPrint[0] == 1) {
            printFullCalendar(ws, ctx, view, printer);
        }
        if (ctx.events.doEvents() && ws.chkPrint[1] == 1) {
            printOfficeGrid(ws, ctx, view, printer);
        }
        if (ctx.events.doEvents() && ws.chkPrint[2] == 1) {
            printTearsheetReport(ws, ctx, view, printer);
        }
        printer.EndDoc();
        modSetOrientation(printer, savedOrientation);
    }
    restoreLeaveEmptyCells(ws);
    view.endPrinting();
}

void printShiftTable(const Workspace& ws, Context& ctx) {
    if (ctx.printers != nullptr) {
        ctx.printers->setDocumentTitle(documentTitle(ws, QStringLiteral("Daily shifts")));
        printDailyShifts(ws, ctx, ctx.printers->printer());
    }
}

bool printConstraintLists(const Workspace& ws, Context& ctx, const ConstraintLists& lists) {
    if (ctx.printers == nullptr) {
        return true;
    }
    ctx.printers->setDocumentTitle(documentTitle(ws, QStringLiteral("Constraints")));
    return printConstraints(ws, ctx, ctx.printers->printer(), lists);
}

QString lightOneOutput(Workspace& ws, int position) {
    takePrinterFormat(ws);
    const QString kept = ws.gPrinterFormat;
    ws.gPrinterFormat = QStringLiteral("000000");
    if (position >= 1 && position <= 6) {
        ws.gPrinterFormat[position - 1] = QLatin1Char('1');
    }
    showPrinterFormat(ws);
    return kept;
}

void restoreOutputs(Workspace& ws, const QString& format) {
    ws.gPrinterFormat = format;
    showPrinterFormat(ws);
}
