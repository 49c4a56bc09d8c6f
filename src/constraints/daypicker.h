#pragma once

#include "core/model/workspace.h"

#include <QString>

#include <array>

struct Context;

// The rules of the month day picker, which serves three purposes by gDayPickerMode: the
// month's holidays (0), one agent's vacation days (1) and the month's noted days (2). While
// it is open the picks live in its cells; the workspace takes them on OK, and the vacation
// days of an agent also when the picker turns to another agent.

inline constexpr int kPickHolidays = 0;
inline constexpr int kPickVacations = 1;
inline constexpr int kPickNotedDays = 2;

// The days picked, by day of the month.
using PickedDays = std::array<bool, kMonthDaySlots>;

// The log line of the picker's opening, and the caption of its month.
QString dayPickerOpenLine(const Workspace& ws);
QString dayPickerCaption(const Workspace& ws);

// The days the picker opens with, from the table of its mode.
PickedDays pickedDays(const Workspace& ws);

// The name the input box proposes for the day gEditDay: the last of the rules of the mode's
// table that the date matches, else "Office Holiday" for a holiday and nothing for a note.
QString proposedDayName(const Workspace& ws);

// Asks for the name of the holiday or the note of gEditDay and stores it, in the form the
// file gives back; false when the user gave none.
bool modNameDay(Workspace& ws, Context& ctx);

// A click on a day that is picked or not: whether it is picked afterwards. A holiday or a
// noted day is picked only when it gets a name; a vacation day flips.
bool clickPickerDay(Workspace& ws, Context& ctx, int day, bool picked);

// The picker's OK: the picks become the mode's table, and the working file is written. False,
// with nothing changed, when the file could not keep that many vacation days; the user has
// been told.
bool savePickedDays(Workspace& ws, Context& ctx, const PickedDays& picks);

// The picker turns to the agent of the list index: the picks so far are the previous agent's
// and are saved at once. False when it is the agent on show, or none, or when the file could
// not keep the picks, which the user has been told.
bool switchVacationAgent(Workspace& ws, Context& ctx, int listIndex, const PickedDays& picks);
