#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <vector>

// A profile file: "[Section]" lines and "key=value" lines, held as its lines so that a
// change of one key keeps every other line as it stands. Section and key names compare
// without regard to case; where a name occurs twice, the first counts. Lines outside a
// section and lines without "=" are passed over.
class ProfileFile {
public:
    ProfileFile() = default;
    explicit ProfileFile(const QString& text, QString path = QString());

    // The file's text, or an empty profile when it cannot be read.
    static ProfileFile read(const QString& path);

    const QString& path() const { return path_; }

    // The key names of a section in file order; none for a missing section.
    QStringList keyNames(const QString& section) const;
    // A key's value, blanks around it trimmed and one pair of surrounding quotes removed;
    // the empty text for a missing key.
    QString value(const QString& section, const QString& key) const;
    // Replaces the key's line, or adds the key at the end of its section, or adds the
    // section at the end of the file.
    void setValue(const QString& section, const QString& key, const QString& value);

    QString text() const { return lines_.join(QStringLiteral("\r\n")); }

private:
    struct Key {
        QString name;
        qsizetype line;
    };
    struct Section {
        qsizetype headerLine;
        std::vector<Key> keys;
        QHash<QString, qsizetype> firstKey;  // folded name -> index into keys
    };

    void index();
    const Section* findSection(const QString& name) const;
    const Key* findKey(const Section& section, const QString& name) const;

    QString path_;
    QStringList lines_;
    std::vector<Section> sections_;
    QHash<QString, qsizetype> firstSection_;  // folded name -> index into sections_
};
