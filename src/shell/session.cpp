#include "shell/session.h"

#include "workspace/workspace.h"

#include <QCoreApplication>
#include <QDir>

QString modAppPath() {
    const QString home = qEnvironmentVariable("DESKO_HOME");
    return home.isEmpty() ? QCoreApplication::applicationDirPath() : home;
}

void modInitSession(Workspace& ws, const QString& appPath) {
    ws.gVersionMajor = DESKO_VERSION_MAJOR;
    ws.gVersionMinor = DESKO_VERSION_MINOR;
    ws.gVersionRevision = DESKO_VERSION_REVISION;
    ws.gDirty.reset();
    ws.gAppPath = QDir::cleanPath(appPath);
    ws.gRegistryBase = QStringLiteral("Software\\Tavrel Software\\Desko for Windows rev 4.0");
    ws.gConfigFile = ws.gAppPath + QStringLiteral("/Desko40.ini");
    ws.gLogFile = ws.gAppPath + QStringLiteral("/Desko40.log");
    ws.gScheduleTag = QStringLiteral(" [not saved]");
}
