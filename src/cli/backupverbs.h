#pragma once

#include <QStringList>
#include <QTextStream>

#include <optional>

// desko40-cli backups DIR: the copies in the backup ring of the working file of the program
// directory DIR, the newest first, one a line: when it was kept, its agents, its size and its
// name, separated by tabs. Nothing for bad usage, else the exit status.
std::optional<int> backupsVerb(const QStringList& args, QTextStream& out, QTextStream& err);

// desko40-cli restore BACKUP DIR: puts the copy BACKUP, a file or the name of a copy in DIR's
// ring, back as DIR's working file, after keeping the working file as it stands in the ring.
// Refused while Desko runs in DIR. Nothing for bad usage, else the exit status.
std::optional<int> restoreVerb(const QStringList& args, QTextStream& err);
