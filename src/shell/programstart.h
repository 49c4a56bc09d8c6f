#pragma once

#include <QString>

#include <memory>

class QLockFile;
struct Context;
struct Workspace;

// The claim of one run on its program directory. otherRunning tells that a live run holds
// the claim already; the claim of a run that crashed lapses. A directory where no claim can
// be written (read-only, missing) does not stop the program: the claim is then empty.
std::unique_ptr<QLockFile> claimProgramDirectory(const QString& appPath, bool& otherRunning);

// The start-up's work behind the splash: the session in the launch's folder, the name
// tables, the move of an earlier version's store and the check of the working file, the
// machine's facts and the rights check, the log's run header, the working file read, the
// agents' keys, the coming month and its calendar, the printer's font table.
void prepareWorkspace(Workspace& ws, Context& ctx, const QString& commandLine);
