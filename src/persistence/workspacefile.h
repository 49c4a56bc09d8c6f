#pragma once

#include <QString>

struct Context;
struct Workspace;

// Writes the whole Workspace to a schedule file, with its [Schedule] section, or, for an
// empty path, to the working file gConfigFile without it, and notes the program's version
// in the registry. A file that cannot be written keeps its old contents, and so does one
// whose rows reading would not take whole; the program tells nobody, the headless tool
// reports the false this returns then.
bool modSaveWorkspace(Workspace& ws, Context& ctx, const QString& path);

// Reads a schedule file, or for an empty path the working file, into the Workspace. A
// schedule file of another version is refused with a message and changes nothing; the
// program's commands go on as if it had been read, the headless tool stops at the false
// this returns. Missing fonts, copies and display settings get their defaults, written back
// into the file.
bool modLoadWorkspace(Workspace& ws, Context& ctx, const QString& path);
