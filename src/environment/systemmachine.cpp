#include "environment/systemmachine.h"

#include <QDir>
#include <QFileInfo>
#include <QNetworkInterface>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QStorageInfo>
#include <QSysInfo>

#ifdef Q_OS_UNIX
#include <pwd.h>
#include <unistd.h>
#endif

namespace {

QString existingDir(const QString& path) {
    return !path.isEmpty() && QFileInfo(path).isDir() ? QDir::cleanPath(path) : QString();
}

}  // namespace

QString SystemMachine::userName() const {
#ifdef Q_OS_UNIX
    // The account itself, which a changed environment does not hide.
    if (const passwd* entry = getpwuid(geteuid())) {
        return QString::fromLocal8Bit(entry->pw_name);
    }
    return qEnvironmentVariable("USER");
#else
    return qEnvironmentVariable("USERNAME");
#endif
}

QString SystemMachine::hostName() const {
    return QSysInfo::machineHostName();
}

// The kernel's version stands for the system's numbers: "6.1.0-18-amd64" is 6, 1 and 0.
SystemVersion SystemMachine::systemVersion() const {
    static const QRegularExpression numbers(QStringLiteral("^(\\d+)(?:\\.(\\d+))?(?:\\.(\\d+))?"));
    const QRegularExpressionMatch match = numbers.match(QSysInfo::kernelVersion());
    return {QSysInfo::prettyProductName(), match.captured(1), match.captured(2), match.captured(3)};
}

QString SystemMachine::systemDataDir() const {
#ifdef Q_OS_WIN
    return existingDir(qEnvironmentVariable("SystemRoot"));
#else
    return existingDir(QStringLiteral("/usr/share"));
#endif
}

QString SystemMachine::systemLibraryDir() const {
#ifdef Q_OS_WIN
    return existingDir(qEnvironmentVariable("SystemRoot") + QStringLiteral("/System32"));
#else
    return existingDir(QStringLiteral("/usr/lib"));
#endif
}

std::optional<Volume> SystemMachine::volume(const QString& path) const {
    const QStorageInfo info(path);
    const qint64 cluster = info.blockSize();
    if (!info.isValid() || !info.isReady() || cluster <= 0) {
        return std::nullopt;
    }
    return Volume{info.rootPath(), info.bytesTotal() / cluster, info.bytesAvailable() / cluster,
                  cluster};
}

std::optional<qint64> SystemMachine::physicalMemoryBytes() const {
#ifdef Q_OS_UNIX
    const long pages = sysconf(_SC_PHYS_PAGES);
    const long pageSize = sysconf(_SC_PAGESIZE);
    if (pages > 0 && pageSize > 0) {
        return static_cast<qint64>(pages) * pageSize;
    }
#endif
    return std::nullopt;
}

QString SystemMachine::ipAddress() const {
    constexpr auto kUp = QNetworkInterface::IsUp | QNetworkInterface::IsRunning;
    for (const QNetworkInterface& interface : QNetworkInterface::allInterfaces()) {
        if ((interface.flags() & kUp) != kUp ||
            interface.flags().testFlag(QNetworkInterface::IsLoopBack)) {
            continue;
        }
        for (const QNetworkAddressEntry& entry : interface.addressEntries()) {
            if (entry.ip().protocol() == QAbstractSocket::IPv4Protocol) {
                return entry.ip().toString();
            }
        }
    }
    return QString();
}

QString SystemMachine::desktopDir() const {
    return existingDir(QStandardPaths::writableLocation(QStandardPaths::DesktopLocation));
}

// The system's own applications folder comes last among the places applications are found,
// after the user's own.
QString SystemMachine::applicationsDir() const {
    const QString own = QStandardPaths::writableLocation(QStandardPaths::ApplicationsLocation);
    QStringList folders = QStandardPaths::standardLocations(QStandardPaths::ApplicationsLocation);
    folders.removeAll(own);
    return folders.isEmpty() ? QString() : existingDir(folders.last());
}
