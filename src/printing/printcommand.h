#pragma once

#include "printing/constraintsreport.h"

#include <QString>

class PrintView;
struct Context;
struct Workspace;

// The print command: saves the workspace, and when at least one of the three report boxes
// is on, prints the full calendar, the office grid and the tearsheet, as the boxes say, in
// that order, on the current printer. For the time of the command the slots the user wants
// left empty hold ten blanks, which print as nothing; afterwards every slot of ten blanks
// says "Leave empty" again, and the printer has its orientation back. Once the program is
// ending, no further report or copy begins.
void printSchedule(Workspace& ws, Context& ctx, PrintView& view);

// Lights only the print or export box at position 1 to 6, as gPrinterFormat counts them,
// for a single command; gives the boxes' own format, to be put back by restoreOutputs.
QString lightOneOutput(Workspace& ws, int position);
void restoreOutputs(Workspace& ws, const QString& format);

// The weekly shift table and the lists of constraints on the current printer, their
// documents named after the report. The second is false where the report ends early, as it
// does when every list is empty.
void printShiftTable(const Workspace& ws, Context& ctx);
bool printConstraintLists(const Workspace& ws, Context& ctx, const ConstraintLists& lists);

// The name of a report's documents: the month, the year and the report.
QString documentTitle(const Workspace& ws, const QString& report);
