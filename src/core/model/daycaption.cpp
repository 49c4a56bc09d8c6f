#include "core/model/daycaption.h"

#include "core/model/workspace.h"

#include <QStringList>

#include <algorithm>

namespace {

constexpr int kNoteLine = 6;
const QChar kLineBreak = QLatin1Char('\n');

// The keys of each shift two to a line, joined by a slash; a shift of one agent has a line
// to itself. Every line ends in a line break.
QString shiftLines(const Workspace& ws, int day) {
    QString caption;
    const int w = ws.weekdayOf(day);
    const int shifts = std::min(ws.gShiftCount[w], kMaxShift);
    for (int s = 1; s <= shifts; ++s) {
        const int last = std::min(ws.gShiftAgents[w][s], kMaxSlot);
        for (int k = 0; k <= last; ++k) {
            caption += ws.schedule(day, s, k);
            const bool joined = (k == 0 && last > 0) || (k == 2 && last > 2);
            caption += joined ? QLatin1Char('/') : kLineBreak;
        }
    }
    return caption;
}

}  // namespace

QString dayCaption(const Workspace& ws, int day) {
    if (ws.gHoliday[day] == 1) {
        return QString(kNoteLine - 1, kLineBreak) + ws.gHolidayName[day];
    }
    QString caption = shiftLines(ws, day);
    if (ws.gNoted[day] == 1) {
        const auto lines = caption.count(kLineBreak);
        if (lines < kNoteLine - 1) {
            caption += QString(kNoteLine - 1 - lines, kLineBreak);
        }
        caption += ws.gNotedText[day];
    }
    return caption;
}

QString spokenDate(const Workspace& ws, int day) {
    return ws.gDayNames[ws.weekdayOf(day)] + QStringLiteral(", ") + ws.currentMonthName() +
           QLatin1Char(' ') + QString::number(day);
}

QString daySpokenText(const Workspace& ws, int day) {
    QStringList said;
    if (ws.gHoliday[day] == 1) {
        said.append(ws.gHolidayName[day]);
    } else {
        const QString names =
            shiftLines(ws, day).split(kLineBreak, Qt::SkipEmptyParts).join(QStringLiteral(", "));
        if (!names.isEmpty()) {
            said.append(names);
        }
        if (ws.gNoted[day] == 1 && !ws.gNotedText[day].isEmpty()) {
            said.append(ws.gNotedText[day]);
        }
    }
    const QString date = spokenDate(ws, day);
    return said.isEmpty() ? date : date + QStringLiteral(": ") + said.join(QStringLiteral("; "));
}
