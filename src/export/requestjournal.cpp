#include "export/requestjournal.h"

#include "core/services/textfile.h"

#include <QRegularExpression>
#include <QStringList>

namespace {

const QChar kTab(QLatin1Char('\t'));

QString monthKey(const QDate& month) {
    return month.toString(QStringLiteral("yyyy-MM"));
}

QString clock(int minutes) {
    return QStringLiteral("%1:%2")
        .arg(minutes / 60, 2, 10, QLatin1Char('0'))
        .arg(minutes % 60, 2, 10, QLatin1Char('0'));
}

// "09:30" in minutes after midnight; -1 for anything else.
int minutesOf(const QString& text) {
    const QTime time = QTime::fromString(text, QStringLiteral("HH:mm"));
    return time.isValid() ? time.hour() * 60 + time.minute() : -1;
}

QStringList linesOf(const QString& path) {
    static const QRegularExpression lineBreak(QStringLiteral("\r\n|\r|\n"));
    return readTextFile(path).value_or(QString()).split(lineBreak, Qt::SkipEmptyParts);
}

}  // namespace

QString requestJournalPath(const QString& appPath) {
    return appPath + QStringLiteral("/Desko40.requests");
}

RequestJournal readRequestJournal(const QString& path, const QDate& month) {
    RequestJournal journal;
    const QString key = monthKey(month);
    for (const QString& line : linesOf(path)) {
        const QStringList fields = line.split(kTab);
        if (fields.front() != key) {
            continue;
        }
        if (fields.size() == 3 && fields[1] == QStringLiteral("sequence")) {
            journal.sequence = std::max(journal.sequence, fields[2].toInt());
            continue;
        }
        if (fields.size() != 6) {
            continue;
        }
        SentAppointment sent{fields[1], fields[2],
                             QDate::fromString(fields[3], QStringLiteral("yyyy-MM-dd")),
                             minutesOf(fields[4]), minutesOf(fields[5])};
        if (!sent.uid.isEmpty() && !sent.attendee.isEmpty() && sent.date.isValid() &&
            sent.start >= 0 && sent.end >= 0) {
            journal.sent.push_back(sent);
        }
    }
    return journal;
}

bool writeRequestJournal(const QString& path, const QDate& month, const RequestJournal& journal) {
    const QString key = monthKey(month);
    QString text;
    for (const QString& line : linesOf(path)) {
        if (line.section(kTab, 0, 0) != key) {
            text += line + QStringLiteral("\r\n");
        }
    }
    text += key + kTab + QStringLiteral("sequence") + kTab + QString::number(journal.sequence) +
            QStringLiteral("\r\n");
    for (const SentAppointment& sent : journal.sent) {
        text += QStringList{key,
                            sent.uid,
                            sent.attendee,
                            sent.date.toString(QStringLiteral("yyyy-MM-dd")),
                            clock(sent.start),
                            clock(sent.end)}
                    .join(kTab) +
                QStringLiteral("\r\n");
    }
    return writeTextFile(path, text);
}
