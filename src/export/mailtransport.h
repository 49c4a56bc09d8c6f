#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

// Why a message did not go: the server's reply code or the mail library's error number, and
// the server's reply or the library's words. The description never holds a password.
struct SendFailure {
    int number = 0;
    QString description;
};

// Failures that the program finds itself, before any server is asked.
inline constexpr int kBadAddress = 1001;
inline constexpr int kNoMailSession = 1002;
inline constexpr int kPlainToRemote = 1003;
inline constexpr int kOutboxUnwritable = 1004;
inline constexpr int kNoSuchDay = 1005;

// Where finished messages go, one recipient each: a mail server, or a folder of files.
class MailTransport {
public:
    virtual ~MailTransport() = default;
    // The message, in the bytes of an Internet mail message, from the sender's address to
    // the recipient's; nothing when it went.
    virtual std::optional<SendFailure> send(const QByteArray& message, const QString& from,
                                            const QString& to) = 0;
};
