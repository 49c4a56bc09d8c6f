#pragma once

#include <QString>

#include <array>

struct Context;
struct Workspace;

// The rules of the review of the month and of its single-day editor.

// What a click on a holiday says: "January 1 is New Year's Day."
QString holidayMessage(const Workspace& ws, int day);

// The review's agent list chose item listIndex: the engine of the engine list runs again
// with the agent after that item first. The schedule is not erased first; the run writes
// over every position, changes by hand included.
void rerunFromAgent(Workspace& ws, Context& ctx, int engine, int listIndex);

// The word for a shift of a day, 1 to 6: "First shift" to "Sixth shift".
QString shiftWord(int shift);

// The day editor's frame of a shift: "First shift: " and the shift's time text.
QString shiftFrameCaption(const Workspace& ws, int weekday, int shift);

inline constexpr int kDayEditorShifts = 6;
inline constexpr int kDayEditorSlots = 4;
// The texts the day editor's lists show, [shift - 1][slot].
using DayLists = std::array<std::array<QString, kDayEditorSlots>, kDayEditorShifts>;

// The day editor's OK: every shift of the day takes what its lists show, whatever the day's
// weekday has; an unused shift's lists show nothing, so its cells become empty. The slots
// walked are those the table gives the shift, up to the four lists.
void storeDay(Workspace& ws, int day, const DayLists& lists);
