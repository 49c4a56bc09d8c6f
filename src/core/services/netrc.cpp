#include "core/services/netrc.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

namespace {

struct Entry {
    std::optional<QString> machine;
    std::optional<QString> login;
    std::optional<QString> password;
};

// The blanks that part words, those of the C locale: a no-break space or another blank of
// Unicode is part of a word, as in the bytes msmtp reads.
bool isBlank(QChar c) {
    return c == QLatin1Char(' ') || c == QLatin1Char('\t') || c == QLatin1Char('\v') ||
           c == QLatin1Char('\f');
}

// The words of a line up to a comment; a quote runs to the same quote and may hold blanks.
QStringList wordsOf(const QString& line) {
    QStringList words;
    qsizetype at = 0;
    while (at < line.size()) {
        while (at < line.size() && isBlank(line[at])) {
            ++at;
        }
        if (at == line.size() || line[at] == QLatin1Char('#')) {
            break;
        }
        QString word;
        QChar quote;
        for (; at < line.size() && (!quote.isNull() || !isBlank(line[at])); ++at) {
            if (!quote.isNull() && line[at] == quote) {
                quote = QChar();
            } else if (quote.isNull() &&
                       (line[at] == QLatin1Char('"') || line[at] == QLatin1Char('\''))) {
                quote = line[at];
            } else {
                word += line[at];
            }
        }
        words.append(word);
    }
    return words;
}

}  // namespace

std::optional<QString> netrcPassword(const QString& text, const QString& machine,
                                     const QString& login) {
    static const QRegularExpression lineBreak(QStringLiteral("\r\n|\r|\n"));
    std::vector<Entry> entries;
    std::optional<Entry> current;
    const auto finish = [&] {
        if (current && current->login) {
            entries.push_back(*current);
        }
        current = Entry{};
    };
    // The keyword whose value the next word is; it carries over a line's end.
    QString expecting;
    bool inMacro = false;
    for (const QString& line : text.split(lineBreak)) {
        if (std::all_of(line.begin(), line.end(), isBlank)) {
            inMacro = false;
            continue;
        }
        if (inMacro) {
            continue;
        }
        for (const QString& word : wordsOf(line)) {
            if (expecting == QStringLiteral("machine")) {
                finish();
                current->machine = word;
            } else if (expecting == QStringLiteral("login") && current) {
                current->login = word;
            } else if (expecting == QStringLiteral("password") && current) {
                current->password = word;
            }
            if (!expecting.isEmpty()) {
                expecting.clear();
                continue;
            }
            if (word == QStringLiteral("default")) {
                finish();
            } else if (word == QStringLiteral("machine") || word == QStringLiteral("account")) {
                expecting = word;
            } else if (word == QStringLiteral("login") || word == QStringLiteral("user")) {
                expecting = QStringLiteral("login");
            } else if (word == QStringLiteral("password") || word == QStringLiteral("passwd")) {
                expecting = QStringLiteral("password");
            } else if (word == QStringLiteral("macdef")) {
                // The macro's name and its lines up to the next empty line are passed over.
                inMacro = true;
                break;
            }
        }
    }
    finish();
    for (const Entry& entry : entries) {
        if (entry.machine == machine && entry.login == login) {
            return entry.password;
        }
    }
    return std::nullopt;
}
