#include "persistence/profilefile.h"

#include "core/services/textfile.h"

namespace {

QString folded(const QString& name) {
    return name.trimmed().toCaseFolded();
}

// A section header's name: what stands between "[" and "]", or the line's end.
bool sectionName(const QString& line, QString& name) {
    const QString trimmed = line.trimmed();
    if (!trimmed.startsWith(QLatin1Char('['))) {
        return false;
    }
    const qsizetype close = trimmed.indexOf(QLatin1Char(']'));
    name = trimmed.mid(1, close < 0 ? -1 : close - 1).trimmed();
    return true;
}

QString unquoted(const QString& value) {
    if (value.size() >= 2) {
        const QChar first = value.front();
        if ((first == QLatin1Char('"') || first == QLatin1Char('\'')) && value.back() == first) {
            return value.mid(1, value.size() - 2);
        }
    }
    return value;
}

}  // namespace

ProfileFile::ProfileFile(const QString& text, QString path)
    : path_(std::move(path)), lines_(textLines(text)) {
    index();
}

ProfileFile ProfileFile::read(const QString& path) {
    return ProfileFile(readTextFile(path).value_or(QString()), path);
}

void ProfileFile::index() {
    sections_.clear();
    firstSection_.clear();
    Section* current = nullptr;
    for (qsizetype i = 0; i < lines_.size(); ++i) {
        const QString& line = lines_[i];
        QString name;
        if (sectionName(line, name)) {
            sections_.push_back({i, {}, {}});
            const QString key = folded(name);
            if (!firstSection_.contains(key)) {
                firstSection_.insert(key, static_cast<qsizetype>(sections_.size() - 1));
            }
            current = &sections_.back();
            continue;
        }
        const qsizetype equals = line.indexOf(QLatin1Char('='));
        if (current == nullptr || equals < 0) {
            continue;
        }
        const QString key = line.left(equals).trimmed();
        if (key.isEmpty()) {
            continue;
        }
        const QString foldedKey = folded(key);
        if (!current->firstKey.contains(foldedKey)) {
            current->firstKey.insert(foldedKey, static_cast<qsizetype>(current->keys.size()));
        }
        current->keys.push_back({key, i});
    }
}

const ProfileFile::Section* ProfileFile::findSection(const QString& name) const {
    const auto it = firstSection_.constFind(folded(name));
    return it == firstSection_.constEnd() ? nullptr : &sections_[*it];
}

const ProfileFile::Key* ProfileFile::findKey(const Section& section, const QString& name) const {
    const auto it = section.firstKey.constFind(folded(name));
    return it == section.firstKey.constEnd() ? nullptr : &section.keys[*it];
}

QStringList ProfileFile::keyNames(const QString& section) const {
    QStringList names;
    if (const Section* found = findSection(section)) {
        names.reserve(static_cast<qsizetype>(found->keys.size()));
        for (const Key& key : found->keys) {
            names.append(key.name);
        }
    }
    return names;
}

QString ProfileFile::value(const QString& section, const QString& key) const {
    const Section* found = findSection(section);
    const Key* entry = found ? findKey(*found, key) : nullptr;
    if (entry == nullptr) {
        return QString();
    }
    const QString& line = lines_[entry->line];
    return unquoted(line.mid(line.indexOf(QLatin1Char('=')) + 1).trimmed());
}

void ProfileFile::setValue(const QString& section, const QString& key, const QString& value) {
    const QString line = key + QLatin1Char('=') + value;
    const Section* found = findSection(section);
    if (found == nullptr) {
        // A file that ends with a line break keeps it after the new section.
        const bool endsWithBreak = !lines_.isEmpty() && lines_.back().isEmpty();
        const qsizetype at = endsWithBreak ? lines_.size() - 1 : lines_.size();
        lines_.insert(at, QLatin1Char('[') + section + QLatin1Char(']'));
        lines_.insert(at + 1, line);
        index();
    } else if (const Key* entry = findKey(*found, key)) {
        lines_[entry->line] = line;
    } else {
        const qsizetype at =
            (found->keys.empty() ? found->headerLine : found->keys.back().line) + 1;
        lines_.insert(at, line);
        // Every later line moves down by one; the new key joins its section's index.
        const auto sectionAt = static_cast<std::size_t>(found - sections_.data());
        for (Section& later : sections_) {
            later.headerLine += later.headerLine >= at ? 1 : 0;
            for (Key& k : later.keys) {
                k.line += k.line >= at ? 1 : 0;
            }
        }
        Section& owner = sections_[sectionAt];
        owner.firstKey.insert(folded(key), static_cast<qsizetype>(owner.keys.size()));
        owner.keys.push_back({key.trimmed(), at});
    }
}
