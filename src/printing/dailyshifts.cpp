#include "printing/dailyshifts.h"

#include "core/model/workspace.h"
#include "core/services/log.h"
#include "core/services/surface.h"
#include "printing/printframe.h"

#include <algorithm>

namespace {

constexpr int kWednesday = 3;
// Where each weekday's heading stands; its shifts stand 0.2 further right.
constexpr double kHeadingX[kWeekdays] = {1.1, 2.6, 4.1, 5.6, 1.1, 2.6, 4.1};

// A weekday's column from its heading down; where the column ends. The Wednesday column
// widens the box to its right edge.
double printColumn(const Workspace& ws, Surface& printer, int w, double top, double& rightEdge) {
    const bool measures = w == kWednesday;
    printer.setCurrentX(kHeadingX[w]);
    printer.setCurrentY(top);
    printer.setFontBold(true);
    const QString heading = ws.gDayNames[w] + QStringLiteral(" Shifts");
    if (measures) {
        printer.PrintKeepingLine(heading);
        rightEdge = std::max(rightEdge, printer.CurrentX());
        printer.Print(QString());
    } else {
        printer.Print(heading);
    }
    printer.setFontBold(false);
    for (int shift = 1; shift <= ws.gShiftCount[w]; ++shift) {
        printer.setCurrentX(kHeadingX[w] + 0.2);
        printer.PrintKeepingLine(ws.gShiftText[w][shift]);
        if (ws.gShiftAgents[w][shift] > 0) {
            printer.PrintKeepingLine(QStringLiteral(" (x") +
                                     QString::number(ws.gShiftAgents[w][shift] + 1) +
                                     QLatin1Char(')'));
        }
        if (measures) {
            rightEdge = std::max(rightEdge, printer.CurrentX());
        }
        printer.Print(QString());
    }
    return printer.CurrentY();
}

// The title grows from 9 points while it is narrower than the box; the first size too wide
// stays, so the title may reach one step past it.
void printTitle(const Workspace& ws, Surface& printer, double rightEdge) {
    const QString title = ws.currentMonthAndYear() + QStringLiteral(" Desko Time");
    printer.setFontBold(true);
    printer.setFontSize(8);
    while (printer.FontSize() <= 21 && stepFontSize(printer, 1) &&
           printer.TextWidth(title) < rightEdge - 1) {
    }
    const double height = printer.TextHeight(title);
    printer.Box(0.8, 0.8 - height, rightEdge + 0.3, 0.95);
    printer.setCurrentX((1.1 + rightEdge - printer.TextWidth(title)) / 2);
    printer.setCurrentY(((0.8 - height) + 0.95) / 2 - height / 2);
    printer.Print(title);
}

}  // namespace

void printDailyShifts(const Workspace& ws, const Context& ctx, Surface& printer) {
    modStatus(ws, ctx, QStringLiteral("Printing daily shifts and times"));
    const int savedOrientation = printer.Orientation();
    modSetOrientation(printer, 1);
    printer.setScaleWidth(8.159722);
    printer.setScaleHeight(10.58681);
    printer.setFontSize(12);
    printer.setFontBold(false);
    printer.setFontItalic(false);
    printer.setFontName(ws.gCalendarFont);
    printer.setFontSize(12);

    double rightEdge = 0;
    double firstRowBottom = 0;
    for (int w = 0; w <= kWednesday; ++w) {
        firstRowBottom = std::max(firstRowBottom, printColumn(ws, printer, w, 1.2, rightEdge));
    }
    const double secondRowTop = firstRowBottom + 0.2;
    double secondRowBottom = 0;
    for (int w = kWednesday + 1; w < kWeekdays; ++w) {
        secondRowBottom =
            std::max(secondRowBottom, printColumn(ws, printer, w, secondRowTop, rightEdge));
    }
    printer.Box(0.8, 1.0, rightEdge + 0.3, secondRowBottom + 0.2);
    printTitle(ws, printer, rightEdge);
    printer.EndDoc();
    modSetOrientation(printer, savedOrientation);
}
