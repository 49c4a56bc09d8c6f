#include "export/outlookexport.h"

#include "core/model/workspace.h"
#include "core/services/clock.h"
#include "core/services/context.h"
#include "core/services/log.h"
#include "export/appointments.h"
#include "export/calendarevents.h"
#include "export/exportresults.h"
#include "export/exportview.h"
#include "export/mailsession.h"
#include "export/requestjournal.h"
#include "export/shifttimes.h"

#include <QLocale>

namespace {

// The positions of the month: one for each slot of each shift of each day.
int positionsOfMonth(const Workspace& ws) {
    int total = 0;
    for (int day = 1; day <= ws.currentMonthDays(); ++day) {
        const int weekday = ws.weekdayOf(day);
        for (int shift = 1; shift <= shiftsOn(ws, weekday); ++shift) {
            total += highestSlotOf(ws, weekday, shift) + 1;
        }
    }
    return total;
}

QString monthDayAndTimes(const SentAppointment& sent) {
    const auto clock = [](int minutes) {
        return QTime(minutes / 60, minutes % 60).toString(QStringLiteral("HH:mm"));
    };
    return QLocale::c().toString(sent.date, QStringLiteral("dddd d MMMM yyyy")) +
           QStringLiteral(", ") + clock(sent.start) + QStringLiteral(" - ") + clock(sent.end);
}

class OutlookChannel {
public:
    OutlookChannel(Workspace& ws, Context& ctx, ExportView& view, MailSession& session)
        : ws_(ws),
          ctx_(ctx),
          view_(view),
          session_(session),
          times_(interpretWeeklyShifts(ws)),
          month_(ws.gCurrentYear, ws.gCurrentMonth, 1),
          journalPath_(requestJournalPath(ws.gAppPath)),
          journal_(readRequestJournal(journalPath_, month_)),
          requests_(ctx.clock.now(), month_, nextSequence(ctx.clock.now(), journal_.sequence)) {}

    void run();

private:
    void treat(int agent, int day, int weekday, int shift);
    void send(int agent, int day, int shift, const ShiftTimes& times);
    std::vector<SentAppointment> requestedAppointments() const;
    void cancelWithdrawnAppointments();

    Workspace& ws_;
    Context& ctx_;
    ExportView& view_;
    MailSession& session_;
    WeeklyShiftTimes times_;
    QDate month_;
    // What earlier exports of the month sent, and from the cancellations on what this one did.
    QString journalPath_;
    RequestJournal journal_;
    CalendarBuilder requests_;
    int done_ = 1;
    int total_ = 0;
};

void OutlookChannel::run() {
    modStatus(ws_, ctx_, QStringLiteral("Exporting the schedule to Microsoft Outlook"));
    view_.showProgressBar(QStringLiteral("Exporting the schedule to Microsoft Outlook . . ."));
    ws_.gExportResults.clear();
    total_ = positionsOfMonth(ws_);
    modMapiOpen(ws_, ctx_, session_);
    // The probe appointment readies the time zone's tables before the real work; it is
    // never sent.
    const QString firstAddress = ws_.gAgentCount >= 1 ? ws_.gAgentEmail[1] : QString();
    requests_.build(CalendarMethod::Request, {{.date = QDate(2035, 1, 1),
                                               .start = 60,
                                               .end = 120,
                                               .organizer = session_.sender(),
                                               .attendee = firstAddress}});
    ctx_.events.doEvents();
    cancelWithdrawnAppointments();
    // done counts on over all agents, so the bar is full after the first agent's pass.
    done_ = 1;
    for (int agent = 1; agent <= ws_.gAgentCount; ++agent) {
        for (int day = 1; day <= ws_.currentMonthDays(); ++day) {
            const int weekday = ws_.weekdayOf(day);
            for (int shift = 1; shift <= shiftsOn(ws_, weekday); ++shift) {
                for (int slot = 0; slot <= highestSlotOf(ws_, weekday, shift); ++slot) {
                    if (ws_.schedule(day, shift, slot) == ws_.gAgentKey[agent]) {
                        treat(agent, day, weekday, shift);
                    }
                    ++done_;
                }
            }
        }
    }
    writeRequestJournal(journalPath_, month_, journal_);
    offerResults(ctx_, ws_.gExportResults,
                 QStringLiteral("At least one agent failed to receive an Outlook appointment.  "
                                "Would you like to see the results?"));
    view_.hideProgressBar();
}

void OutlookChannel::treat(int agent, int day, int weekday, int shift) {
    if (!ctx_.events.doEvents()) {
        return;
    }
    const ShiftTimes& times = times_[weekday][shift];
    if (!times.ok) {
        const QString line = uninterpretedShiftLine(ws_, weekday, shift);
        if (addResultOnce(ws_.gExportResults, line, line)) {
            modStatus(ws_, ctx_, line);
        }
        return;
    }
    if (!ws_.gAgentEmail[agent].isEmpty()) {
        send(agent, day, shift, times);
        return;
    }
    const QString name = ws_.agentName(agent);
    if (addResultOnce(ws_.gExportResults, name,
                      QStringLiteral("Failed to create an Outlook appointment for ") + name +
                          QStringLiteral("  (No recipient name entered)"))) {
        modStatus(ws_, ctx_,
                  QStringLiteral("Failed to create Outlook appointment for ") + name +
                      QStringLiteral("  (No recipient name entered)"));
    }
}

void OutlookChannel::send(int agent, int day, int shift, const ShiftTimes& times) {
    const QString& address = ws_.gAgentEmail[agent];
    const QDate date(ws_.gCurrentYear, ws_.gCurrentMonth, day);
    std::optional<SendFailure> failure;
    if (date.isValid()) {
        CalendarEvent event = shiftEvent(ws_, {agent, date, ws_.weekdayOf(day), shift}, times);
        event.organizer = session_.sender();
        event.attendee = address;
        const QByteArray request = requests_.build(CalendarMethod::Request, {event});
        failure = session_.send(ctx_.clock.now(),
                                {address, ws_.gOutlookSubject, ws_.gOutlookBody, request});
    } else {
        // The month's own leap rule, or a year far away, gives days that no calendar has,
        // such as 29 February 2100 or any day of the year 0: they get no appointment.
        failure = SendFailure{kNoSuchDay, QStringLiteral("No calendar has the day ") +
                                              QString::number(ws_.gCurrentMonth) +
                                              QLatin1Char('/') + QString::number(day) +
                                              QLatin1Char('/') + QString::number(ws_.gCurrentYear)};
    }
    // Only an agent's first failure is told: the later ones are the same story.
    if (failure && addResultOnce(ws_.gExportResults, address,
                                 QStringLiteral("Failed to create an Outlook appointment for ") +
                                     address + failureBracket(*failure))) {
        // The place for the name stays empty in this line, as it always has.
        modStatus(ws_, ctx_,
                  QStringLiteral("Failed to create Outlook appointment for  with error ") +
                      QString::number(failure->number) + QStringLiteral(" (") +
                      failure->description + QLatin1Char(')'));
    }
    view_.showProgress(total_ > 0 ? static_cast<double>(done_) / total_ : 1.0);
}

// The appointments that this export's requests carry: each shift with a time that can be read,
// of each agent with an address.
std::vector<SentAppointment> OutlookChannel::requestedAppointments() const {
    std::vector<SentAppointment> requested;
    for (int agent = 1; agent <= ws_.gAgentCount; ++agent) {
        if (ws_.gAgentEmail[agent].isEmpty()) {
            continue;
        }
        for (const AgentShift& shift : agentShifts(ws_, agent)) {
            const ShiftTimes& times = times_[shift.weekday][shift.shift];
            if (times.ok) {
                requested.push_back({appointmentId(ws_, agent, shift.date, shift.shift),
                                     ws_.gAgentEmail[agent], shift.date, times.start, times.end});
            }
        }
    }
    return requested;
}

// Before the requests, each appointment that an earlier export of the month sent and that the
// schedule no longer holds is cancelled in its attendee's calendar. The journal first takes in
// this export's requests, so that an export cut short leaves none of them unknown; in the end
// it holds them and the appointments whose cancellation failed, to be tried again next time.
// A failed cancellation is told in the log alone: the results speak of appointments created.
void OutlookChannel::cancelWithdrawnAppointments() {
    const std::vector<SentAppointment> requested = requestedAppointments();
    const auto isRequested = [&](const SentAppointment& sent) {
        return std::any_of(requested.begin(), requested.end(),
                           [&](const SentAppointment& r) { return r.uid == sent.uid; });
    };
    std::vector<SentAppointment> withdrawn;
    std::copy_if(journal_.sent.begin(), journal_.sent.end(), std::back_inserter(withdrawn),
                 [&](const SentAppointment& sent) { return !isRequested(sent); });
    journal_.sequence = requests_.sequence();
    journal_.sent = requested;
    journal_.sent.insert(journal_.sent.end(), withdrawn.begin(), withdrawn.end());
    writeRequestJournal(journalPath_, month_, journal_);
    journal_.sent = requested;
    for (auto it = withdrawn.begin(); it != withdrawn.end(); ++it) {
        // A program that ends keeps what it did not cancel for the next export.
        if (!ctx_.events.doEvents()) {
            journal_.sent.insert(journal_.sent.end(), it, withdrawn.end());
            return;
        }
        const SentAppointment& sent = *it;
        const QByteArray cancellation =
            requests_.build(CalendarMethod::Cancel, {{.uid = sent.uid,
                                                      .date = sent.date,
                                                      .start = sent.start,
                                                      .end = sent.end,
                                                      .summary = ws_.gOutlookSubject,
                                                      .description = ws_.gOutlookBody,
                                                      .organizer = session_.sender(),
                                                      .attendee = sent.attendee}});
        const std::optional<SendFailure> failure =
            session_.send(ctx_.clock.now(),
                          {sent.attendee, QStringLiteral("Cancelled: ") + ws_.gOutlookSubject,
                           QStringLiteral("Cancelled: ") + monthDayAndTimes(sent), cancellation});
        if (failure) {
            journal_.sent.push_back(sent);
            modStatus(ws_, ctx_,
                      QStringLiteral("Failed to cancel the Outlook appointment of ") +
                          monthDayAndTimes(sent) + QStringLiteral(" for ") + sent.attendee +
                          QStringLiteral(" with error ") + QString::number(failure->number) +
                          QStringLiteral(" (") + failure->description + QLatin1Char(')'));
        }
    }
}

}  // namespace

void exportToOutlook(Workspace& ws, Context& ctx, ExportView& view, MailSession& session) {
    OutlookChannel(ws, ctx, view, session).run();
}
