#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

// One message to one recipient, as the export sends it.
struct MimeMail {
    QString from;  // the sender's address
    QString to;    // the recipient's address
    QString subject;
    QDateTime date;
    QString messageId;    // without its angle brackets
    QString text;         // the plain text, in any script and with any line ends
    QByteArray calendar;  // an iCalendar request to go beside the text, or empty
};

// The message in the bytes of an Internet mail message (RFC 5322, MIME), with CR LF line
// ends: Date, Message-ID, From, To and Subject; the subject in encoded words where it is not
// plain ASCII; the text in UTF-8, quoted-printable. With a calendar request, the text and the
// request are the two alternatives of the message, the request as text/calendar with the
// method REQUEST.
QByteArray composeMail(const MimeMail& mail);

// Whether the text can stand as an address in a header and in the mail server's commands:
// one "@" with something on either side, and no blank, line break, control character, angle
// bracket, comma, semicolon, quote, bracket or backslash that could end the address or the
// line early.
bool isPlainAddress(const QString& address);
