#include "environment/probe.h"

#include "core/model/textrules.h"
#include "core/model/workspace.h"
#include "core/services/context.h"
#include "core/services/machine.h"
#include "core/services/mailaccounts.h"
#include "environment/rights.h"

#include <cmath>
#include <limits>

namespace {

void askMachine(const Machine& machine, const QString& appPath, Environment& env) {
    env.gAccountName = machine.userName();
    env.gMachineName = modProperCase(machine.hostName());
    env.gWindowsDir = modProperCase(machine.systemDataDir());
    env.gSystemDir = modProperCase(machine.systemLibraryDir());
    env.gIpAddress = machine.ipAddress();
    // The drive and the disk are those the program and its files live on.
    if (const std::optional<Volume> volume = machine.volume(appPath)) {
        env.gWindowsDrive = modProperCase(volume->root);
        env.gDiskTotalMB = diskMegabytes(volume->totalClusters, volume->bytesPerCluster);
        env.gDiskFreeMB = diskMegabytes(volume->freeClusters, volume->bytesPerCluster);
    }
    if (const std::optional<qint64> bytes = machine.physicalMemoryBytes()) {
        env.gPhysicalMemoryMB = memoryMegabytes(*bytes);
    }
    const SystemVersion version = machine.systemVersion();
    env.gWindowsName = version.name;
    env.gWindowsMajor = version.major;
    env.gWindowsMinor = version.minor;
    env.gWindowsBuild = version.build;
    env.gDesktopDir = machine.desktopDir();
    env.gStartMenuDir = machine.applicationsDir();
}

}  // namespace

void modProbeEnvironment(const Workspace& ws, Context& ctx) {
    if (ctx.machine != nullptr) {
        askMachine(*ctx.machine, ws.gAppPath, ctx.env);
    }
    ctx.env.gAccountRightsOk = modCheckRights(ws, ctx);
    readMailFacts(ctx.env, ctx.launch.mailConfig);
}

long long diskMegabytes(qint64 clusters, qint64 bytesPerCluster) {
    constexpr qint64 kLargest = std::numeric_limits<qint32>::max();
    const qint64 thousands = clusters / 1024;
    if (thousands > kLargest || bytesPerCluster > kLargest) {
        return 0;
    }
    const qint64 bytesInThousands = thousands * bytesPerCluster;
    return bytesInThousands > kLargest ? 0 : bytesInThousands / 1024;
}

long long memoryMegabytes(qint64 bytes) {
    return static_cast<long long>(
        std::floor((static_cast<double>(bytes) / 1024.0 + 640.0) / 1024.0 + 0.5));
}
