#pragma once

struct Workspace;

// Fills the names of the weekdays and months and the months' days and offsets.
void modInitNameTables(Workspace& ws);

// Computes the current month's first weekday, the days of February and whether a calendar
// of the month needs a sixth row.
void modSetupMonth(Workspace& ws);
