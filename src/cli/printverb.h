#pragma once

#include <QStringList>
#include <QTextStream>

#include <optional>

struct Launch;

// desko40-cli print IN --report calendar|grid|tearsheet|shifts|constraints --pdf OUT
// [--trace FILE]: opens the schedule file IN as File Open does and prints the report as its
// command would, each document a PDF file: OUT, then OUT with "-2", "-3" … before its
// extension. The trace writes every call to the printer, one a line. Nothing for bad usage,
// else the exit status. Needs the application's font database.
std::optional<int> printVerb(const QStringList& args, QTextStream& err, const Launch& launch);
