#include "printing/constraintsreport.h"

#include "core/model/workspace.h"
#include "core/services/log.h"
#include "core/services/surface.h"
#include "printing/printframe.h"

#include <algorithm>

namespace {

const char* const kHeadings[4] = {"Vacation Days", "Shift Restrictions", "Holidays", "Noted Days"};
// The order in which the lists are measured; they are printed in their own order.
constexpr int kMeasuringOrder[4] = {2, 0, 3, 1};

// The lines the lists take: a heading, the lines, a blank line after each list, and one at
// the end.
int linesTaken(const ConstraintLists& lists) {
    int count = 0;
    for (const int k : kMeasuringOrder) {
        if (!lists[k].isEmpty()) {
            count += 1 + static_cast<int>(lists[k].size()) + 1;
        }
    }
    return count + 1;
}

// Prints a line at the left margin; the widest line printed so far grows to its width.
void printLine(Surface& printer, const QString& text, double& widest) {
    printer.setCurrentX(1.0);
    printer.Print(text);
    widest = std::max(widest, printer.TextWidth(text));
}

// Prints every list that has lines; the widest text printed, 0 when none was.
double printLists(Surface& printer, const ConstraintLists& lists) {
    printer.setCurrentX(1.0);
    printer.setCurrentY(1.2);
    double widest = 0;
    for (int k = 0; k < 4; ++k) {
        if (lists[k].isEmpty()) {
            continue;
        }
        printer.setFontBold(true);
        printLine(printer, QString::fromLatin1(kHeadings[k]), widest);
        printer.setFontBold(false);
        for (const QString& line : lists[k]) {
            printLine(printer, line, widest);
        }
        // The blank line that parts this list from the next.
        printLine(printer, QString(), widest);
    }
    printer.Print(QString());
    return widest;
}

}  // namespace

bool printConstraints(const Workspace& ws, const Context& ctx, Surface& printer,
                      const ConstraintLists& lists) {
    modStatus(ws, ctx, QStringLiteral("Printing all constraints"));
    const int savedOrientation = printer.Orientation();
    modSetOrientation(printer, 1);
    printer.setScaleHeight(10.58681);
    printer.setScaleWidth(8.159722);
    printer.setFontSize(12);
    printer.setFontName(ws.gCalendarFont);
    printer.setFontSize(12);
    printer.setFillStyle(1);
    printer.setFontBold(false);
    printer.setFontItalic(false);

    const int lines = linesTaken(lists);
    while (lines * printer.TextHeight(QStringLiteral("M")) > 10 && stepFontSize(printer, -1)) {
    }
    const double widest = printLists(printer, lists);
    if (widest == 0) {
        return false;
    }

    const double bottom = printer.CurrentY();
    const QString title = ws.currentMonthAndYear();
    printer.Box(0.8, 1.0, widest + 1.2, bottom - printer.TextHeight(title));
    // The title grows to the lists' width, or to 36 points if it reaches that size on its
    // way; from above 36 only the width stops it.
    printer.setFontBold(true);
    while (printer.FontSize() != 36 && stepFontSize(printer, 1) &&
           printer.TextWidth(title) < widest) {
    }
    const double height = printer.TextHeight(title);
    printer.Box(0.8, 0.82 - height, widest + 1.2, 0.95);
    printer.setCurrentX((2 + widest - printer.TextWidth(title)) / 2);
    printer.setCurrentY(0.885 - height);
    printer.Print(title);
    printer.EndDoc();
    modSetOrientation(printer, savedOrientation);
    return true;
}
