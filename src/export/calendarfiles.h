#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <vector>

struct Workspace;

// A calendar file and the name it is saved under.
struct CalendarFile {
    QString name;
    QByteArray text;
};

// The month's calendars to import into any calendar program, without a mail account: one per
// agent, "Brennan, Patrick.ics" (a character that a file name cannot hold becomes "_"), with
// the agent's shifts as the meeting requests carry them, and "Office.ics" with every agent's
// shifts, each titled with the agent's name and the shift's time and naming its attendee. Each
// publishes its events in the local time zone with the same identities and a version as high
// as the meeting requests' last, so that importing one after a request updates the appointment.
// A shift whose time cannot be read is an event of the whole day.
std::vector<CalendarFile> calendarFiles(const Workspace& ws, const QDateTime& now);

// Writes the month's calendars into the folder, each over any file of its name; the names of
// the files that could not be written.
QStringList saveCalendarFiles(const Workspace& ws, const QDateTime& now, const QString& folder);

struct Context;

// File > Save calendars as iCalendar files...: asks for a folder, the program's directory
// first, and writes the month's calendars there; files that cannot be written are named in a
// box. The schedule does not change.
void saveCalendarsAsIcs(const Workspace& ws, Context& ctx);
