#include "core/model/session.h"

#include "core/model/workspace.h"

#include <QDir>

void modInitSession(Workspace& ws, const QString& appPath) {
    ws.gVersionMajor = DESKO_VERSION_MAJOR;
    ws.gVersionMinor = DESKO_VERSION_MINOR;
    ws.gVersionRevision = DESKO_VERSION_REVISION;
    ws.gDirty.reset();
    ws.gAppPath = QDir::cleanPath(appPath);
    ws.gRegistryBase = kRegistryBase;
    ws.gConfigFile = ws.gAppPath + QStringLiteral("/Desko40.ini");
    ws.gLogFile = ws.gAppPath + QStringLiteral("/Desko40.log");
    ws.gScheduleTag = QStringLiteral(" [not saved]");
}
