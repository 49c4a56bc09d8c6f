#include "core/model/textrules.h"

#include <algorithm>

namespace {

bool isAsciiLetter(QChar c) {
    return (c >= QLatin1Char('A') && c <= QLatin1Char('Z')) ||
           (c >= QLatin1Char('a') && c <= QLatin1Char('z'));
}

// A letter after one of these starts a word.
bool startsWord(QChar before) {
    return QStringLiteral("\\/_[- ").contains(before);
}

}  // namespace

QString modProperCase(const QString& text) {
    if (text.isEmpty()) {
        return text;
    }
    QString result = text;
    result[0] = result[0].toUpper();
    for (qsizetype i = 1; i < result.size(); ++i) {
        if (isAsciiLetter(result[i])) {
            result[i] = startsWord(result[i - 1]) ? result[i].toUpper() : result[i].toLower();
        }
    }
    if (result.startsWith(QStringLiteral(".["))) {
        result.remove(0, 1);
    }
    return result;
}

QString modBaseName(const QString& path) {
    // Either separator ends a folder name: paths come from this system and from Windows.
    const qsizetype slash =
        std::max(path.lastIndexOf(QLatin1Char('/')), path.lastIndexOf(QLatin1Char('\\')));
    return path.mid(slash + 1);
}
