#pragma once

#include <QString>

struct Workspace;

// "Leave empty" in a schedule cell is the user's choice that a slot stays unfilled. While the
// month is printed or exported such a cell holds ten blanks instead, which match no agent
// and print as nothing.
QString leaveEmptyText();
QString blankedCellText();

// The working days' cells (holidays are passed over) of every shift and slot of the weekly
// table that hold "Leave empty" get ten blanks.
void blankLeaveEmptyCells(Workspace& ws);

// Every day's cells of ten blanks, holidays included, get "Leave empty" back, also those
// that held ten blanks before the blanking.
void restoreLeaveEmptyCells(Workspace& ws);
