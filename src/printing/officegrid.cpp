#include "printing/officegrid.h"

#include "core/model/workspace.h"
#include "core/services/surface.h"
#include "printing/printframe.h"

#include <QHash>

#include <algorithm>
#include <cmath>

namespace {

constexpr double kLeft = 0.25;
constexpr double kRight = 10.35;
constexpr double kTop = 1.0;
constexpr double kBottom = 7.8;
constexpr int kGrey = 128 + 256 * 128 + 65536 * 128;

// A loop in floating point from `from` to `to` by `step`, as counted loops run: none when
// the step leads away from the end, and none for a step of 0, which would never end.
template <typename Body>
void forEachStep(double from, double to, double step, Body body) {
    if (!(step > 0 || step < 0)) {
        return;
    }
    for (double x = from; step > 0 ? x <= to : x >= to; x += step) {
        body(x);
    }
}

// The agent each schedule cell names; where keys repeat, the last agent with the key.
QHash<QString, int> agentsByKey(const Workspace& ws) {
    QHash<QString, int> agents;
    for (int agent = 1; agent <= ws.gAgentCount; ++agent) {
        agents.insert(ws.gAgentKey[agent], agent);
    }
    return agents;
}

// Each day's agents on duty, in grey. A slot that names no agent ends its day's shading:
// the agents after it on that day stay white.
void shadeDuties(const Workspace& ws, Surface& printer, double nameWidth, double dayWidth,
                 double rowHeight) {
    const QHash<QString, int> agents = agentsByKey(ws);
    for (int day = 1; day <= ws.currentMonthDays(); ++day) {
        if (ws.gHoliday[day] == 1) {
            continue;
        }
        const int weekday = ws.weekdayOf(day);
        bool named = true;
        for (int shift = 1; named && shift <= ws.gShiftCount[weekday]; ++shift) {
            for (int slot = 0; named && slot <= ws.gShiftAgents[weekday][shift]; ++slot) {
                const int who = agents.value(ws.schedule(day, shift, slot), 0);
                named = who != 0;
                if (named) {
                    const double x = nameWidth + (day - 1) * dayWidth;
                    const double y = 1 + rowHeight * (who - 1);
                    printer.Box(x, y, x + dayWidth, y + rowHeight);
                }
            }
        }
    }
}

void setGridFontSize(const Workspace& ws, Surface& printer) {
    printer.setFontName(ws.gGridFont);
    printer.setFontSize(gridFontSize(ws.gAgentCount));
}

}  // namespace

double gridFontSize(int agentCount) {
    return agentCount > 35 ? 300.0 / agentCount + 1.5 : 11;
}

void printOfficeGridCopy(const Workspace& ws, Surface& printer) {
    modSetOrientation(printer, 2);
    printer.setScaleWidth(10.58681);
    printer.setScaleHeight(8.159722);
    printer.setFillStyle(1);
    printer.setFontBold(false);
    printer.setFontItalic(false);
    const int days = ws.currentMonthDays();
    // Without agents there are no rows: the page keeps its outlines, title and days.
    const double rowHeight = ws.gAgentCount > 0 ? 6.8 / ws.gAgentCount : 0;

    printer.Line(kLeft, kTop, kRight, kTop);
    printer.LineTo(kRight, kBottom);
    printer.LineTo(kLeft, kBottom);
    printer.LineTo(kLeft, kTop);
    printer.Line(kLeft, 0.2, 10.36, 0.2);
    printer.LineTo(10.36, 0.7);
    printer.LineTo(kLeft, 0.7);
    printer.LineTo(kLeft, 0.2);
    printer.setFontName(ws.gGridFont);
    printFittedTitle(printer, ws.gGridTitle);
    forEachStep(1 + rowHeight, kBottom, rowHeight,
                [&printer](double y) { printer.Line(kLeft, y, kRight, y); });

    setGridFontSize(ws, printer);
    double widest = 0;
    for (int agent = 1; agent <= ws.gAgentCount; ++agent) {
        widest = std::max(widest, printer.TextWidth(ws.agentName(agent)));
    }
    const double nameWidth = widest + 0.45;
    setGridFontSize(ws, printer);
    const double dayWidth = days > 0 ? (kRight - nameWidth) / days : 0;

    for (int day = 1; day <= days; ++day) {
        const QString dayText = QString::number(day);
        printer.setCurrentX(nameWidth + (day - 0.5) * dayWidth - printer.TextWidth(dayText) / 2);
        printer.setCurrentY(0.845 - printer.TextHeight(dayText) / 2);
        printer.Print(dayText);
    }
    printer.Line(nameWidth, 0.75, kRight, 0.75);
    printer.LineTo(kRight, 0.95);
    printer.LineTo(nameWidth, 0.95);
    printer.LineTo(nameWidth, 0.75);
    forEachStep(nameWidth, kRight, dayWidth, [&printer](double x) {
        printer.Line(x, kTop, x, kBottom);
        printer.Line(x, 0.75, x, 0.95);
    });

    // The name is measured first name first but printed last name first, so the right
    // edges line up only as far as the two orders are alike in width.
    for (int agent = 1; agent <= ws.gAgentCount; ++agent) {
        const QString label = ws.gAgentLast[agent] + QStringLiteral(", ") + ws.gAgentFirst[agent];
        printer.setCurrentX(
            nameWidth - 0.1 -
            printer.TextWidth(ws.gAgentFirst[agent] + QStringLiteral(", ") + ws.gAgentLast[agent]));
        printer.setCurrentY(1 + rowHeight * (agent - 0.5) -
                            printer.TextHeight(ws.agentName(agent)) / 2);
        printer.Print(label);
    }
    printer.setFillColor(kGrey);
    printer.setFillStyle(0);
    shadeDuties(ws, printer, nameWidth, dayWidth, rowHeight);
    printFittedNotes(printer, ws.gGridNotes, 7.85);
    printer.EndDoc();
}
