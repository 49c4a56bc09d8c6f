#pragma once

#include <QDate>
#include <QString>

#include <vector>

// An appointment that a meeting request put, or may have put, into an attendee's calendar.
struct SentAppointment {
    QString uid;
    QString attendee;
    QDate date;
    int start = 0;  // minutes after midnight
    int end = 0;

    bool operator==(const SentAppointment&) const = default;
};

// What the meeting requests of a month have sent: the version number of the last export and
// every appointment that may stand in a calendar since.
struct RequestJournal {
    int sequence = 0;
    std::vector<SentAppointment> sent;

    bool operator==(const RequestJournal&) const = default;
};

// The journal file beside the working file: one line per appointment and one for the version,
// each beginning with its month, "2027-01", then fields separated by tabs.
QString requestJournalPath(const QString& appPath);

// The month's part of the journal; an empty journal when the file is missing or unreadable.
// Lines that cannot be read are passed over.
RequestJournal readRequestJournal(const QString& path, const QDate& month);

// Replaces the month's part of the journal and keeps the others, written whole or not at all.
bool writeRequestJournal(const QString& path, const QDate& month, const RequestJournal& journal);
