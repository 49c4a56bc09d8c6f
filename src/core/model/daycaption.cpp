#include "core/model/daycaption.h"

#include "core/model/workspace.h"

#include <algorithm>

namespace {

constexpr int kNoteLine = 6;
const QChar kLineBreak = QLatin1Char('\n');

}  // namespace

QString dayCaption(const Workspace& ws, int day) {
    if (ws.gHoliday[day] == 1) {
        return QString(kNoteLine - 1, kLineBreak) + ws.gHolidayName[day];
    }
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
    if (ws.gNoted[day] == 1) {
        const auto lines = caption.count(kLineBreak);
        if (lines < kNoteLine - 1) {
            caption += QString(kNoteLine - 1 - lines, kLineBreak);
        }
        caption += ws.gNotedText[day];
    }
    return caption;
}
