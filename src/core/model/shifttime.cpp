#include "core/model/shifttime.h"

#include <QRegularExpression>
#include <QStringList>

#include <optional>
#include <utility>

namespace {}  // namespace

// Strict on purpose: it must not vary with the user's locale.
std::optional<int> minutesOfDay(const QString& time) {
    static const QRegularExpression pattern(QRegularExpression::anchoredPattern(
        QStringLiteral("([0-9]{1,2})(?::([0-9]{1,2})(?::([0-9]{1,2}))?)? ([AP]M)")));
    const QRegularExpressionMatch match = pattern.match(time);
    if (!match.hasMatch()) {
        return std::nullopt;
    }
    // Minutes and seconds that were left out read as 0.
    const int hour = match.captured(1).toInt();
    const int minute = match.captured(2).toInt();
    const int second = match.captured(3).toInt();
    if (hour < 1 || hour > 12 || minute > 59 || second > 59) {
        return std::nullopt;
    }
    const bool pm = match.captured(4) == QLatin1String("PM");
    return (hour % 12 + (pm ? 12 : 0)) * 60 + minute;
}

namespace {

// "hh:mm AM" for a time of day; any other text comes through as it is, so that the length
// and difference checks reject it later.
QString formatTime(const QString& candidate) {
    const std::optional<int> minutes = minutesOfDay(candidate);
    if (!minutes) {
        return candidate;
    }
    const int hour = *minutes / 60;
    return QStringLiteral("%1:%2 %3")
        .arg(hour % 12 == 0 ? 12 : hour % 12, 2, 10, QLatin1Char('0'))
        .arg(*minutes % 60, 2, 10, QLatin1Char('0'))
        .arg(hour < 12 ? QLatin1String("AM") : QLatin1String("PM"));
}

// Takes the next time off the front of the filtered text: everything before the first AM or
// PM, with that marker. `rest` keeps what follows the marker. False when no marker is left.
bool takeTime(QString& rest, QString& time) {
    const qsizetype am = rest.indexOf(QLatin1String("AM"));
    const qsizetype pm = rest.indexOf(QLatin1String("PM"));
    if (am < 0 && pm < 0) {
        return false;
    }
    const bool isPm = am < 0 || (pm >= 0 && pm < am);
    const qsizetype at = isPm ? pm : am;
    time = formatTime(rest.left(at) + (isPm ? QLatin1String(" PM") : QLatin1String(" AM")));
    rest = rest.mid(at + 2);
    return true;
}

struct WordReplacement {
    QLatin1String word;
    QLatin1String time;
    int removed;
};

// Only the first occurrence of each word is replaced. The "12:00" forms remove one character
// fewer than the word, leaving its last letter behind; that letter can still complete a later
// word (12:00NOONOON gives two noons), and these counts are how shift texts have always read.
const WordReplacement kWordReplacements[] = {
    {QLatin1String("12:00NOON"), QLatin1String("12:00PM"), 8},
    {QLatin1String("12NOON"), QLatin1String("12:00PM"), 6},
    {QLatin1String("NOON"), QLatin1String("12:00PM"), 4},
    {QLatin1String("12:00MIDNIGHT"), QLatin1String("12:00AM"), 12},
    {QLatin1String("12MIDNIGHT"), QLatin1String("12:00AM"), 10},
    {QLatin1String("MIDNIGHT"), QLatin1String("12:00AM"), 8},
};

// Only digits, the marker letters and ':' carry a time; everything else goes without a trace,
// so "9AM-5PM" becomes 9AM5PM and the markers alone divide the times.
bool carriesTime(QChar c) {
    const char16_t u = c.unicode();
    return (u >= u'0' && u <= u'9') || u == u'A' || u == u'M' || u == u'P' || u == u':';
}

}  // namespace

bool modInterpretShiftTime(QString text, QString& start, QString& end) {
    start.clear();
    end.clear();

    QString work = std::move(text).toUpper();
    if (work.isEmpty()) {
        return false;
    }
    for (const WordReplacement& r : kWordReplacements) {
        const qsizetype at = work.indexOf(r.word);
        if (at >= 0) {
            work = work.left(at) + r.time + work.mid(at + r.removed);
        }
    }
    QString rest;
    for (const QChar c : work) {
        if (carriesTime(c)) {
            rest += c;
        }
    }

    QString first;
    QString second;
    if (!takeTime(rest, first) || !takeTime(rest, second)) {
        return false;
    }
    if (first.size() > 8 || second.size() > 8) {
        return false;
    }
    // Both times are of the same day, so a shift over midnight cannot be read.
    const std::optional<int> from = minutesOfDay(first);
    const std::optional<int> to = minutesOfDay(second);
    if (!from || !to || *to - *from <= 0) {
        return false;
    }
    start = first;
    end = second;
    return true;
}

QString modOrdinalWord(int& n) {
    static const QStringList words = {
        QString(),
        QStringLiteral("first"),
        QStringLiteral("second"),
        QStringLiteral("third"),
        QStringLiteral("fourth"),
        QStringLiteral("fifth"),
        QStringLiteral("sixth"),
        QStringLiteral("seventh"),
        QStringLiteral("eighth"),
        QStringLiteral("ninth"),
    };
    // Keeps the sign, so a negative number reduces to a negative digit with no word.
    n %= 10;
    return n > 0 ? words.at(n) : QString();
}
