#include "persistence/backupring.h"

#include "core/services/textfile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <optional>

namespace {

const QString kFolder = QStringLiteral("backups");
const QString kStampFormat = QStringLiteral("yyyyMMdd-HHmmss");

// The whole contents of a file; nothing when it cannot be read.
std::optional<QByteArray> fileBytes(const QString& path) {
    QFile file(path);
    if (QFileInfo(path).isDir() || !file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    return file.readAll();
}

// A copy's name: the working file's own name, the time it was kept and, for a second copy
// within the same second, its number.
QString copyName(const QFileInfo& working, const QDateTime& kept, int number) {
    const QString numbered = number > 1 ? QLatin1Char('-') + QString::number(number) : QString();
    return working.completeBaseName() + QLatin1Char('-') + kept.toString(kStampFormat) + numbered +
           QLatin1Char('.') + working.suffix();
}

struct Listed {
    Backup backup;
    int number;
};

// The copies in the folder, each known by its name; the newest first.
std::vector<Listed> listed(const QString& workingFile) {
    const QFileInfo working(workingFile);
    const QRegularExpression pattern(
        QLatin1Char('^') + QRegularExpression::escape(working.completeBaseName()) +
        QStringLiteral("-(\\d{8}-\\d{6})(?:-(\\d+))?\\.") +
        QRegularExpression::escape(working.suffix()) + QLatin1Char('$'));
    std::vector<Listed> copies;
    const QFileInfoList files =
        QDir(backupFolder(workingFile)).entryInfoList(QDir::Files | QDir::Hidden);
    for (const QFileInfo& file : files) {
        const QRegularExpressionMatch match = pattern.match(file.fileName());
        const QDateTime kept = QDateTime::fromString(match.captured(1), kStampFormat);
        if (match.hasMatch() && kept.isValid()) {
            copies.push_back({{file.filePath(), kept, file.size()},
                              match.captured(2).isEmpty() ? 1 : match.captured(2).toInt()});
        }
    }
    std::sort(copies.begin(), copies.end(), [](const Listed& a, const Listed& b) {
        return a.backup.kept != b.backup.kept ? a.backup.kept > b.backup.kept : a.number > b.number;
    });
    return copies;
}

}  // namespace

QString backupFolder(const QString& workingFile) {
    return QFileInfo(workingFile).absolutePath() + QLatin1Char('/') + kFolder;
}

bool keepBackup(const QString& workingFile, const QDateTime& now) {
    const std::optional<QByteArray> bytes = fileBytes(workingFile);
    if (!bytes || bytes->isEmpty()) {
        return true;
    }
    const std::vector<Listed> copies = listed(workingFile);
    if (!copies.empty() && fileBytes(copies.front().backup.path) == bytes) {
        return true;
    }
    const QFileInfo working(workingFile);
    QDir folder(working.absolutePath());
    if (!folder.exists(kFolder) && !folder.mkdir(kFolder)) {
        return false;
    }
    folder.cd(kFolder);
    const QDateTime kept = now.addMSecs(-now.time().msec());
    int number = 1;
    while (folder.exists(copyName(working, kept, number))) {
        ++number;
    }
    if (!writeFileBytes(folder.filePath(copyName(working, kept, number)), *bytes)) {
        return false;
    }
    const std::vector<Listed> ring = listed(workingFile);
    for (std::size_t i = kBackupsKept; i < ring.size(); ++i) {
        QFile::remove(ring[i].backup.path);
    }
    return true;
}

std::vector<Backup> listBackups(const QString& workingFile) {
    std::vector<Backup> backups;
    for (const Listed& copy : listed(workingFile)) {
        backups.push_back(copy.backup);
    }
    return backups;
}

bool restoreBackup(const QString& backup, const QString& workingFile, const QDateTime& now) {
    const std::optional<QByteArray> bytes = fileBytes(backup);
    return bytes && keepBackup(workingFile, now) && writeFileBytes(workingFile, *bytes);
}
