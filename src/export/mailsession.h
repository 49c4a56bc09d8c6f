#pragma once

#include "core/services/mailaccounts.h"
#include "core/services/mailpassword.h"
#include "export/mailtransport.h"

#include <QDateTime>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

struct Context;
struct Workspace;

// What a session sends through: made once the account is open, from the account and its
// password.
using TransportMaker =
    std::function<std::unique_ptr<MailTransport>(const MailAccount&, const QString& password)>;

// A message of the export to one agent: the text, and a calendar request beside it or not.
struct AgentMail {
    QString to;
    QString subject;
    QString text;
    QByteArray calendar;
};

// The user's mail account, open for one export: its sender address and one transport for
// every message of the export, so that one connection to the server carries them all.
class MailSession {
public:
    explicit MailSession(TransportMaker makeTransport);

    bool isOpen() const { return transport_ != nullptr; }
    // Opens the account of that name in the mail configuration and asks for its password;
    // false, with the reason kept for the sends that follow, when there is no such account
    // or its password cannot be had. The password is asked for once in the session's life,
    // however often the opening is tried: a password command runs once, and a passphrase
    // prompt the user cancelled is not shown again.
    bool open(const QString& configPath, const QString& accountName);
    // The address the messages come from; empty while the session is closed.
    const QString& sender() const { return sender_; }

    // Sends the message at the time given; nothing when it went. An address that could end
    // the header or the server's command early is refused before anything is sent.
    std::optional<SendFailure> send(const QDateTime& now, const AgentMail& mail);

private:
    TransportMaker makeTransport_;
    std::optional<AccountPassword> password_;
    std::unique_ptr<MailTransport> transport_;
    QString sender_;
    QString closedReason_;
    int sent_ = 0;
};

// Opens the session on the account that gMapiProfile names unless it is open already,
// trying twice; true when it is open at the end. The log tells of the opening and of a
// failure.
bool modMapiOpen(const Workspace& ws, Context& ctx, MailSession& session);

// Sends one message to one address, with the subject and the text. A failure is added to the
// results and logged; nothing stops.
void modSendMail(const Workspace& ws, Context& ctx, MailSession& session, QString& results,
                 const AgentMail& mail);
