#include "fuzzing.h"

#include "core/services/textfile.h"
#include "persistence/backupring.h"

#include <QDir>
#include <QFile>

#include <algorithm>

namespace {

std::optional<QByteArray> bytesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? std::optional(file.readAll()) : std::nullopt;
}

// A name that a file of the folder can have.
bool fileName(const QString& name) {
    return !name.isEmpty() && name != QStringLiteral(".") && name != QStringLiteral("..") &&
           !name.contains(QLatin1Char('/')) && !name.contains(QChar(0)) &&
           name.toUtf8().size() <= 255;
}

}  // namespace

// The backup ring and its listing: whatever files its folder holds (the input's lines are
// their names, each file holding its name), the copies are listed newest first; a keep
// leaves the working file as it stood in a ring of at most kBackupsKept copies and every
// file that is no copy where it was; a copy restored becomes the working file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    QDir(scratchPath(QStringLiteral("ring"))).removeRecursively();
    const QByteArray working = "[Agents]\r\n1=Brennan|Patrick|\r\n";
    const QString workingFile = scratchFile(QStringLiteral("ring/Desko40.ini"), working);
    const QDir folder(backupFolder(workingFile));
    for (const QString& name : textLines(decodeText(inputBytes(data, size)))) {
        if (fileName(name)) {
            scratchFile(QStringLiteral("ring/backups/") + name, name.toUtf8());
        }
    }
    QStringList others = folder.entryList(QDir::Files | QDir::Hidden);
    for (const Backup& copy : listBackups(workingFile)) {
        others.removeOne(QFileInfo(copy.path).fileName());
    }
    const std::vector<Backup> before = listBackups(workingFile);
    require(std::is_sorted(before.begin(), before.end(),
                           [](const Backup& a, const Backup& b) { return a.kept > b.kept; }),
            "the copies are listed newest first");

    const QDateTime now = StillClock().now();
    require(keepBackup(workingFile, now), "the working file is kept");
    const std::vector<Backup> ring = listBackups(workingFile);
    require(ring.size() <= kBackupsKept, "the ring keeps its number of copies");
    require(std::any_of(ring.begin(), ring.end(),
                        [&](const Backup& copy) { return bytesOf(copy.path) == working; }),
            "the ring holds the working file as it stood");
    require(std::all_of(others.begin(), others.end(),
                        [&](const QString& name) {
                            // Not folder.exists(name): a name that begins with ":" would be
                            // looked for among the program's resources.
                            return QFileInfo::exists(folder.path() + QLatin1Char('/') + name);
                        }),
            "files that are no copies stay");

    const std::optional<QByteArray> restored = bytesOf(ring.back().path);
    require(restoreBackup(ring.back().path, workingFile, now) && bytesOf(workingFile) == restored,
            "a copy restored is the working file");
    return 0;
}
