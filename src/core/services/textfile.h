#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

// Text files as the program keeps them: written in UTF-8, read as UTF-8 or, when the bytes
// are not valid UTF-8, as Windows-1252, so that files from Windows machines open. A file that
// begins with a byte order mark of UTF-16 or UTF-32 is read in that encoding; the mark of
// UTF-8 is dropped.

QString decodeText(const QByteArray& bytes);

// The lines of a text: a line ends at CR LF, at CR alone or at LF alone. A text that ends
// with a line end gives an empty last line.
QStringList textLines(const QString& text);

// The whole text of a file; nothing when it is missing, a directory or unreadable.
std::optional<QString> readTextFile(const QString& path);

// True for an existing file that may not be written.
bool isReadOnlyFile(const QString& path);

// True for an existing directory in which no file may be made.
bool isReadOnlyDirectory(const QString& path);

// Replaces the file's contents with the text, in UTF-8. The new contents go to a temporary
// file in the same directory first and take the file's place only when complete, so a
// failure at any point leaves the old contents. A read-only file, a read-only or missing
// directory: false, and nothing changes.
bool writeTextFile(const QString& path, const QString& text);
// The same for bytes, written as they are.
bool writeFileBytes(const QString& path, const QByteArray& bytes);
