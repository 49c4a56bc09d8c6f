#include "cli/backupverbs.h"

#include "cli/session.h"
#include "core/services/clock.h"
#include "persistence/backupring.h"
#include "persistence/profileapi.h"
#include "persistence/profilefile.h"
#include "shell/programstart.h"

#include <QDir>
#include <QFileInfo>
#include <QLockFile>

namespace {

// The working file of a program directory; nothing, with a line on err, for a path that is
// no directory.
std::optional<QString> workingFileIn(QTextStream& err, const QString& folder) {
    if (!QFileInfo(folder).isDir()) {
        fail(err, folder, QStringLiteral("is no folder"));
        return std::nullopt;
    }
    return QDir(folder).filePath(QStringLiteral("Desko40.ini"));
}

// The agents of a copy, as reading it would take them.
int agentsIn(const QString& path) {
    std::vector<QString> keys;
    return modReadKeyNames(ProfileFile::read(path), QStringLiteral("Agents"), keys);
}

}  // namespace

std::optional<int> backupsVerb(const QStringList& args, QTextStream& out, QTextStream& err) {
    if (args.size() != 2) {
        return std::nullopt;
    }
    const std::optional<QString> working = workingFileIn(err, args[1]);
    if (!working) {
        return 1;
    }
    for (const Backup& backup : listBackups(*working)) {
        const int agents = agentsIn(backup.path);
        out << backup.kept.toString(QStringLiteral("yyyy-MM-dd hh:mm:ss")) << '\t' << agents
            << (agents == 1 ? " agent" : " agents") << '\t' << backup.size << " bytes\t"
            << QFileInfo(backup.path).fileName() << '\n';
    }
    return 0;
}

std::optional<int> restoreVerb(const QStringList& args, QTextStream& err) {
    if (args.size() != 3) {
        return std::nullopt;
    }
    const std::optional<QString> working = workingFileIn(err, args[2]);
    if (!working) {
        return 1;
    }
    const QString& named = args[1];
    const QString backup =
        QFileInfo(named).isFile() ? named : QDir(backupFolder(*working)).filePath(named);
    if (!QFileInfo(backup).isFile()) {
        return fail(err, named, QStringLiteral("cannot be read"));
    }
    // A running Desko would write its own workspace over the copy at its next save.
    bool otherRunning = false;
    const auto claim = claimProgramDirectory(args[2], otherRunning);
    if (otherRunning) {
        return fail(err, args[2], QStringLiteral("is in use by a running Desko: close it first"));
    }
    const SystemClock clock;
    if (!restoreBackup(backup, *working, clock.now())) {
        return fail(err, *working, QStringLiteral("cannot be written"));
    }
    return 0;
}
