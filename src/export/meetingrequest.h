#pragma once

#include <QByteArray>
#include <QDate>
#include <QDateTime>
#include <QString>

typedef struct icalcomponent_impl icalcomponent;

// One appointment for one attendee.
struct MeetingRequest {
    QString uid;  // the same for the same appointment, so that a later request updates it
    QString organizer;
    QString attendee;
    QDate date;
    int start = 0;  // minutes after midnight
    int end = 0;
    QString summary;
    QString description;
};

// The meeting requests of one export in iCalendar (RFC 5545, 5546): METHOD:REQUEST and one
// event, organised by the sender, with one required attendee of whom no answer is asked. The
// times are this machine's local times, and each request carries the local time zone's
// offsets from before the month to a year after it. A zone whose name cannot stand in a
// calendar has its times sent in UTC.
class MeetingRequestBuilder {
public:
    // stamp: when the export runs, which also numbers this version of each appointment, so
    // that a later export's requests replace an earlier one's.
    MeetingRequestBuilder(const QDateTime& stamp, const QDate& firstDay);
    ~MeetingRequestBuilder();
    MeetingRequestBuilder(const MeetingRequestBuilder&) = delete;
    MeetingRequestBuilder& operator=(const MeetingRequestBuilder&) = delete;

    QByteArray build(const MeetingRequest& request) const;

private:
    QDateTime stamp_;
    QByteArray zoneId_;
    icalcomponent* vtimezone_ = nullptr;  // the zone's offsets; none when times go in UTC
};
