#pragma once

#include "core/model/agentkeys.h"
#include "core/model/workspace.h"
#include "fakes.h"

#include <QFile>
#include <QString>
#include <QTemporaryDir>

#include <string>

// Small offices written by hand for the engines' tests.
namespace handmade {

// A month with agents 1..agents whose keys are "Agent001", "Agent002" … and first names
// "Ann1", "Ann2" …, and a weekly table of one shift of one agent every day. Given a home,
// the log goes there.
inline void makeOffice(Workspace& ws, int year, int month, int agents,
                       const QString& home = QString()) {
    openMonth(ws, year, month, home);
    ws.gAgentCount = agents;
    ws.redimAgents(agents);
    for (int a = 1; a <= agents; ++a) {
        ws.gAgentLast[a] = QStringLiteral("Agent%1").arg(a, 3, 10, QLatin1Char('0'));
        ws.gAgentFirst[a] = QStringLiteral("Ann%1").arg(a);
    }
    modBuildAgentKeys(ws);
    for (int w = 0; w < kWeekdays; ++w) {
        ws.gShiftCount[w] = 1;
        ws.gShiftAgents[w][1] = 0;
    }
}

// Sends the log to a directory that does not exist, where its lines are lost quietly.
inline void loseLogLines(Workspace& ws, const QTemporaryDir& home) {
    ws.gLogFile = home.filePath(QStringLiteral("missing/Desko40.log"));
}

// The log as written, CR LF and all.
inline std::string logText(const Workspace& ws) {
    QFile log(ws.gLogFile);
    return log.open(QIODevice::ReadOnly) ? log.readAll().toStdString() : std::string();
}

// The same number of shifts, each of the same number of agents, on every weekday, or on
// Saturdays and Sundays a number of their own.
inline void setTable(Workspace& ws, int shifts, int agentsPerShift, int weekendShifts = -1) {
    for (int w = 0; w < kWeekdays; ++w) {
        const bool weekend = w == 0 || w == 6;
        ws.gShiftCount[w] = weekend && weekendShifts >= 0 ? weekendShifts : shifts;
        for (int s = 1; s <= ws.gShiftCount[w]; ++s) {
            ws.gShiftAgents[w][s] = agentsPerShift - 1;
        }
    }
}

// A text of its own in every cell, for the engines to write over or leave alone.
inline void fillWithOldSchedule(Workspace& ws) {
    for (std::size_t i = 0; i < ws.gSchedule.size(); ++i) {
        ws.gSchedule[i] = QStringLiteral("old %1").arg(i);
    }
}

// The agent whose key a cell holds; 0 for a cell that holds none.
inline int agentIn(const Workspace& ws, int day, int shift, int slot) {
    const QString& cell = ws.schedule(day, shift, slot);
    for (int a = 1; a <= ws.gAgentCount; ++a) {
        if (!cell.isEmpty() && ws.gAgentKey[a] == cell) {
            return a;
        }
    }
    return 0;
}

}  // namespace handmade
