#pragma once

#include "core/services/mailaccounts.h"
#include "export/mailtransport.h"

#include <QByteArray>

#include <array>
#include <optional>

// Sends through the account's mail server with libcurl's SMTP: one connection for all the
// messages of a transport's life, opened with the first and used again for each next one
// (a connection the server closed is opened afresh), TLS from the start or by STARTTLS as
// the account says, and without TLS only to a server on this machine. A server that cannot
// be reached, refuses the login or stays silent past the time-out fails each later message
// at once with the same failure, so that an export to a dead server does not wait for every
// agent in turn.
class SmtpTransport final : public MailTransport {
public:
    // How long a server may stay silent when the account does not say.
    static constexpr int kDefaultTimeoutSeconds = 20;

    SmtpTransport(const MailAccount& account, QString password);
    ~SmtpTransport() override;
    SmtpTransport(const SmtpTransport&) = delete;
    SmtpTransport& operator=(const SmtpTransport&) = delete;

    std::optional<SendFailure> send(const QByteArray& message, const QString& from,
                                    const QString& to) override;

private:
    std::optional<SendFailure> failureOf(int code);

    void* curl_;  // the one libcurl handle, which keeps the connection between messages
    QString password_;
    QByteArray refusal_;              // the server's refusal of the message in hand, if any
    std::array<char, 256> errors_{};  // libcurl's words for its own failures
    std::optional<SendFailure> unreachable_;
};
