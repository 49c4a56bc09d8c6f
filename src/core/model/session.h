#pragma once

#include <QString>

struct Workspace;

// Fills the session state of a new run in the program directory appPath: version, paths of
// the working file and the log, the registry key, an unset change flag and the caption tag
// of an unsaved workspace.
void modInitSession(Workspace& ws, const QString& appPath);
