#pragma once

#include <QString>

struct Context;
struct Workspace;

// Writes the whole Workspace to a schedule file, with its [Schedule] section, or, for an
// empty path, to the working file gConfigFile without it. Recomputes the four summary
// flags. A file that cannot be written keeps its old contents; the program tells nobody,
// the headless tool reports the false this returns then.
bool modSaveWorkspace(Workspace& ws, Context& ctx, const QString& path);

// Reads a schedule file, or for an empty path the working file, into the Workspace. A
// schedule file of another version is refused with a message and changes nothing. Missing
// fonts, copies and display settings get their defaults, written back into the file.
void modLoadWorkspace(Workspace& ws, Context& ctx, const QString& path);

// Makes the month saved in the file, gSavedMonth and gSavedYear, the current month and
// computes its calendar. A saved value that is no month or year leaves the current one.
void takeSavedMonth(Workspace& ws);
