#include "export/mailbody.h"

#include "core/model/workspace.h"
#include "export/shifttimes.h"

namespace {

const QString kLineBreak = QStringLiteral("\r\n");

// The agent fills one of the shift's slots on that day.
bool works(const Workspace& ws, int agent, int day, int weekday, int shift) {
    for (int slot = 0; slot <= highestSlotOf(ws, weekday, shift); ++slot) {
        if (ws.schedule(day, shift, slot) == ws.gAgentKey[agent]) {
            return true;
        }
    }
    return false;
}

}  // namespace

QString agentMailBody(const Workspace& ws, int agent) {
    QString body = kLineBreak + ws.gEmailBody + kLineBreak + kLineBreak;
    const QString month = ws.currentMonthName();
    for (int day = 1; day <= ws.currentMonthDays(); ++day) {
        const int weekday = ws.weekdayOf(day);
        for (int shift = 1; shift <= shiftsOn(ws, weekday); ++shift) {
            if (!works(ws, agent, day, weekday, shift)) {
                continue;
            }
            body += QStringLiteral("     ") + month + QLatin1Char(' ') +
                    QString::number(day).leftJustified(2) + QStringLiteral("  (") +
                    ws.gDayNames[weekday] + QStringLiteral(")  ") +
                    QString(std::max<qsizetype>(0, 9 - ws.gDayNames[weekday].size()),
                            QLatin1Char(' ')) +
                    ws.gShiftText[weekday][shift] + kLineBreak;
        }
    }
    return body;
}
