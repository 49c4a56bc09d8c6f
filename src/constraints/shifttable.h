#pragma once

#include "core/model/workspace.h"

#include <QString>

#include <array>

struct Context;

// The rules of the weekly shift table's view and its editor of one weekday.

// The caption of a weekday's frame of shifts, with its access key: "&Monday shifts".
QString weekdayShiftsCaption(int weekday);

// What the view shows of a shift: its time text, and " (xN)" for a shift of N > 1 agents.
QString shiftLabel(const Workspace& ws, int weekday, int shift);

// The table as the view found it when it opened, for its Cancel.
struct ShiftTableSnapshot {
    std::array<int, kWeekdays> gSavedShiftCount{};
    ShiftTextTable gSavedShiftText{};
    ShiftTable gSavedShiftAgents{};
};
ShiftTableSnapshot takeShiftSnapshot(const Workspace& ws);
void restoreShiftSnapshot(Workspace& ws, const ShiftTableSnapshot& snapshot);

inline constexpr int kEditorShifts = 6;

// What the editor of one weekday holds: the number of shifts chosen, and for each of the six
// shifts its time text and its highest slot (agents less one, 0 to 3).
struct DayShifts {
    int count = 0;
    std::array<QString, kEditorShifts> texts;
    std::array<int, kEditorShifts> highestSlots{};
};

// How the editor's OK ends: saved; kept open without a word; or kept open on shift `shift`
// for the user to fix, with its text selected or not.
struct DaySaveResult {
    enum class End { Saved, Kept, FixShift } end = End::Saved;
    int shift = 0;
    bool selectText = false;
};

// The editor's OK for the weekday: asks before a day without shifts, checks the shifts in
// order and stops at the first that is empty, cannot be stored or, if the user would change
// it, cannot be read as a time; then writes the chosen shifts into the table, leaving those
// above the chosen number as they were, and saves the working file. A refused save still
// counts as a change. Blanks around a time text are dropped.
DaySaveResult saveDayShifts(Workspace& ws, Context& ctx, int weekday, const DayShifts& day);
