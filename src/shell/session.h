#pragma once

#include <QString>

struct Workspace;

// The program's directory: $DESKO_HOME when set, else the directory of the executable.
QString modAppPath();

// Fills the session state of a new run: version, paths of the working file and the log,
// the registry key, an unset change flag and the caption tag of an unsaved workspace.
void modInitSession(Workspace& ws, const QString& appPath);
