#pragma once

#include <QString>

struct Workspace;

// The registry key below which the program keeps its settings.
inline const QString kRegistryBase =
    QStringLiteral("Software\\Tavrel Software\\Desko for Windows rev 4.0");
// The key below it in which the rights check tries a value for a moment.
inline const QString kRightsCheckKey = QStringLiteral("Test");

// Fills the session state of a new run in the program directory appPath: version, paths of
// the working file and the log, the registry key, an unset change flag and the caption tag
// of an unsaved workspace.
void modInitSession(Workspace& ws, const QString& appPath);
