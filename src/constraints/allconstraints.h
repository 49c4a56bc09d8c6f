#pragma once

#include <QString>
#include <QStringList>

#include <array>

struct Context;
struct Workspace;

// The rules of the view of all constraints: four lists of what the month holds, each of
// which can only be cleared as a whole; the workspace loses what an emptied list held at OK.

enum ConstraintKind { kVacationDays = 0, kShiftRestrictions = 1, kHolidays = 2, kNotedDays = 3 };

// The lines of each list. An agent's vacation days come in runs such as "March 3-5", under a
// heading with the agent's name, as do the agent's restrictions, "Monday, 9am-5pm".
QStringList vacationLines(const Workspace& ws);
QStringList restrictionLines(const Workspace& ws);
QStringList holidayLines(const Workspace& ws);
QStringList notedDayLines(const Workspace& ws);

// Clear All of a kind asks first; true when the user agreed. The workspace counts as changed
// whatever the answer.
bool clearAllAsked(Workspace& ws, Context& ctx, ConstraintKind kind);

// OK: every kind whose list is empty is erased from the workspace, and the working file is
// written.
void eraseEmptiedKinds(Workspace& ws, Context& ctx, const std::array<bool, 4>& emptied);
