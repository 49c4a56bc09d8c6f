#pragma once

#include <QString>

#include <utility>
#include <vector>

class ProfileFile;

// The program's reads and writes of profile files. They pass through buffers of a fixed
// size: a section's key names through kKeyNamesBuffer characters, a value through
// kValueBuffer, as the file format has always been read.
inline constexpr int kKeyNamesBuffer = 8192;
inline constexpr int kValueBuffer = 1024;

// How many rows a section numbered from 1 holds at most with all their key names read back
// through the buffer: each name takes its digits and a null, the list a last null.
constexpr int numberedRowsThatFit(int buffer) {
    int used = 1;
    for (int row = 1;; ++row) {
        int digits = 1;
        for (int rest = row; rest >= 10; rest /= 10) {
            ++digits;
        }
        used += digits + 1;
        if (used > buffer) {
            return row - 1;
        }
    }
}
inline constexpr int kMostRows = numberedRowsThatFit(kKeyNamesBuffer);

// Fills keys[1..count] with the key names of the section in file order and returns count.
// Names that overflow the buffer are left out; an empty or missing section gives 0.
int modReadKeyNames(const ProfileFile& file, const QString& section, std::vector<QString>& keys);

// The value of a key, "" when missing, cut at kValueBuffer - 1 characters.
QString modReadProfileValue(const ProfileFile& file, const QString& section, const QString& key);

// Keys and their values, in the order they are written.
using ProfileValues = std::vector<std::pair<QString, QString>>;

// Makes the file writable if it was read-only, then replaces or adds each key of the
// section, in memory and on disk, keeping all other lines. All keys go to disk in one
// write, so a large file is not rewritten once a key. A file that cannot be written keeps
// its contents.
void modWriteProfileValue(ProfileFile& file, const QString& section, const ProfileValues& values);

// Splits text at each delimiter into fields[1..count] (fields[0] stays empty) and returns
// count: 0 for an empty delimiter, 1 for a text without it, and one more, empty, field for
// a trailing delimiter. A field that reads "***empty***" ends the splitting: what stands
// behind it becomes the last field.
int modSplitFields(const QString& text, const QString& delimiter, std::vector<QString>& fields);

// Cuts the text before the first delimiter off the text and returns it, or returns
// "***empty***" and leaves the text alone when there is no delimiter.
QString modNextField(QString& text, const QString& delimiter);
