#include "printing/fullcalendar.h"

#include "core/model/agentkeys.h"
#include "core/model/workspace.h"
#include "core/services/log.h"
#include "core/services/surface.h"
#include "printing/printframe.h"

#include <QStringList>

#include <algorithm>

namespace {

constexpr double kLeft = 0.25;
constexpr double kCellWidth = 10.11 / 7;
constexpr int kWhite = 0xFFFFFF;
// The lines a day's cell holds.
constexpr int kLineBudget = 8;

struct Cell {
    int col;
    int row;
    double left;
    double right;
    double top;
    double bottom;
};

Cell cellOf(const Workspace& ws, int day, double rowHeight) {
    const int place = day - 1 + ws.gFirstWeekday;
    Cell cell{place % 7, place / 7, 0, 0, 0, 0};
    cell.left = kLeft + cell.col * kCellWidth;
    cell.right = kLeft + (cell.col + 1) * kCellWidth;
    cell.top = 1.05 + cell.row * rowHeight;
    cell.bottom = cell.top + rowHeight;
    return cell;
}

double modeSize(int mode) {
    switch (mode) {
        case -1:
            return 11;
        case 2:
            return 6;
        default:
            return 9;
    }
}

// A holiday's or a noted day's text in the cell's lower right corner, its right edge at
// right.
void printCornerText(const Workspace& ws, Surface& printer, int mode, const Cell& cell,
                     double right, const QString& text) {
    printer.setFontSize(modeSize(mode));
    if (mode == 2) {
        printer.setFontName(ws.gCalendarFont);
        printer.setFontSize(modeSize(mode));
    }
    printer.setCurrentY(cell.bottom - 0.05 - printer.TextHeight(text));
    printer.setCurrentX(right - 0.09 - printer.TextWidth(text));
    printer.setFontItalic(true);
    printer.Print(text);
    printer.setFontItalic(false);
}

// The lines of names of a shift: one agent a line, or two in the small layout. A shift of
// five agents has none.
QStringList nameLines(const Workspace& ws, int day, int shift, int highestSlot, int mode) {
    QStringList names;
    for (int slot = 0; slot <= highestSlot; ++slot) {
        names.append(modGetDesiredName(ws, ws.schedule(day, shift, slot)));
    }
    if (mode != 2) {
        return names;
    }
    QStringList lines;
    for (qsizetype i = 0; i < names.size(); i += 2) {
        lines.append(i + 1 < names.size() ? names[i] + QStringLiteral(" / ") + names[i + 1]
                                          : names[i]);
    }
    return lines;
}

void printShifts(const Workspace& ws, Surface& printer, int mode, int day, const Cell& cell,
                 double rowHeight) {
    const bool hideTime = ws.gCalendarHideTimeText == QStringLiteral("1");
    // In a month before the calendar's base year the first days stand in columns left of
    // Sunday, which the weekly table has none of: they print no shifts.
    const int shifts = cell.col >= 0 ? ws.gShiftCount[cell.col] : 0;
    printer.setFontSize(modeSize(mode));
    double timeWidth = 0;
    for (int shift = 1; shift <= shifts; ++shift) {
        timeWidth = std::max(timeWidth, printer.TextWidth(ws.gShiftText[cell.col][shift]));
    }
    if (hideTime) {
        timeWidth = 0;
    }
    timeWidth += printer.TextWidth(QStringLiteral(" "));

    double offset = 0;
    printer.setFillStyle(1);
    printer.setFontTransparent(true);
    for (int shift = 1; shift <= shifts; ++shift) {
        const QString timeText = hideTime ? QString() : ws.gShiftText[cell.col][shift];
        printer.setFontSize(modeSize(mode));
        const double lineTop = 1.1 + cell.row * rowHeight + 0.0005;
        printer.setCurrentX(cell.left + 0.03 + timeWidth - printer.TextWidth(timeText));
        printer.setCurrentY(lineTop + offset);
        const int highestSlot = ws.gShiftAgents[cell.col][shift];
        if (highestSlot > 3) {
            continue;
        }
        // The spacing of modes -1 and 0 follows the size the printer made of the font.
        double step = 8.0 / 72;
        double lastStep = mode == 1 ? 10.0 / 72 : 8.0 / 72;
        if (mode <= 0) {
            step = printer.FontSize() / 72;
            lastStep = ws.gCalendarSixRows == 1 ? 7.0 / 32 : 5.0 / 16;
        }
        printer.PrintKeepingLine(timeText);
        const QStringList lines = nameLines(ws, day, shift, highestSlot, mode);
        for (qsizetype i = 0; i < lines.size(); ++i) {
            if (i > 0) {
                offset += step;
                printer.setCurrentY(lineTop + offset);
            }
            printer.setCurrentX(cell.left + 0.1 + timeWidth);
            printer.Print(lines[i]);
        }
        offset += lastStep;
    }
}

void printHead(const Workspace& ws, Surface& printer) {
    printer.Box(kLeft, 0.2, 10.36, 0.7);
    printFittedTitle(printer, ws.gCalendarTitle);
    printer.setFontSize(12);
    for (int d = 0; d < kWeekdays; ++d) {
        const QString& name = ws.gDayNames[d];
        printer.Box(kLeft + d * kCellWidth, 0.75, kLeft + (d + 1) * kCellWidth, 1.0);
        printer.setCurrentX(kLeft + (d + 0.5) * kCellWidth - printer.TextWidth(name) / 2);
        printer.setCurrentY(0.87 - printer.TextHeight(name) / 2);
        printer.Print(name);
    }
}

// The day's number in a white square in the cell's upper right corner, over whatever name
// ran under it.
void printDayNumbers(const Workspace& ws, Surface& printer, double rowHeight) {
    printer.setFillColor(kWhite);
    printer.setFillStyle(0);
    for (int day = 1; day <= ws.currentMonthDays(); ++day) {
        const Cell cell = cellOf(ws, day, rowHeight);
        const QString dayText = QString::number(day);
        printer.Box(cell.right - 0.25, cell.top, cell.right, cell.top + 0.25);
        printer.setFontName(ws.gCalendarFont);
        printer.setFontSize(12);
        printer.setCurrentX(cell.right - 0.125 - printer.TextWidth(dayText) / 2);
        printer.setCurrentY(1.045 + cell.row * rowHeight +
                            (0.25 - printer.TextHeight(dayText)) / 2);
        printer.PrintKeepingLine(dayText);
    }
}

}  // namespace

int calendarFontMode(const Workspace& ws) {
    int maxLines = 0;
    int maxShifts = 0;
    for (int w = 0; w < kWeekdays; ++w) {
        int lines = 0;
        for (int shift = 1; shift <= ws.gShiftCount[w]; ++shift) {
            lines += ws.gShiftAgents[w][shift] + 1;
        }
        maxLines = std::max(maxLines, lines);
        maxShifts = std::max(maxShifts, ws.gShiftCount[w]);
    }
    int mode = maxLines > kLineBudget ? 2 : 1;
    if (maxShifts - 1 + maxLines <= kLineBudget) {
        mode = 0;
    }
    if (maxShifts + 1 + maxLines <= kLineBudget &&
        ws.gCalendarHideTimeText == QStringLiteral("1")) {
        mode = -1;
    }
    return mode;
}

void printFullCalendarCopy(const Workspace& ws, const Context& ctx, Surface& printer) {
    modSetOrientation(printer, 2);
    printer.setScaleMode(5);
    printer.setScaleWidth(10.61);
    printer.setScaleHeight(8.159722);
    printer.setFontTransparent(true);
    printer.setFillColor(kWhite);
    printer.setFillStyle(0);
    printer.setFontBold(false);
    printer.setFontItalic(false);
    const int mode = calendarFontMode(ws);
    if (mode == 2) {
        modStatus(ws, ctx,
                  QStringLiteral("Using fontsize 6 for full calendar due to configuration"));
    }
    const double rowHeight = ws.gCalendarSixRows == 1 ? 6.75 / 6 : 6.75 / 5;
    printer.setFontSize(12);
    printer.setFontName(ws.gCalendarFont);

    printHead(ws, printer);
    for (int day = 1; day <= ws.currentMonthDays(); ++day) {
        const Cell cell = cellOf(ws, day, rowHeight);
        printer.Box(cell.left, cell.top, cell.right, cell.bottom);
        printer.setFontName(ws.gCalendarFont);
        printer.setFontSize(12);
        printer.setFontBold(false);
        if (ws.gHoliday[day] == 1) {
            printCornerText(ws, printer, mode, cell, cell.right, ws.gHolidayName[day]);
            continue;
        }
        // A noted day's text ends a little left of where a holiday's does.
        if (ws.gNoted[day] == 1) {
            printCornerText(ws, printer, mode, cell, 0.235 + (cell.col + 1) * kCellWidth,
                            ws.gNotedText[day]);
        }
        printShifts(ws, printer, mode, day, cell, rowHeight);
    }
    printFittedNotes(printer, ws.gCalendarNotes, 7.865);
    printDayNumbers(ws, printer, rowHeight);
    printer.setFillColor(kWhite);
    printer.setFillStyle(1);
    printer.EndDoc();
}
