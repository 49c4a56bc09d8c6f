#pragma once

#include <QString>

#include <optional>

// A disk volume: where it is mounted, and its size in clusters, the units it is allotted in.
struct Volume {
    QString root;
    qint64 totalClusters = 0;
    qint64 freeClusters = 0;  // those the user may still fill
    qint64 bytesPerCluster = 0;
};

// The operating system's name and version numbers; those it does not have stay empty.
struct SystemVersion {
    QString name;
    QString major;
    QString minor;
    QString build;
};

// What the program asks of the machine it runs on, once at start, for the log. A fact the
// machine cannot tell is empty.
class Machine {
public:
    virtual ~Machine() = default;
    // The name the user logged on with.
    virtual QString userName() const = 0;
    virtual QString hostName() const = 0;
    virtual SystemVersion systemVersion() const = 0;
    // The system's folder of shared data, and its folder of libraries.
    virtual QString systemDataDir() const = 0;
    virtual QString systemLibraryDir() const = 0;
    // The volume that holds the path.
    virtual std::optional<Volume> volume(const QString& path) const = 0;
    virtual std::optional<qint64> physicalMemoryBytes() const = 0;
    // The first IPv4 address of a network interface that is up, other than the loopback.
    virtual QString ipAddress() const = 0;
    // The user's desktop folder, and the folder of the applications installed for all users.
    virtual QString desktopDir() const = 0;
    virtual QString applicationsDir() const = 0;
};
