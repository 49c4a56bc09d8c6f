#include "core/model/agentlist.h"
#include "core/model/calendar.h"
#include "core/model/workspace.h"
#include "fakes.h"

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
    const std::tuple<const char*, const char*, int> cases[] = {
        {"Abbott", "Zoe", 0},     {"Chen", "Wei", 1},      {"Zhou", "Lin", 2},
        {"de la Cruz", "Ana", 1}, {"brennan", "Aidan", 0}, {"Brennan Smith", "Jo", 0}};
    for (const auto& [lastName, firstName, position] : cases) {
        SCOPED_TRACE(lastName);
        Workspace ws = office({{"Brennan", "Patrick", 1, 1}, {"Delgado", "Sofia", 9, 6}});
        const QString last = QString::fromUtf8(lastName);
        const QString first = QString::fromUtf8(firstName);
        EXPECT_EQ(addAgent(ws, last, first, last), position);
        QStringList expected = texts({"Brennan, Patrick|1|1", "Delgado, Sofia|9|6"});
        expected.insert(position, agentListItem(last, first) + QStringLiteral("||"));
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
    const std::tuple<const char*, int, const char*, int, QStringList> cases[] = {
        {"first to last", 0, "Young", 2,
         texts({"Chen, Wei|4|3", "Delgado, Sofia|9,30|0,6", "Young, Patrick|1,31|1"})},
        {"last to first", 2, "Adams", 0,
         texts({"Adams, Sofia|9,30|6", "Brennan, Patrick|1,31|0,1", "Chen, Wei|4|3"})},
        {"middle to last", 1, "Zhou", 2,
         texts({"Brennan, Patrick|1,31|1", "Delgado, Sofia|9,30|0,6", "Zhou, Wei|4|3"})},
        {"same place", 1, "Chan", 1,
         texts({"Brennan, Patrick|1,31|1", "Chan, Wei|4|0,3", "Delgado, Sofia|9,30|6"})},
    };
    for (const auto& [what, listIndex, last, position, expected] : cases) {
        SCOPED_TRACE(what);
        Workspace ws = threeAgents(2);
        ws.gVacation[1][31] = ws.gVacation[3][30] = 1;
        ws.gRestriction[2][1][0] = 1;
        const QString first = ws.gAgentFirst[static_cast<std::size_t>(listIndex) + 1];
        const QString name = QString::fromUtf8(last);
        EXPECT_EQ(changeAgent(ws, listIndex, name, first, name), position);
        EXPECT_EQ(marks(ws), expected);
    }
}

// A delete closes the gap in the names always, in the vacations (month days only) only when
// the month has vacations, and in the restrictions only when there are restrictions.
TEST(AgentList, DeleteClosesTheGapWhereTheFlagsSaySo) {
    const std::tuple<const char*, int, int, int, QStringList> cases[] = {
        {"first", 0, 1, 1, texts({"Chen, Wei|4|3", "Delgado, Sofia|9|6"})},
        {"middle", 1, 1, 1, texts({"Brennan, Patrick|1|1", "Delgado, Sofia|9|6"})},
        {"last", 2, 1, 1, texts({"Brennan, Patrick|1|1", "Chen, Wei|4|3"})},
        {"without vacations", 0, 0, 1, texts({"Chen, Wei|1|3", "Delgado, Sofia|4|6"})},
        {"without restrictions", 0, 1, 0, texts({"Chen, Wei|4|1", "Delgado, Sofia|9|3"})},
    };
    for (const auto& [what, listIndex, hasVacations, hasRestrictions, expected] : cases) {
        SCOPED_TRACE(what);
        Workspace ws = threeAgents();
        ws.gHasVacations = hasVacations;
        ws.gHasRestrictions = hasRestrictions;
        deleteAgent(ws, listIndex);
        EXPECT_EQ(marks(ws), expected);
    }

    Workspace only = office({{"Brennan", "Patrick", 1, 1}});
    only.gHasVacations = only.gHasRestrictions = 1;
    deleteAgent(only, 0);
    EXPECT_EQ(marks(only), QStringList());
}

// Duplicates are found whatever the capitals, except in the agent's own row.
TEST(AgentList, DuplicatesAreFoundWhateverTheCapitals) {
    const Workspace ws = office({{"Brennan", "Patrick", 0, 0}, {"Chen", "Wei", 0, 0}});
    EXPECT_EQ(findAgentNamed(ws, QStringLiteral("CHEN"), QStringLiteral("wei")), 2);
    EXPECT_EQ(findAgentNamed(ws, QStringLiteral("Chen"), QStringLiteral("Wei"), 2), 0);
    EXPECT_EQ(findAgentNamed(ws, QStringLiteral("Chen"), QStringLiteral("Wei"), 1), 2);
    EXPECT_EQ(findAgentNamed(ws, QStringLiteral("Chen"), QStringLiteral("Patrick")), 0);
}
