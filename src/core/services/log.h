#pragma once

#include <QString>

struct Context;
struct Workspace;

// Appends one time-stamped line to the log, gLogFile: "[hh:mm:ss]", five blanks, the text.
// One final point is cut from the text first, in the caller's variable too. The file is
// opened, written and closed for each line, so the last line is on disk when this returns;
// a log that cannot be written loses the line and nothing else happens.
void modStatus(const Workspace& ws, const Context& ctx, QString& text);
void modStatus(const Workspace& ws, const Context& ctx, const QString& text);

// The run's header, written once at start-up after the machine's facts are known.
void modLogOpen(const Workspace& ws, const Context& ctx, const QString& commandLine);
// The run's closing line.
void modLogClose(const Workspace& ws, const Context& ctx);
