#pragma once

#include <QStringList>
#include <QTextStream>

#include <optional>

struct Launch;

// desko40-cli balance FILE [--format tsv|json]: opens the schedule file FILE as File Open
// does and prints the month's balance, the table of the review's Balance panel: as lines of
// tab-separated fields (the default), or as one JSON object. Nothing for bad usage, else the
// exit status.
std::optional<int> balanceVerb(const QStringList& args, QTextStream& out, QTextStream& err,
                               const Launch& launch);
