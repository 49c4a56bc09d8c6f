#include "shell/textrules.h"

#include "shell/dialogs.h"

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

constexpr double kLineWidth = 350.0;
const QString kLineBreak = QStringLiteral("\r\n");

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

// Positions count from 1. A cut line ends before the last blank seen, and the count of
// the text already set out grows by the cut line's length only, so every line after the
// first keeps the blank it ended at; these lines are the ones users have always seen.
QString modWrapMessage(const QString& text, const Dialogs& dialogs) {
    if (dialogs.textWidth(text) <= kLineWidth) {
        return text;
    }
    QString line;
    QString output;
    qsizetype lastBlank = 0;
    qsizetype lineStart = 0;
    for (qsizetype i = 1; i <= text.size(); ++i) {
        const QChar c = text[i - 1];
        if (c == QLatin1Char(' ')) {
            lastBlank = i;
        }
        line += c;
        if (dialogs.textWidth(line) > kLineWidth && lastBlank > lineStart + 1) {
            line.truncate(lastBlank - lineStart - 1);
            i = lastBlank;
            lineStart += line.size();
            for (int pass = 0; pass < 2 && line.startsWith(QLatin1Char(' ')); ++pass) {
                line.remove(0, 1);
            }
            output += line + kLineBreak;
            line.clear();
        }
    }
    output += line + kLineBreak;
    output.chop(kLineBreak.size());
    return output;
}

MsgAnswer modMsgBox(Dialogs& dialogs, const QString& text, MsgIcon icon, MsgButtons buttons,
                    int defaultButton) {
    return dialogs.messageBox(modWrapMessage(text, dialogs), icon, buttons, defaultButton);
}
