#include "core/services/msgbox.h"

namespace {

constexpr double kLineWidth = 350.0;
const QString kLineBreak = QStringLiteral("\r\n");

}  // namespace

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

MsgAnswer msgBox(Dialogs& dialogs, const QString& text, MsgIcon icon, MsgButtons buttons,
                 int defaultButton) {
    return dialogs.messageBox(modWrapMessage(text, dialogs), icon, buttons, defaultButton);
}
