#include "printing/tearsheet.h"

#include "core/model/numbers.h"
#include "core/model/workspace.h"
#include "core/services/surface.h"
#include "printing/printframe.h"

#include <QHash>

#include <algorithm>
#include <cmath>

namespace {

constexpr double kPageWidth = 8;
constexpr double kPageHeight = 10.5;

// The widest a duty line can be: a two-digit day of any weekday, with any shift's time.
double widestDutyLine(const Workspace& ws, Surface& printer) {
    double widest = 0;
    for (int w = 0; w < kWeekdays; ++w) {
        for (int shift = 0; shift <= ws.gShiftCount[w]; ++shift) {
            const QString sample = ws.currentMonthName() + QStringLiteral("  33  (") +
                                   ws.gDayNames[w] + QStringLiteral(")   ") +
                                   ws.gShiftText[w][shift];
            widest = std::max(widest, printer.TextWidth(sample));
        }
    }
    return widest;
}

// The most duties any agent has this month, holidays counted.
int mostDuties(const Workspace& ws) {
    QHash<QString, int> duties;
    for (int day = 1; day <= ws.currentMonthDays(); ++day) {
        const int w = ws.weekdayOf(day);
        for (int shift = 0; shift <= ws.gShiftCount[w]; ++shift) {
            for (int slot = 0; slot <= ws.gShiftAgents[w][shift]; ++slot) {
                ++duties[ws.schedule(day, shift, slot)];
            }
        }
    }
    int most = 0;
    for (int agent = 1; agent <= ws.gAgentCount; ++agent) {
        most = std::max(most, duties.value(ws.gAgentKey[agent], 0));
    }
    return most;
}

// How many slips of that size fit the length of the page. A slip larger than the page
// still gets a page of its own.
int slipsAcross(double page, double slip) {
    const double fit = std::floor(page / slip);
    return fit >= 1 ? static_cast<int>(std::min(fit, 1000.0)) : 1;
}

struct SlipGrid {
    double lineWidth;
    double slipHeight;
    int rows;
    int cols;
    double cellWidth;
    double cellHeight;
    double insetX;
    double insetY;
    double dateWidth;
    double dayWidth;
};

SlipGrid slipGrid(const Workspace& ws, Surface& printer) {
    SlipGrid grid{};
    grid.lineWidth = widestDutyLine(ws, printer) + 4 * printer.TextWidth(QStringLiteral("   "));
    grid.slipHeight =
        printer.TextHeight(QStringLiteral("M\n").repeated(mostDuties(ws)) + QStringLiteral("\n\n"));
    grid.rows = slipsAcross(kPageHeight, grid.slipHeight);
    grid.cols = slipsAcross(kPageWidth, grid.lineWidth);
    grid.cellHeight = kPageHeight / grid.rows;
    grid.cellWidth = kPageWidth / grid.cols;
    grid.insetX = std::max(0.0, (grid.cellWidth - grid.lineWidth) / 2);
    grid.insetY = std::max(0.0, (grid.cellHeight - grid.slipHeight) / 2);
    grid.dateWidth = printer.TextWidth(ws.currentMonthName() + QStringLiteral("  33 "));
    grid.dayWidth = printer.TextWidth(QStringLiteral("  (Wednesday)   "));
    return grid;
}

void printSlip(const Workspace& ws, Surface& printer, const SlipGrid& grid, int agent, double x,
               double y) {
    printer.setCurrentX(x);
    printer.setCurrentY(y);
    printer.setFontBold(true);
    printer.Print(ws.gAgentLast[agent] + QStringLiteral(", ") + ws.gAgentFirst[agent]);
    printer.setFontBold(false);
    for (int day = 1; day <= ws.currentMonthDays(); ++day) {
        const int w = ws.weekdayOf(day);
        for (int shift = 1; shift <= ws.gShiftCount[w]; ++shift) {
            for (int slot = 0; slot <= ws.gShiftAgents[w][shift]; ++slot) {
                if (ws.schedule(day, shift, slot) != ws.gAgentKey[agent]) {
                    continue;
                }
                printer.setCurrentX(x);
                printer.PrintKeepingLine(ws.currentMonthName() + QLatin1Char(' ') +
                                         QString::number(day));
                printer.setCurrentX(x + grid.dateWidth);
                printer.PrintKeepingLine(QStringLiteral("  (") + ws.gDayNames[w] +
                                         QStringLiteral(")  "));
                printer.setCurrentX(x + grid.dateWidth + grid.dayWidth);
                printer.Print(ws.gShiftText[w][shift]);
            }
        }
    }
}

}  // namespace

void printTearsheet(Workspace& ws, Surface& printer) {
    if (ws.gTearsheetFontsize.isEmpty() || ws.gTearsheetFontsize == QStringLiteral("0")) {
        ws.gTearsheetFontsize = QStringLiteral("8");
    }
    printer.setFontBold(false);
    printer.setFontItalic(false);
    modSetOrientation(printer, 1);
    printer.setScaleHeight(10.58681);
    printer.setScaleWidth(8.159722);
    const double size = leadingNumber(ws.gTearsheetFontsize);
    printer.setFontSize(size);
    printer.setFontName(ws.gTearsheetFont);
    printer.setFontSize(size);
    const SlipGrid grid = slipGrid(ws, printer);

    int agent = 0;
    while (agent < ws.gAgentCount) {
        for (int col = 0; col < grid.cols && agent < ws.gAgentCount; ++col) {
            for (int row = 0; row < grid.rows && agent < ws.gAgentCount; ++row) {
                ++agent;
                printSlip(ws, printer, grid, agent, col * grid.cellWidth + grid.insetX,
                          0.2 + row * grid.cellHeight + grid.insetY);
            }
        }
        if (agent < ws.gAgentCount) {
            printer.EndDoc();
        }
    }
    printer.EndDoc();
}
