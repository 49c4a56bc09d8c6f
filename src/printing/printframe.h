#pragma once

#include <QString>

#include <functional>

class PrintView;
class Surface;
struct Context;
struct Workspace;

// What the reports share: the page's orientation, font sizes that step, the fitted title
// and notes of the two landscape reports, and the copies around a report.

// Raises or lowers the font size by step; false when the printer kept the size it had, so
// that a loop over the size always ends.
bool stepFontSize(Surface& printer, double step);

// The title of a landscape report in its box at the top: from 24 points down until it is
// narrower than the box, then in the middle of the box.
void printFittedTitle(Surface& printer, const QString& title);

// The notes line under a landscape report, its top at y: from 10 points down until it fits
// the page's width, then in the middle.
void printFittedNotes(Surface& printer, const QString& notes, double y);

// The copies a report asks for are printed at most this many times.
inline constexpr int kMostCopies = 99;

// The frame of a report with copies: the status line, the window's status, the setting of
// copies repaired (a setting that reads as no number becomes "1", and stays so), then the
// copies, each after pending events, until the program is ending. More copies than kMostCopies
// print kMostCopies, after a message that names the report as `report`.
void printCopies(Workspace& ws, Context& ctx, PrintView& view, const QString& status,
                 const QString& report, QString& copies, const std::function<void()>& printCopy);
