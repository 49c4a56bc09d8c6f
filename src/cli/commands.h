#pragma once

#include <QStringList>
#include <QTextStream>

// Runs one command of the headless tool. Exit status 0 on success, 2 with the usage text
// on bad usage, 1 with one line on err when a file cannot be read or written or is refused.
int runCommand(const QStringList& args, QTextStream& out, QTextStream& err);
