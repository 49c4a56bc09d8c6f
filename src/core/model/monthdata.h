#pragma once

#include <QString>

struct Workspace;

// "<month name> <year> Desko Schedule", the default of every title.
QString monthTitle(const Workspace& ws);

// Gives the month's four titles and the mail's body their texts for the current month.
void modDefaultTexts(Workspace& ws);

// Prepares the day editors after a schedule was read or generated: an empty calendar or
// grid title becomes the month's title.
void modFillDayEditorCombos(Workspace& ws);

// Drops what belongs to one month: vacations, holidays, noted days, the schedule, and the
// five texts named after the month. Restrictions, the weekly table and the agents stay.
void eraseMonthData(Workspace& ws);
