#include "export/mailsession.h"

#include "core/services/clock.h"
#include "core/services/context.h"
#include "core/services/log.h"
#include "export/exportresults.h"
#include "export/mimemessage.h"

#include <QCoreApplication>
#include <QRandomGenerator>
#include <QSysInfo>

namespace {

// The address of an account's "from", which may also be written as "Name <address>"; else
// the user's login at this machine, as mail tools make it.
QString senderOf(const MailAccount& account) {
    const QString from = account.from.trimmed();
    const qsizetype open = from.lastIndexOf(QLatin1Char('<'));
    if (open >= 0 && from.endsWith(QLatin1Char('>'))) {
        return from.mid(open + 1, from.size() - open - 2).trimmed();
    }
    if (!from.isEmpty()) {
        return from;
    }
    const QString login = qEnvironmentVariable("USER", QStringLiteral("desko"));
    return login + QLatin1Char('@') + QSysInfo::machineHostName();
}

}  // namespace

MailSession::MailSession(TransportMaker makeTransport) : makeTransport_(std::move(makeTransport)) {
    closedReason_ = QStringLiteral("No mail account is open");
}

bool MailSession::open(const QString& configPath, const QString& accountName) {
    const std::optional<MailAccount> account = mailAccountNamed(configPath, accountName);
    if (!account) {
        closedReason_ = QStringLiteral("The mail account \"") + accountName +
                        QStringLiteral("\" could not be read from ") + configPath;
        return false;
    }
    if (!password_) {
        password_ = accountPassword(*account);
    }
    if (!password_->password) {
        closedReason_ = password_->missing;
        return false;
    }
    transport_ = makeTransport_(*account, *password_->password);
    sender_ = senderOf(*account);
    return true;
}

std::optional<SendFailure> MailSession::send(const QDateTime& now, const AgentMail& mail) {
    if (!isOpen()) {
        return SendFailure{kNoMailSession, closedReason_};
    }
    if (!isPlainAddress(mail.to)) {
        return SendFailure{kBadAddress, QStringLiteral("Not a usable e-mail address")};
    }
    ++sent_;
    // Unique across runs and machines: the time, the process, the count and chance.
    const QString messageId =
        QStringLiteral("%1.%2.%3.%4@%5")
            .arg(now.toMSecsSinceEpoch())
            .arg(QCoreApplication::applicationPid())
            .arg(sent_)
            .arg(QRandomGenerator::global()->generate(), 8, 16, QLatin1Char('0'))
            .arg(sender_.section(QLatin1Char('@'), -1));
    const QByteArray message =
        composeMail({sender_, mail.to, mail.subject, now, messageId, mail.text, mail.calendar});
    return transport_->send(message, sender_, mail.to);
}

bool modMapiOpen(const Workspace& ws, Context& ctx, MailSession& session) {
    if (!session.isOpen()) {
        modStatus(ws, ctx, QStringLiteral("Opening MAPI session using default profile"));
        if (!session.open(ctx.launch.mailConfig, ctx.env.gMapiProfile)) {
            session.open(ctx.launch.mailConfig, ctx.env.gMapiProfile);
        }
    }
    if (!session.isOpen()) {
        modStatus(ws, ctx, QStringLiteral("Unable to open MAPI session using default profile"));
        return false;
    }
    return true;
}

void modSendMail(const Workspace& ws, Context& ctx, MailSession& session, QString& results,
                 const AgentMail& mail) {
    modMapiOpen(ws, ctx, session);
    modStatus(ws, ctx, QStringLiteral("Sending MAPI message to ") + mail.to);
    const std::optional<SendFailure> failure = session.send(ctx.clock.now(), mail);
    if (!failure) {
        return;
    }
    addResult(results,
              QStringLiteral("Failed to send e-mail to ") + mail.to + failureBracket(*failure));
    modStatus(ws, ctx,
              QStringLiteral("Failed to send MAPI message to ") + mail.to +
                  QStringLiteral(" with error ") + QString::number(failure->number) +
                  QStringLiteral(" (") + failure->description + QLatin1Char(')'));
}
