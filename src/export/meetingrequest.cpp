#include "export/meetingrequest.h"

#include <QRegularExpression>
#include <QTimeZone>

#include <libical/ical.h>

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

// The version of an appointment: the minutes since 2000 at the export, so that each later
// export numbers its requests higher.
int sequenceOf(const QDateTime& stamp) {
    const QDateTime epoch(QDate(2000, 1, 1), QTime(0, 0), Qt::UTC);
    return static_cast<int>(std::max<qint64>(0, epoch.secsTo(stamp) / 60));
}

QByteArray mailto(const QString& address) {
    return "mailto:" + address.toUtf8();
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

MeetingRequestBuilder::MeetingRequestBuilder(const QDateTime& stamp, const QDate& firstDay)
    : stamp_(stamp.toUTC()) {
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

MeetingRequestBuilder::~MeetingRequestBuilder() {
    if (vtimezone_ != nullptr) {
        icalcomponent_free(vtimezone_);
    }
}

QByteArray MeetingRequestBuilder::build(const MeetingRequest& request) const {
    const auto timeProperty = [&](icalproperty* (*make)(icaltimetype), int minutes) {
        const QDateTime local(request.date, QTime(minutes / 60, minutes % 60));
        if (vtimezone_ == nullptr) {
            return make(utcTime(local));
        }
        icalproperty* property = make(floatingTime(local));
        icalproperty_add_parameter(property, icalparameter_new_tzid(zoneId_.constData()));
        return property;
    };
    icalcomponent* event = icalcomponent_vanew(
        ICAL_VEVENT_COMPONENT, icalproperty_new_uid(request.uid.toUtf8().constData()),
        icalproperty_new_dtstamp(utcTime(stamp_)), icalproperty_new_sequence(sequenceOf(stamp_)),
        icalproperty_new_organizer(mailto(request.organizer).constData()),
        icalproperty_vanew_attendee(mailto(request.attendee).constData(),
                                    icalparameter_new_role(ICAL_ROLE_REQPARTICIPANT),
                                    icalparameter_new_partstat(ICAL_PARTSTAT_NEEDSACTION),
                                    icalparameter_new_rsvp(ICAL_RSVP_FALSE), nullptr),
        timeProperty(icalproperty_new_dtstart, request.start),
        timeProperty(icalproperty_new_dtend, request.end),
        icalproperty_new_summary(request.summary.toUtf8().constData()), nullptr);
    if (!request.description.isEmpty()) {
        icalcomponent_add_property(
            event, icalproperty_new_description(request.description.toUtf8().constData()));
    }
    icalcomponent* calendar = icalcomponent_vanew(
        ICAL_VCALENDAR_COMPONENT, icalproperty_new_prodid("-//Desko//Desko 4.0//EN"),
        icalproperty_new_version("2.0"), icalproperty_new_method(ICAL_METHOD_REQUEST), nullptr);
    if (vtimezone_ != nullptr) {
        icalcomponent_add_component(calendar, icalcomponent_new_clone(vtimezone_));
    }
    icalcomponent_add_component(calendar, event);
    char* text = icalcomponent_as_ical_string_r(calendar);
    const QByteArray result(text);
    icalmemory_free_buffer(text);
    icalcomponent_free(calendar);
    return result;
}
