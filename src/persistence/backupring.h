#pragma once

#include <QDateTime>
#include <QString>

#include <vector>

// The backup ring of the working file: copies of the file as it stood before the writes that
// replace it wholesale, kept in the folder "backups" beside it, each named by the date and
// time it was kept ("Desko40-20270115-091403.ini"). The newest kBackupsKept stay; nothing
// else in the folder is touched. Every copy is written as every file is, through a temporary
// file, so a copy is whole or not there.

inline constexpr int kBackupsKept = 30;

// The folder of the ring of a working file.
QString backupFolder(const QString& workingFile);

// Keeps the working file as it stands in the ring, unless it is missing or empty or the newest
// copy holds the same; the oldest copies beyond kBackupsKept go. The folder is made when
// missing, but never the working file's own folder. False when a copy was due and could not
// be written.
bool keepBackup(const QString& workingFile, const QDateTime& now);

struct Backup {
    QString path;
    QDateTime kept;  // when the copy was made
    qint64 size = 0;
};

// The ring's copies, the newest first.
std::vector<Backup> listBackups(const QString& workingFile);

// Puts a copy back as the working file, after keeping the working file as it stands in the
// ring. False, with the working file as it was, when the copy cannot be read or the working
// file cannot be written.
bool restoreBackup(const QString& backup, const QString& workingFile, const QDateTime& now);
