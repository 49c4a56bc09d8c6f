#pragma once

#include <QStringList>
#include <QTextStream>

struct Launch;

// Runs one command of the headless tool. Exit status 0 on success, 2 with the usage text
// on bad usage, 1 with one line on err when a file cannot be read or written or is refused.
// The launch gives the tool's folder and the random state a generate without --seed starts
// from, if any.
int runCommand(const QStringList& args, QTextStream& out, QTextStream& err, const Launch& launch);
