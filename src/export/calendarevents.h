#pragma once

#include <QByteArray>
#include <QDate>
#include <QDateTime>
#include <QString>

#include <vector>

typedef struct icalcomponent_impl icalcomponent;

// One appointment of one agent, as a calendar event.
struct CalendarEvent {
    QString uid{};  // the same for the same appointment, so that a later version replaces it
    QDate date{};
    bool allDay = false;
    int start = 0;  // minutes after midnight, unless all day
    int end = 0;
    QString summary{};
    QString description{};
    QString organizer{};     // an address; empty: none
    QString attendee{};      // an address; empty: none
    QString attendeeName{};  // how the attendee is called; empty: not said
};

// What a calendar asks of the program that reads it (RFC 5546): a meeting request, the
// cancellation of one, or events to take in as they stand.
enum class CalendarMethod { Request, Cancel, Publish };

// The calendars of one export in iCalendar (RFC 5545). A request or a cancellation holds one
// event organised by the sender, with one required attendee of whom no answer is asked; a
// cancelled event says so. Times are this machine's local times, and each calendar carries the
// local time zone's offsets from before the month to a year after it. A zone whose name cannot
// stand in a calendar has its times sent in UTC.
class CalendarBuilder {
public:
    // stamp: when the export runs; sequence: the version of every event it builds, higher than
    // any earlier export's, so that what it sends replaces what went before.
    CalendarBuilder(const QDateTime& stamp, const QDate& firstDay, int sequence);
    ~CalendarBuilder();
    CalendarBuilder(const CalendarBuilder&) = delete;
    CalendarBuilder& operator=(const CalendarBuilder&) = delete;

    QByteArray build(CalendarMethod method, const std::vector<CalendarEvent>& events) const;
    int sequence() const { return sequence_; }

private:
    icalcomponent* event(CalendarMethod method, const CalendarEvent& appointment) const;

    QDateTime stamp_;
    int sequence_ = 0;
    QByteArray zoneId_;
    icalcomponent* vtimezone_ = nullptr;  // the zone's offsets; none when times go in UTC
};

// The version number of an export at that time: the minutes since 2000, as exports have
// always numbered their requests, or one more than the last export's where that is higher.
int nextSequence(const QDateTime& now, int lastSequence);
