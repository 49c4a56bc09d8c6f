#pragma once

#include <QString>
#include <QStringList>

class ExportView;
struct Context;
struct Workspace;

// The Calendar Creator file: rows of eight comma-separated fields, never quoted, each ended by
// CR LF. First each agent's shifts by date, shift and slot: "3/1/2000,9:00,11:30,Adams,1,Desko
// schedule ,,", the name followed by as many blanks as the agent has rows before it, so that
// no two of an agent's rows read the same to the calendar program. Then the holidays and the
// noted days by date: "3/17/2000,0:00,0:00,Saint Patrick,1,Holiday,," and ",1,Noted day,,".
struct CalendarCreatorFile {
    QString text;
    // A line for each weekly shift whose time cannot be read, in the order first met, unless
    // an earlier line holds it, case ignored; its rows are left out.
    QStringList failures;
};
CalendarCreatorFile calendarCreatorFile(const Workspace& ws);

// The Calendar Creator channel: writes the file over any file of that name, logs each shift
// left out as first met, and at the end offers to show them. A file that cannot be written
// is not reported.
void exportToCalendarCreator(Workspace& ws, Context& ctx, ExportView& view, const QString& path);
