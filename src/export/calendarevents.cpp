#include "export/calendarevents.h"

#include <QRegularExpression>
#include <QTimeZone>

#include <libical/ical.h>

#include <algorithm>
#include <climits>

namespace {

icaltimetype utcTime(const QDateTime& time) {
    return icaltime_from_timet_with_zone(static_cast<time_t>(time.toSecsSinceEpoch()), 0,
                                         icaltimezone_get_utc_timezone());
}

// A wall-clock time without a zone of its own.
icaltimetype floatingTime(const QDateTime& time) {
    icaltimetype result = icaltime_null_time();
    result.year = time.date().year();
    result.month = time.date().month();
    result.day = time.date().day();
    result.hour = time.time().hour();
    result.minute = time.time().minute();
    result.second = time.time().second();
    return result;
}

QByteArray mailto(const QString& address) {
    return "mailto:" + address.toUtf8();
}

icaltimetype dateOnly(const QDate& date) {
    icaltimetype result = icaltime_null_date();
    result.year = date.year();
    result.month = date.month();
    result.day = date.day();
    return result;
}

icalproperty_method methodOf(CalendarMethod method) {
    switch (method) {
        case CalendarMethod::Request:
            return ICAL_METHOD_REQUEST;
        case CalendarMethod::Cancel:
            return ICAL_METHOD_CANCEL;
        case CalendarMethod::Publish:
            break;
    }
    return ICAL_METHOD_PUBLISH;
}

// One period of a zone's offset: from the wall-clock time of its onset, as the clocks
// showed it just before, it is offsetTo seconds ahead of UTC.
void addObservance(icalcomponent* zone, const QDateTime& onsetUtc, int offsetFrom, int offsetTo,
                   bool daylight, const QString& name) {
    icalcomponent* observance =
        icalcomponent_new(daylight ? ICAL_XDAYLIGHT_COMPONENT : ICAL_XSTANDARD_COMPONENT);
    icalcomponent_add_property(
        observance, icalproperty_new_dtstart(floatingTime(onsetUtc.addSecs(offsetFrom))));
    icalcomponent_add_property(observance, icalproperty_new_tzoffsetfrom(offsetFrom));
    icalcomponent_add_property(observance, icalproperty_new_tzoffsetto(offsetTo));
    if (!name.isEmpty()) {
        icalcomponent_add_property(observance, icalproperty_new_tzname(name.toUtf8().constData()));
    }
    icalcomponent_add_component(zone, observance);
}

// The zone's offsets from the one in force before the month up to a year after it.
icalcomponent* zoneDescription(const QTimeZone& zone, const QByteArray& id, const QDate& from) {
    icalcomponent* description = icalcomponent_new_vtimezone();
    icalcomponent_add_property(description, icalproperty_new_tzid(id.constData()));
    const QDateTime start(from, QTime(0, 0), Qt::UTC);
    const QTimeZone::OffsetData before = zone.previousTransition(start);
    QTimeZone::OffsetDataList changes = zone.transitions(start, start.addYears(1));
    if (before.atUtc.isValid()) {
        changes.prepend(before);
    }
    if (changes.isEmpty()) {
        const int offset = zone.offsetFromUtc(start);
        addObservance(description, QDateTime(QDate(1970, 1, 1), QTime(0, 0), Qt::UTC), offset,
                      offset, false, zone.abbreviation(start));
        return description;
    }
    int offset = zone.offsetFromUtc(changes.front().atUtc.addSecs(-1));
    for (const QTimeZone::OffsetData& change : changes) {
        addObservance(description, change.atUtc, offset, change.offsetFromUtc,
                      change.daylightTimeOffset != 0, change.abbreviation);
        offset = change.offsetFromUtc;
    }
    return description;
}

}  // namespace

int nextSequence(const QDateTime& now, int lastSequence) {
    const QDateTime epoch(QDate(2000, 1, 1), QTime(0, 0), Qt::UTC);
    const auto minutes =
        static_cast<int>(std::clamp<qint64>(epoch.secsTo(now) / 60, 0, INT_MAX - 1));
    return std::max(minutes, lastSequence + 1);
}

CalendarBuilder::CalendarBuilder(const QDateTime& stamp, const QDate& firstDay, int sequence)
    : stamp_(stamp.toUTC()), sequence_(sequence) {
    static const QRegularExpression plainId(QStringLiteral("^[A-Za-z0-9_+./-]+$"));
    const QTimeZone zone = QTimeZone::systemTimeZone();
    const QByteArray id = zone.id();
    if (!zone.isValid() || !firstDay.isValid() ||
        !plainId.match(QString::fromUtf8(id)).hasMatch()) {
        return;
    }
    zoneId_ = id;
    vtimezone_ = zoneDescription(zone, id, firstDay.addDays(-1));
}

CalendarBuilder::~CalendarBuilder() {
    if (vtimezone_ != nullptr) {
        icalcomponent_free(vtimezone_);
    }
}

icalcomponent* CalendarBuilder::event(CalendarMethod method,
                                      const CalendarEvent& appointment) const {
    const auto timeProperty = [&](icalproperty* (*make)(icaltimetype), int minutes) {
        const QDateTime local(appointment.date, QTime(minutes / 60, minutes % 60));
        if (vtimezone_ == nullptr) {
            return make(utcTime(local));
        }
        icalproperty* property = make(floatingTime(local));
        icalproperty_add_parameter(property, icalparameter_new_tzid(zoneId_.constData()));
        return property;
    };
    icalcomponent* event = icalcomponent_vanew(
        ICAL_VEVENT_COMPONENT, icalproperty_new_uid(appointment.uid.toUtf8().constData()),
        icalproperty_new_dtstamp(utcTime(stamp_)), icalproperty_new_sequence(sequence_), nullptr);
    if (!appointment.organizer.isEmpty()) {
        icalcomponent_add_property(
            event, icalproperty_new_organizer(mailto(appointment.organizer).constData()));
    }
    if (!appointment.attendee.isEmpty()) {
        icalproperty* attendee =
            icalproperty_vanew_attendee(mailto(appointment.attendee).constData(),
                                        icalparameter_new_role(ICAL_ROLE_REQPARTICIPANT),
                                        icalparameter_new_partstat(ICAL_PARTSTAT_NEEDSACTION),
                                        icalparameter_new_rsvp(ICAL_RSVP_FALSE), nullptr);
        if (!appointment.attendeeName.isEmpty()) {
            icalproperty_add_parameter(
                attendee, icalparameter_new_cn(appointment.attendeeName.toUtf8().constData()));
        }
        icalcomponent_add_property(event, attendee);
    }
    if (appointment.allDay) {
        icalcomponent_add_property(event, icalproperty_new_dtstart(dateOnly(appointment.date)));
        icalcomponent_add_property(event,
                                   icalproperty_new_dtend(dateOnly(appointment.date.addDays(1))));
    } else {
        icalcomponent_add_property(event,
                                   timeProperty(icalproperty_new_dtstart, appointment.start));
        icalcomponent_add_property(event, timeProperty(icalproperty_new_dtend, appointment.end));
    }
    icalcomponent_add_property(event,
                               icalproperty_new_summary(appointment.summary.toUtf8().constData()));
    if (!appointment.description.isEmpty()) {
        icalcomponent_add_property(
            event, icalproperty_new_description(appointment.description.toUtf8().constData()));
    }
    if (method == CalendarMethod::Cancel) {
        icalcomponent_add_property(event, icalproperty_new_status(ICAL_STATUS_CANCELLED));
    }
    return event;
}

QByteArray CalendarBuilder::build(CalendarMethod method,
                                  const std::vector<CalendarEvent>& events) const {
    icalcomponent* calendar = icalcomponent_vanew(
        ICAL_VCALENDAR_COMPONENT, icalproperty_new_prodid("-//Desko//Desko 4.0//EN"),
        icalproperty_new_version("2.0"), icalproperty_new_method(methodOf(method)), nullptr);
    if (vtimezone_ != nullptr) {
        icalcomponent_add_component(calendar, icalcomponent_new_clone(vtimezone_));
    }
    for (const CalendarEvent& appointment : events) {
        icalcomponent_add_component(calendar, event(method, appointment));
    }
    char* text = icalcomponent_as_ical_string_r(calendar);
    const QByteArray result(text);
    icalmemory_free_buffer(text);
    icalcomponent_free(calendar);
    return result;
}
