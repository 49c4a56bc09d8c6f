#pragma once

#include <QStringList>
#include <QTextStream>

#include <optional>

struct Launch;

// desko40-cli export IN [--csv FILE] [--email] [--calendar] [--outbox DIR]: opens the
// schedule file IN as File Open does and exports it as the Export button does, to the chosen
// channels, every question answered Yes and written on err with the results. With --outbox,
// each message is written into DIR as NNNN.eml, in sending order, instead of being sent.
// Status 0 when the export ran, whatever became of single messages; 1 when IN cannot be
// read; nothing on bad usage.
std::optional<int> exportSchedule(const QStringList& args, QTextStream& err, const Launch& launch);
