#include "core/services/textfile.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStringDecoder>

#include <array>

namespace {

// Windows-1252 differs from Latin-1 in 0x80..0x9F; the five codes it leaves open map to the
// C1 controls of the same value.
constexpr std::array<char16_t, 32> kCp1252High = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

QString decodeCp1252(const QByteArray& bytes) {
    QString text(bytes.size(), Qt::Uninitialized);
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        const auto byte = static_cast<unsigned char>(bytes[i]);
        text[i] =
            byte >= 0x80 && byte < 0xA0 ? QChar(kCp1252High[byte - 0x80]) : QChar(char16_t{byte});
    }
    return text;
}

// A file or a directory without write permission counts as read-only for every user, the
// superuser included, as a read-only file does on other systems.
bool isReadOnly(const QFileInfo& info) {
    constexpr QFile::Permissions kAnyWrite =
        QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
    return info.exists() && (!info.isWritable() || !(info.permissions() & kAnyWrite));
}

}  // namespace

QString decodeText(const QByteArray& bytes) {
    // Only a byte order mark tells the wider encodings; their decoders drop it.
    if (const std::optional<QStringConverter::Encoding> marked =
            QStringConverter::encodingForData(bytes);
        marked && *marked != QStringConverter::Utf8) {
        return QStringDecoder(*marked).decode(bytes);
    }
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = utf8.decode(bytes);  // a byte order mark is dropped
    return utf8.hasError() ? decodeCp1252(bytes) : text;
}

QStringList textLines(const QString& text) {
    QStringList lines;
    qsizetype start = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c != QLatin1Char('\r') && c != QLatin1Char('\n')) {
            continue;
        }
        lines.append(text.mid(start, i - start));
        if (c == QLatin1Char('\r') && i + 1 < text.size() && text[i + 1] == QLatin1Char('\n')) {
            ++i;
        }
        start = i + 1;
    }
    lines.append(text.mid(start));
    return lines;
}

std::optional<QString> readTextFile(const QString& path) {
    QFile file(path);
    if (path.isEmpty() || QFileInfo(path).isDir() || !file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    return decodeText(file.readAll());
}

bool isReadOnlyFile(const QString& path) {
    return isReadOnly(QFileInfo(path));
}

bool isReadOnlyDirectory(const QString& path) {
    const QFileInfo info(path);
    return info.isDir() && isReadOnly(info);
}

bool writeTextFile(const QString& path, const QString& text) {
    return writeFileBytes(path, text.toUtf8());
}

bool writeFileBytes(const QString& path, const QByteArray& bytes) {
    const QFileInfo info(path);
    if (path.isEmpty() || info.isDir() || isReadOnlyFile(path) ||
        isReadOnlyDirectory(info.absolutePath())) {
        return false;
    }
    QSaveFile file(path);
    file.setDirectWriteFallback(false);
    if (!file.open(QIODevice::WriteOnly)) {
        return false;
    }
    file.write(bytes);
    return file.commit();
}
