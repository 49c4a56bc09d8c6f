#include "cli/exportverb.h"

#include "cli/session.h"
#include "core/services/mailaccounts.h"
#include "export/calendarfiles.h"
#include "export/exportcommand.h"
#include "export/exportview.h"
#include "export/mailsession.h"
#include "export/preflight.h"
#include "export/smtptransport.h"
#include "shell/filecommands.h"

#include <QDir>
#include <QFile>

namespace {

// Writes each message into a folder, made when missing, as NNNN.eml in sending order: the
// very bytes a mail server would have been given.
class OutboxTransport final : public MailTransport {
public:
    explicit OutboxTransport(QString folder) : folder_(std::move(folder)) {}

    std::optional<SendFailure> send(const QByteArray& message, const QString&,
                                    const QString&) override {
        const QString name = QStringLiteral("%1.eml").arg(++count_, 4, 10, QLatin1Char('0'));
        QFile file(QDir(folder_).filePath(name));
        if (!QDir().mkpath(folder_) || !file.open(QIODevice::WriteOnly) ||
            file.write(message) != message.size() || !file.flush()) {
            return SendFailure{kOutboxUnwritable,
                               file.fileName() + QStringLiteral(" cannot be written")};
        }
        return std::nullopt;
    }

private:
    QString folder_;
    int count_ = 0;
};

struct ExportOptions {
    QString in;
    std::optional<QString> csv;
    std::optional<QString> outbox;
    std::optional<QString> ics;
    bool email = false;
    bool calendar = false;
};

std::optional<ExportOptions> exportOptions(const QStringList& args) {
    ExportOptions options;
    for (qsizetype i = 1; i < args.size(); ++i) {
        const QString& arg = args[i];
        const bool hasValue = i + 1 < args.size();
        if (arg == QStringLiteral("--email")) {
            options.email = true;
        } else if (arg == QStringLiteral("--calendar")) {
            options.calendar = true;
        } else if (arg == QStringLiteral("--csv") && hasValue) {
            options.csv = args[++i];
        } else if (arg == QStringLiteral("--outbox") && hasValue) {
            options.outbox = args[++i];
        } else if (arg == QStringLiteral("--ics") && hasValue) {
            options.ics = args[++i];
        } else if (arg.startsWith(QStringLiteral("--")) || !options.in.isEmpty()) {
            return std::nullopt;
        } else {
            options.in = arg;
        }
    }
    if (options.in.isEmpty()) {
        return std::nullopt;
    }
    return options;
}

}  // namespace

std::optional<int> exportSchedule(const QStringList& args, QTextStream& err, const Launch& launch) {
    const std::optional<ExportOptions> options = exportOptions(args);
    if (!options) {
        return std::nullopt;
    }
    if (!readable(options->in)) {
        return fail(err, options->in, QStringLiteral("cannot be read"));
    }
    Session session(err, options->in, launch);
    if (!openSchedule(session.ws, session.ctx, options->in)) {
        return 1;
    }
    // The mail account as the program finds it at its start.
    readMailFacts(session.ctx.env, launch.mailConfig);
    Workspace& ws = session.ws;
    ws.chkPrint[kEmailBox] = options->email ? 1 : 0;
    ws.chkPrint[kOutlookBox] = options->calendar ? 1 : 0;
    ws.chkPrint[kCreatorBox] = options->csv ? 1 : 0;
    session.dialogs.savedFile = options->csv;
    const std::optional<QString> outbox = options->outbox;
    MailSession mail([outbox](const MailAccount& account,
                              const QString& password) -> std::unique_ptr<MailTransport> {
        if (outbox) {
            return std::make_unique<OutboxTransport>(*outbox);
        }
        return std::make_unique<SmtpTransport>(account, password);
    });
    HeadlessExportView view;
    cmdExport(ws, session.ctx, view, mail);
    if (!options->ics) {
        return 0;
    }
    // The calendar files as File > Save calendars as iCalendar files... writes them.
    QDir().mkpath(*options->ics);
    const QStringList failed = saveCalendarFiles(ws, session.clock.now(), *options->ics);
    for (const QString& name : failed) {
        fail(err, QDir(*options->ics).filePath(name), QStringLiteral("cannot be written"));
    }
    return failed.isEmpty() ? 0 : 1;
}
