#include "offices.h"

#include "fakes.h"

#include "core/model/agentkeys.h"

#include <QFile>
#include <QTemporaryDir>

void setAgents(Workspace& ws, std::initializer_list<std::pair<const char*, const char*>> names) {
    ws.gAgentCount = static_cast<int>(names.size());
    ws.redimAgents(ws.gAgentCount);
    int i = 0;
    for (const auto& [last, first] : names) {
        ws.gAgentLast[++i] = QString::fromUtf8(last);
        ws.gAgentFirst[i] = QString::fromUtf8(first);
    }
    modBuildAgentKeys(ws);
}

void makeOffice(Workspace& ws, int year, int month, int agents, const QString& home) {
    openMonth(ws, year, month, home);
    ws.gAgentCount = agents;
    ws.redimAgents(agents);
    for (int a = 1; a <= agents; ++a) {
        ws.gAgentLast[a] = QStringLiteral("Agent%1").arg(a, 3, 10, QLatin1Char('0'));
        ws.gAgentFirst[a] = QStringLiteral("Ann%1").arg(a);
    }
    modBuildAgentKeys(ws);
    setTable(ws, 1, 1);
}

void loseLogLines(Workspace& ws, const QTemporaryDir& home) {
    ws.gLogFile = home.filePath(QStringLiteral("missing/Desko40.log"));
}

std::string logText(const Workspace& ws) {
    QFile log(ws.gLogFile);
    return log.open(QIODevice::ReadOnly) ? log.readAll().toStdString() : std::string();
}

void setTable(Workspace& ws, int shifts, int agentsPerShift, int weekendShifts) {
    for (int w = 0; w < kWeekdays; ++w) {
        const bool weekend = w == 0 || w == 6;
        ws.gShiftCount[w] = weekend && weekendShifts >= 0 ? weekendShifts : shifts;
        for (int s = 1; s <= ws.gShiftCount[w]; ++s) {
            ws.gShiftAgents[w][s] = agentsPerShift - 1;
        }
    }
}

void setShifts(Workspace& ws, std::initializer_list<std::vector<int>> highestSlots) {
    int w = 0;
    for (const std::vector<int>& shifts : highestSlots) {
        ws.gShiftCount[w] = static_cast<int>(shifts.size());
        for (int s = 1; s <= ws.gShiftCount[w]; ++s) {
            ws.gShiftAgents[w][s] = shifts[static_cast<std::size_t>(s - 1)];
        }
        ++w;
    }
}

void dealInTurn(Workspace& ws) {
    int next = 0;
    for (int d = 1; d <= ws.currentMonthDays(); ++d) {
        const int w = ws.weekdayOf(d);
        for (int s = 1; s <= ws.gShiftCount[w]; ++s) {
            for (int k = 0; k <= ws.gShiftAgents[w][s]; ++k) {
                ws.schedule(d, s, k) = ws.gAgentKey[1 + next++ % ws.gAgentCount];
            }
        }
    }
}

void fillWithOldSchedule(Workspace& ws) {
    for (std::size_t i = 0; i < ws.gSchedule.size(); ++i) {
        ws.gSchedule[i] = QStringLiteral("old %1").arg(i);
    }
}

int agentIn(const Workspace& ws, int day, int shift, int slot) {
    const QString& cell = ws.schedule(day, shift, slot);
    for (int a = 1; a <= ws.gAgentCount; ++a) {
        if (!cell.isEmpty() && ws.gAgentKey[a] == cell) {
            return a;
        }
    }
    return 0;
}
