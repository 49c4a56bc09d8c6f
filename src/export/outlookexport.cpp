#include "export/outlookexport.h"

#include "core/model/workspace.h"
#include "core/services/clock.h"
#include "core/services/context.h"
#include "core/services/log.h"
#include "export/exportresults.h"
#include "export/exportview.h"
#include "export/mailsession.h"
#include "export/meetingrequest.h"
#include "export/shifttimes.h"

#include <QCryptographicHash>

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

// The same for the same agent, date and shift, so that a second export updates the
// appointments of the first instead of doubling them. Two agents who share an address keep
// appointments of their own.
QString appointmentId(const Workspace& ws, int agent, const QDate& date, int shift) {
    const QByteArray who =
        (ws.gAgentEmail[agent].toLower() + QLatin1Char('\n') + ws.gAgentKey[agent]).toUtf8();
    return date.toString(QStringLiteral("yyyyMMdd")) + QLatin1Char('-') + QString::number(shift) +
           QLatin1Char('-') +
           QString::fromLatin1(
               QCryptographicHash::hash(who, QCryptographicHash::Sha1).toHex().left(16)) +
           QStringLiteral("@desko");
}

class OutlookChannel {
public:
    OutlookChannel(Workspace& ws, Context& ctx, ExportView& view, MailSession& session)
        : ws_(ws),
          ctx_(ctx),
          view_(view),
          session_(session),
          times_(interpretWeeklyShifts(ws)),
          requests_(ctx.clock.now(), QDate(ws.gCurrentYear, ws.gCurrentMonth, 1)) {}

    void run();

private:
    void treat(int agent, int day, int weekday, int shift);
    void send(int agent, int day, int shift, const ShiftTimes& times);

    Workspace& ws_;
    Context& ctx_;
    ExportView& view_;
    MailSession& session_;
    WeeklyShiftTimes times_;
    MeetingRequestBuilder requests_;
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
    requests_.build(
        {QString(), session_.sender(), firstAddress, QDate(2035, 1, 1), 60, 120, {}, {}});
    view_.doEvents();
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
    offerResults(ctx_, ws_.gExportResults,
                 QStringLiteral("At least one agent failed to receive an Outlook appointment.  "
                                "Would you like to see the results?"));
    view_.hideProgressBar();
}

void OutlookChannel::treat(int agent, int day, int weekday, int shift) {
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
        const QByteArray request =
            requests_.build({appointmentId(ws_, agent, date, shift), session_.sender(), address,
                             date, times.start, times.end, ws_.gOutlookSubject, ws_.gOutlookBody});
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

}  // namespace

void exportToOutlook(Workspace& ws, Context& ctx, ExportView& view, MailSession& session) {
    OutlookChannel(ws, ctx, view, session).run();
}
