#pragma once

#include <QString>

// Tidies the capitals of a path or a machine name for the log and the window caption.
QString modProperCase(const QString& text);

// What follows the last path separator of a path.
QString modBaseName(const QString& path);
