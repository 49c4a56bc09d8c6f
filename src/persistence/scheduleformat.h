#pragma once

#include "persistence/profileapi.h"

#include "core/model/workspace.h"

#include <QString>

#include <array>
#include <span>
#include <vector>

class ProfileFile;
struct Workspace;

// The one text format of the working file and of schedule files, between the Workspace and
// text. Nothing here touches a file: the callers read and write them.

enum class FileKind {
    Working,   // the working file: no version test, no schedule, the month left as it is
    Schedule,  // a schedule file: this version's only, with its schedule and its own month
};

// The whole text of a file of the kind. Recomputes the four summary flags, which only rows
// within the month's days set, and gPrinterFormat from the print boxes.
QString scheduleFileText(Workspace& ws, FileKind kind);

// The rows of [Vacations] as a file holds them, agent and day: each vacation day within the
// month, agent by agent.
std::vector<std::array<int, 2>> vacationRows(const Workspace& ws);
// The rows of [Restrictions], agent, weekday and shift: each restriction, agent by agent.
std::vector<std::array<int, 3>> restrictionRows(const Workspace& ws);

// A section of a file that holds more rows than reading takes, since their key names do not
// all fit the reader's buffer.
struct RowsNotRead {
    QString section;
    int held;
    int read;
};
// The sections of the file, of those read by their key names, whose rows were not all read.
std::vector<RowsNotRead> rowsNotRead(const Workspace& ws, const ProfileFile& file);

// What reading leaves to its caller.
struct ReadResult {
    // A schedule file of another version: nothing of the Workspace has changed.
    bool refused = false;
    // The [Titles] defaults that were missing and were filled in, under the keys they are
    // written back with.
    ProfileValues defaults;
};

// Reads a file's sections into the Workspace, as the format has always been read: rows by
// running number or by key name, rows of the wrong field count and indices out of range
// skipped, a month that is no month left as it was.
ReadResult readScheduleFile(Workspace& ws, const ProfileFile& file, FileKind kind);

// gPrinterFormat from the six print boxes, one digit each.
void takePrinterFormat(Workspace& ws);
// The print boxes take the digits of gPrinterFormat; a digit that no box can show leaves its
// box as it was.
void showPrinterFormat(Workspace& ws);
// A [Titles] key and the field it holds.
struct TitleField {
    QString key;
    QString Workspace::*field;
};
// The [Titles] keys in the order the file holds them.
extern const std::array<TitleField, 16> kTitleFields;

// Gives the missing fonts, copies and display settings their defaults, and returns them
// under the keys they are written back with.
ProfileValues applyTitleDefaults(Workspace& ws);

// Puts an engine or a printer format that is none back to its default, and shows both in
// the engine list and the print boxes. A digit that no box can show leaves its box as it was.
void applySettings(Workspace& ws);

// The engine that a saved text names: the number it begins with, 0 when none.
int engineNumber(const QString& text);

// Marks the days that the rows name, each a day's number and its text, in flags and texts,
// and returns 1, or 0 when there are no rows. A day beyond either table is passed over there.
int markDays(const ProfileValues& rows, std::span<int> flags, DayTexts& texts);

// Makes the month saved in the file, gSavedMonth and gSavedYear, the current month and
// computes its calendar. A saved value that is no month or year leaves the current one.
void takeSavedMonth(Workspace& ws);

// A text as the file gives it back after it was written as a value: a line break ends it,
// blanks around it go, as does one pair of surrounding quotes, and it is cut to the value
// buffer. Storing a text in this form makes it survive a save and a read unchanged.
QString storedText(const QString& text);

// The longest text a field of a row may hold, leaving the row's other fields room in the
// value buffer.
inline constexpr int kLongestField = 1000;

// Whether a text without blanks around it can be a field of a row and come back whole: it
// holds no "|", which separates the fields, no line break, and no more than kLongestField
// characters.
bool fitsInAField(const QString& text);
