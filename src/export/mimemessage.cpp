#include "export/mimemessage.h"

#include <QCryptographicHash>

#include <algorithm>

namespace {

const QByteArray kCrLf = QByteArrayLiteral("\r\n");

// Quoted-printable keeps each line of the text and breaks longer ones softly, so that no
// line of the message passes 76 characters and any byte travels through any server.
QByteArray quotedPrintable(const QString& text) {
    QString lines = text;
    lines.replace(QStringLiteral("\r\n"), QStringLiteral("\n"))
        .replace(QLatin1Char('\r'), QLatin1Char('\n'));
    static const char kHex[] = "0123456789ABCDEF";
    QByteArray out;
    for (const QByteArray& line : lines.toUtf8().split('\n')) {
        int width = 0;
        for (qsizetype i = 0; i < line.size(); ++i) {
            const auto byte = static_cast<unsigned char>(line[i]);
            const bool last = i + 1 == line.size();
            const bool literal = (byte >= 33 && byte <= 126 && byte != '=') ||
                                 ((byte == ' ' || byte == '\t') && !last);
            const int piece = literal ? 1 : 3;
            if (width + piece > 75) {
                out += '=';
                out += kCrLf;
                width = 0;
            }
            if (literal) {
                out += static_cast<char>(byte);
            } else {
                out += '=';
                out += kHex[byte >> 4];
                out += kHex[byte & 0xF];
            }
            width += piece;
        }
        out += kCrLf;
    }
    out.chop(kCrLf.size());
    return out;
}

// A header's text as it stands when it is short plain ASCII; otherwise as encoded words of
// UTF-8 in base64, each short enough for a line, one per line. A character is never split
// between two words, and no line break of the text reaches the header.
QByteArray headerText(const QString& text) {
    const bool plain = text.size() <= 900 && std::all_of(text.begin(), text.end(), [](QChar c) {
                           return c.unicode() >= 0x20 && c.unicode() < 0x7F;
                       });
    if (plain) {
        return text.toLatin1();
    }
    QByteArray out;
    QByteArray word;
    const auto flush = [&] {
        if (!out.isEmpty()) {
            out += kCrLf + ' ';
        }
        out += "=?UTF-8?B?" + word.toBase64() + "?=";
        word.clear();
    };
    for (qsizetype i = 0; i < text.size(); ++i) {
        const qsizetype length = text[i].isHighSurrogate() && i + 1 < text.size() ? 2 : 1;
        const QByteArray character = text.mid(i, length).toUtf8();
        i += length - 1;
        if (word.size() + character.size() > 45) {
            flush();
        }
        word += character;
    }
    if (!word.isEmpty() || out.isEmpty()) {
        flush();
    }
    return out;
}

QByteArray textPart(const char* type, const QString& text) {
    return QByteArray("Content-Type: ") + type + "; charset=UTF-8" + kCrLf +
           "Content-Transfer-Encoding: quoted-printable" + kCrLf + kCrLf + quotedPrintable(text);
}

}  // namespace

QByteArray composeMail(const MimeMail& mail) {
    QByteArray message = "Date: " + mail.date.toString(Qt::RFC2822Date).toLatin1() + kCrLf +
                         "Message-ID: <" + mail.messageId.toUtf8() + '>' + kCrLf +
                         "From: " + mail.from.toUtf8() + kCrLf + "To: " + mail.to.toUtf8() + kCrLf +
                         "Subject: " + headerText(mail.subject) + kCrLf + "MIME-Version: 1.0" +
                         kCrLf;
    if (mail.calendar.isEmpty()) {
        return message + textPart("text/plain", mail.text) + kCrLf;
    }
    // "=_" never stands in quoted-printable text, so the boundary cannot occur in a part.
    const QByteArray boundary =
        "=_" + QCryptographicHash::hash(mail.messageId.toUtf8(), QCryptographicHash::Sha1).toHex();
    return message + "Content-Type: multipart/alternative; boundary=\"" + boundary + '"' + kCrLf +
           kCrLf + "--" + boundary + kCrLf + textPart("text/plain", mail.text) + kCrLf + "--" +
           boundary + kCrLf +
           textPart("text/calendar; method=REQUEST", QString::fromUtf8(mail.calendar)) + kCrLf +
           "--" + boundary + "--" + kCrLf;
}

bool isPlainAddress(const QString& address) {
    static const QString kRefused = QStringLiteral("<>,;:\"()[]\\");
    const qsizetype at = address.indexOf(QLatin1Char('@'));
    if (at <= 0 || at + 1 >= address.size() || address.indexOf(QLatin1Char('@'), at + 1) >= 0) {
        return false;
    }
    return std::none_of(address.begin(), address.end(), [](QChar c) {
        return c.isSpace() || c.category() == QChar::Other_Control || kRefused.contains(c);
    });
}
