#include "persistence/profileapi.h"

#include "core/services/textfile.h"
#include "persistence/profilefile.h"

#include <QFile>

namespace {

const QString kNoField = QStringLiteral("***empty***");

// What a value buffer holds: the text up to its first null, cut to the buffer.
QString throughBuffer(const QString& text, int buffer) {
    return text.left(text.indexOf(QChar(0))).left(buffer - 1);
}

}  // namespace

int modReadKeyNames(const ProfileFile& file, const QString& section, std::vector<QString>& keys) {
    // The names come as one buffer, each ended by a null, the list by a second null; a name
    // that does not fit whole is left out.
    QString buffer;
    for (const QString& name : file.keyNames(section)) {
        if (buffer.size() + name.size() + 2 > kKeyNamesBuffer) {
            break;
        }
        buffer += name + QChar(0);
    }
    buffer += QChar(0);
    buffer.truncate(buffer.indexOf(QStringView(u"\0\0", 2)));
    keys.assign(1, QString());
    if (buffer.isEmpty()) {
        return 0;
    }
    return modSplitFields(buffer, QString(QChar(0)), keys);
}

QString modReadProfileValue(const ProfileFile& file, const QString& section, const QString& key) {
    return throughBuffer(file.value(section, key), kValueBuffer);
}

void modWriteProfileValue(ProfileFile& file, const QString& section, const ProfileValues& values) {
    QFile::setPermissions(file.path(), QFile::permissions(file.path()) | QFile::WriteOwner);
    for (const auto& [key, value] : values) {
        file.setValue(section, key, value);
    }
    writeTextFile(file.path(), file.text());
}

int modSplitFields(const QString& text, const QString& delimiter, std::vector<QString>& fields) {
    fields.assign(1, QString());
    if (delimiter.isEmpty()) {
        return 0;
    }
    QString rest = text;
    if (rest.contains(delimiter)) {
        for (QString field = modNextField(rest, delimiter); field != kNoField;
             field = modNextField(rest, delimiter)) {
            fields.push_back(field);
        }
    }
    fields.push_back(rest);
    return static_cast<int>(fields.size()) - 1;
}

QString modNextField(QString& text, const QString& delimiter) {
    const qsizetype at = text.indexOf(delimiter);
    if (at < 0) {
        return kNoField;
    }
    QString field = text.left(at);
    text.remove(0, at + delimiter.size());
    return field;
}
