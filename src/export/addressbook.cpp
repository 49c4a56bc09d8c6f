#include "export/addressbook.h"

#include "core/services/textfile.h"

#include <QDir>
#include <QFileInfo>
#include <QStringList>

namespace {

// An address book file beyond this size is no address book.
constexpr qint64 kLargestFile = 16 * 1024 * 1024;

// Splits at the separator where it is not escaped by a backslash.
QStringList splitUnescaped(const QString& text, QChar separator) {
    QStringList parts(1);
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == QLatin1Char('\\') && i + 1 < text.size()) {
            parts.last() += text.mid(i, 2);
            ++i;
        } else if (text[i] == separator) {
            parts.append(QString());
        } else {
            parts.last() += text[i];
        }
    }
    return parts;
}

QString unescaped(const QString& value) {
    QString text;
    for (qsizetype i = 0; i < value.size(); ++i) {
        if (value[i] == QLatin1Char('\\') && i + 1 < value.size()) {
            ++i;
            text += value[i] == QLatin1Char('n') || value[i] == QLatin1Char('N')
                        ? QChar(QLatin1Char('\n'))
                        : value[i];
        } else {
            text += value[i];
        }
    }
    return text.trimmed();
}

// The lines of the text with folded lines joined: a line that begins with a blank or a tab
// continues the one before.
QStringList unfoldedLines(const QString& text) {
    QStringList lines;
    for (const QString& line : textLines(text)) {
        if (!lines.isEmpty() &&
            (line.startsWith(QLatin1Char(' ')) || line.startsWith(QLatin1Char('\t')))) {
            lines.last() += line.mid(1);
        } else {
            lines.append(line);
        }
    }
    return lines;
}

bool sameText(const QString& a, const QString& b) {
    return !a.isEmpty() && a.compare(b, Qt::CaseInsensitive) == 0;
}

}  // namespace

std::vector<AddressEntry> parseVCards(const QString& text) {
    std::vector<AddressEntry> entries;
    AddressEntry card;
    QStringList addresses;
    for (const QString& line : unfoldedLines(text)) {
        const qsizetype colon = line.indexOf(QLatin1Char(':'));
        if (colon < 0) {
            continue;
        }
        // "item1.EMAIL;TYPE=work" names the property EMAIL.
        QString name = line.left(colon).section(QLatin1Char(';'), 0, 0).toUpper();
        name = name.section(QLatin1Char('.'), -1);
        const QString value = line.mid(colon + 1);
        if (name == QLatin1String("BEGIN")) {
            card = {};
            addresses.clear();
        } else if (name == QLatin1String("FN")) {
            card.fullName = unescaped(value);
        } else if (name == QLatin1String("N")) {
            const QStringList parts = splitUnescaped(value, QLatin1Char(';'));
            card.familyName = unescaped(parts.value(0));
            card.givenName = unescaped(parts.value(1));
        } else if (name == QLatin1String("EMAIL")) {
            addresses.append(unescaped(value));
        } else if (name == QLatin1String("END")) {
            for (const QString& address : addresses) {
                if (!address.isEmpty()) {
                    entries.push_back({card.fullName, card.familyName, card.givenName, address});
                }
            }
            addresses.clear();
        }
    }
    return entries;
}

std::vector<AddressEntry> readAddressBook(const QString& folder) {
    std::vector<AddressEntry> book;
    if (folder.isEmpty()) {
        return book;
    }
    const QFileInfoList files = QDir(folder).entryInfoList(
        {QStringLiteral("*.vcf")}, QDir::Files | QDir::Readable, QDir::Name | QDir::IgnoreCase);
    for (const QFileInfo& file : files) {
        if (file.size() > kLargestFile) {
            continue;
        }
        const std::vector<AddressEntry> entries =
            parseVCards(readTextFile(file.filePath()).value_or(QString()));
        book.insert(book.end(), entries.begin(), entries.end());
    }
    return book;
}

std::vector<AddressEntry> matchingEntries(const std::vector<AddressEntry>& book,
                                          const QString& text) {
    const QString wanted = text.trimmed();
    std::vector<AddressEntry> found;
    for (const AddressEntry& entry : book) {
        const QString givenAndFamily =
            (entry.givenName + QLatin1Char(' ') + entry.familyName).trimmed();
        const bool matches = sameText(entry.fullName, wanted) || sameText(givenAndFamily, wanted) ||
                             sameText(entry.familyName, wanted) || sameText(entry.address, wanted);
        const bool known = std::any_of(found.begin(), found.end(), [&](const AddressEntry& f) {
            return sameText(f.address, entry.address);
        });
        if (matches && !known) {
            found.push_back(entry);
        }
    }
    return found;
}
