#include "core/model/agentkeys.h"
#include "core/model/workspace.h"
#include "fakes.h"
#include "offices.h"
#include "tables.h"

#include <gtest/gtest.h>

TEST(AgentKeys, SuffixesFollowTheSharedCounter) {
    for (const QStringList& row : tableRows("core/model/golden/agentkeys.tsv")) {
        SCOPED_TRACE(row[0].toStdString());
        const QStringList names = row[0].split(QLatin1Char('|'), Qt::SkipEmptyParts);
        Workspace ws;
        ws.gAgentCount = static_cast<int>(names.size());
        ws.gAgentLast.resize(names.size() + 1);
        ws.gAgentFirst.resize(names.size() + 1);
        for (int agent = 1; agent <= ws.gAgentCount; ++agent) {
            ws.gAgentLast[agent] = names[agent - 1].section(QLatin1Char(','), 0, 0);
            ws.gAgentFirst[agent] = names[agent - 1].section(QLatin1Char(','), 1);
        }
        modBuildAgentKeys(ws);
        ASSERT_EQ(ws.gAgentKey.size(), names.size() + 1);
        EXPECT_TRUE(ws.gAgentKey[0].isEmpty());
        const QStringList keys(ws.gAgentKey.begin() + 1, ws.gAgentKey.end());
        const QStringList firstKeys(ws.gAgentFirstKey.begin() + 1, ws.gAgentFirstKey.end());
        EXPECT_EQ(keys.join(QLatin1Char('|')), row.value(1));
        EXPECT_EQ(firstKeys.join(QLatin1Char('|')), row.value(2));
    }
}

// With first names printed, a cell shows the first-name key of the first agent whose key it
// holds, or nothing for an agent who is gone; otherwise the cell shows as it stands.
TEST(AgentKeys, DesiredNameOfACell) {
    Workspace ws;
    setAgents(ws, {{"Smith", "Jane"}, {"Smith", "John"}, {"Lee", "Jane"}});  // one "Smith (J.)"
    for (const QStringList& row : tableRows("core/model/golden/desirednames.tsv")) {
        ws.gCalendarUseFirstName = row[0];
        EXPECT_EQ(modGetDesiredName(ws, row[1]), row.value(2)) << row.join(u' ').toStdString();
    }
}
