#include "core/model/agentlist.h"
#include "core/model/calendar.h"
#include "core/model/workspace.h"
#include "fakes.h"
#include "tables.h"

#include <gtest/gtest.h>

#include <tuple>

namespace {

// Each agent, last and first name, carries marks that tell its rows apart: a vacation on its
// day, a Monday restriction on its shift (none for 0), and its last name as its address.
Workspace office(std::initializer_list<std::tuple<const char*, const char*, int, int>> agents,
                 int month = 1) {
    Workspace ws;
    modInitNameTables(ws);
    ws.gCurrentMonth = month;
    ws.gCurrentYear = 2027;
    ws.gAgentCount = static_cast<int>(agents.size());
    ws.redimAgents(ws.gAgentCount);
    int i = 0;
    for (const auto& [last, first, day, shift] : agents) {
        ++i;
        ws.gAgentLast[i] = ws.gAgentEmail[i] = QString::fromUtf8(last);
        ws.gAgentFirst[i] = QString::fromUtf8(first);
        ws.gVacation[i][day] = day != 0 ? 1 : 0;
        ws.gRestriction[i][1][shift] = shift != 0 ? 1 : 0;
    }
    return ws;
}

// The indexes of the flags that are set, 0 included.
template <std::size_t N>
QString setFlags(const std::array<int, N>& flags) {
    QStringList set;
    for (std::size_t i = 0; i < N; ++i) {
        if (flags[i] != 0) {
            set.append(QString::number(i));
        }
    }
    return set.join(QLatin1Char(','));
}

// Each agent in agent order as "list item|vacation days|restricted Monday shifts", after
// checking that every array has a row per agent and that each address went with its agent.
QStringList marks(const Workspace& ws) {
    const auto size = static_cast<std::size_t>(ws.gAgentCount) + 1;
    for (const std::size_t actual :
         {ws.gAgentLast.size(), ws.gAgentFirst.size(), ws.gAgentEmail.size(), ws.gAgentKey.size(),
          ws.gAgentFirstKey.size(), ws.gVacation.size(), ws.gRestriction.size()}) {
        EXPECT_EQ(actual, size);
    }
    QStringList list;
    for (int i = 1; i <= ws.gAgentCount; ++i) {
        EXPECT_EQ(ws.gAgentEmail[i], ws.gAgentLast[i]);
        list.append(agentListItem(ws.gAgentLast[i], ws.gAgentFirst[i]) + QLatin1Char('|') +
                    setFlags(ws.gVacation[i]) + QLatin1Char('|') + setFlags(ws.gRestriction[i][1]));
    }
    return list;
}

// Shifts 1 and 6 and day 1 sit on the edges of the ranges that move.
Workspace threeAgents(int month = 1) {
    return office({{"Brennan", "Patrick", 1, 1}, {"Chen", "Wei", 4, 3}, {"Delgado", "Sofia", 9, 6}},
                  month);
}

}  // namespace

// New agents go where a sorted list box puts them, capitals ignored and the item compared
// whole, and the rows behind them move down with their vacations and restrictions; the new row
// has none.
TEST(AgentList, AddPutsTheAgentInNameOrderAndMovesTheRowsBehind) {
    for (const QStringList& row : tableRows("core/model/golden/agentadds.tsv")) {
        SCOPED_TRACE(row[0].toStdString());
        Workspace ws = office({{"Brennan", "Patrick", 1, 1}, {"Delgado", "Sofia", 9, 6}});
        const int position = row[2].toInt();
        EXPECT_EQ(addAgent(ws, row[0], row[1], row[0]), position);
        QStringList expected = texts({"Brennan, Patrick|1|1", "Delgado, Sofia|9|6"});
        expected.insert(position, agentListItem(row[0], row[1]) + QStringLiteral("||"));
        EXPECT_EQ(marks(ws), expected);
    }
}

// In a 30-day month an add or a delete moves vacations over days 1..30 only: the flag of day
// 31 stays in its old row, and the new row keeps whatever day 31 it inherits.
TEST(AgentList, AddAndDeleteInAShortMonthLeaveDay31Behind) {
    Workspace ws = office({{"Brennan", "Patrick", 31, 0}, {"Delgado", "Sofia", 30, 0}}, 4);
    ws.gVacation[1][12] = 1;
    addAgent(ws, QStringLiteral("Abbott"), QStringLiteral("Zoe"), QStringLiteral("Abbott"));
    EXPECT_EQ(marks(ws), texts({"Abbott, Zoe|31|", "Brennan, Patrick|12|", "Delgado, Sofia|30|"}));
    ws.gHasVacations = 1;
    deleteAgent(ws, 0);
    EXPECT_EQ(marks(ws), texts({"Brennan, Patrick|12,31|", "Delgado, Sofia|30|"}));
}

// A change moves the agent, with all of its vacation days (31 too, in any month) and its
// restrictions, to where its new name sorts, and the rows it passes keep all their days as
// well; restrictions of shift 0 stay with the row.
TEST(AgentList, ChangeTakesTheConstraintsAlongToTheNewPlace) {
    for (const QStringList& row : tableRows("core/model/golden/agentchanges.tsv")) {
        SCOPED_TRACE(row[0].toStdString());
        Workspace ws = threeAgents(2);
        ws.gVacation[1][31] = ws.gVacation[3][30] = 1;
        ws.gRestriction[2][1][0] = 1;
        const int listIndex = row[1].toInt();
        const QString first = ws.gAgentFirst[static_cast<std::size_t>(listIndex) + 1];
        EXPECT_EQ(changeAgent(ws, listIndex, row[2], first, row[2]), row[3].toInt());
        EXPECT_EQ(marks(ws), row.mid(4));
    }
}

// A delete closes the gap in the names always, in the vacations (month days only) only when
// the month has vacations, and in the restrictions only when there are restrictions.
TEST(AgentList, DeleteClosesTheGapWhereTheFlagsSaySo) {
    for (const QStringList& row : tableRows("core/model/golden/agentdeletes.tsv")) {
        SCOPED_TRACE(row[0].toStdString());
        Workspace ws = threeAgents();
        ws.gHasVacations = row[2].toInt();
        ws.gHasRestrictions = row[3].toInt();
        deleteAgent(ws, row[1].toInt());
        EXPECT_EQ(marks(ws), row.mid(4));
    }

    Workspace only = office({{"Brennan", "Patrick", 1, 1}});
    only.gHasVacations = only.gHasRestrictions = 1;
    deleteAgent(only, 0);
    EXPECT_EQ(marks(only), QStringList());
}

// Only both names make a duplicate. Capitals and the agent's own row are the cases of the agent
// editing flows.
TEST(AgentList, OnlyBothNamesMakeADuplicate) {
    const Workspace ws = office({{"Brennan", "Patrick", 0, 0}, {"Chen", "Wei", 0, 0}});
    EXPECT_EQ(findAgentNamed(ws, QStringLiteral("Chen"), QStringLiteral("Wei")), 2);
    EXPECT_EQ(findAgentNamed(ws, QStringLiteral("Chen"), QStringLiteral("Patrick")), 0);
}
