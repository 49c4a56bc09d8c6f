#pragma once

#include <QString>

struct Context;
struct Workspace;

// A configuration dump: the working file and the log in one text file, so that whoever
// looks into a user's problem can stand in the user's place. The working file's lines come
// first, then an empty line, a line "<SNIP>" and another empty line, then the log's lines,
// each line ended by CR LF.

// The dump of a working file's text and a log's text. A source without a line still gives
// one, an empty one.
QString dumpText(const QString& workingFile, const QString& log);

// The two files a dump restores. The working file takes the dump's lines up to the first
// "<SNIP>", that line and the empty one before it included; the log takes the lines after
// it, so it begins with the separator's second empty line. A dump without a separator goes
// whole into the working file, and the log is then one empty line.
struct RestoredFiles {
    QString workingFile;
    QString log;
};
RestoredFiles restoredFiles(const QString& dump);

// Help > Create a configuration dump file: asks where, then writes the working file and the
// log into one file there. False when the user cancelled; nothing is said either way.
bool createConfigurationDump(const Workspace& ws, Context& ctx);

// Help > Open a configuration dump file: asks for a dump, replaces the working file and the
// log with its two parts, with no question, and reads the working file into the Workspace.
// False when the user cancelled and nothing changed; the window then has nothing to show
// anew.
bool openConfigurationDump(Workspace& ws, Context& ctx);
