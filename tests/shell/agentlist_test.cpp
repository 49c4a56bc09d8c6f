#include "shell/agentlist.h"
#include "fakes.h"
#include "workspace/workspace.h"

#include <gtest/gtest.h>

namespace {

// Each agent carries marks that tell its rows apart: a vacation on the day and a restriction
// on the shift of its own number, on Monday.
struct Agent {
    const char* last;
    const char* first;
    int day;
    int shift;
};

Workspace office(std::initializer_list<Agent> agents, int month = 1) {
    Workspace ws;
    modInitNameTables(ws);
    ws.gCurrentMonth = month;
    ws.gCurrentYear = 2027;
    ws.gAgentCount = static_cast<int>(agents.size());
    ws.redimAgents(ws.gAgentCount);
    int i = 0;
    for (const Agent& a : agents) {
        ++i;
        ws.gAgentLast[i] = QString::fromUtf8(a.last);
        ws.gAgentFirst[i] = QString::fromUtf8(a.first);
        ws.gAgentEmail[i] = ws.gAgentFirst[i].toLower() + QStringLiteral("@office.example");
        if (a.day != 0) {
            ws.gVacation[i][a.day] = 1;
        }
        if (a.shift != 0) {
            ws.gRestriction[i][1][a.shift] = 1;
        }
    }
    return ws;
}

QStringList items(const Workspace& ws) {
    QStringList list;
    for (int i = 1; i <= ws.gAgentCount; ++i) {
        list.append(agentListItem(ws.gAgentLast[i], ws.gAgentFirst[i]));
    }
    return list;
}

// The vacation days of each agent, in agent order, as "last:day,day".
QStringList vacations(const Workspace& ws) {
    QStringList list;
    for (int i = 1; i <= ws.gAgentCount; ++i) {
        QStringList days;
        for (int day = 0; day < kMonthDaySlots; ++day) {
            if (ws.gVacation[i][day] != 0) {
                days.append(QString::number(day));
            }
        }
        list.append(ws.gAgentLast[i] + QLatin1Char(':') + days.join(QLatin1Char(',')));
    }
    return list;
}

// The restricted Monday shifts of each agent, shift 0 included.
QStringList restrictions(const Workspace& ws) {
    QStringList list;
    for (int i = 1; i <= ws.gAgentCount; ++i) {
        QStringList shifts;
        for (int shift = 0; shift < kShiftSlots; ++shift) {
            if (ws.gRestriction[i][1][shift] != 0) {
                shifts.append(QString::number(shift));
            }
        }
        list.append(ws.gAgentLast[i] + QLatin1Char(':') + shifts.join(QLatin1Char(',')));
    }
    return list;
}

void expectArraysSized(const Workspace& ws) {
    const auto size = static_cast<std::size_t>(ws.gAgentCount) + 1;
    EXPECT_EQ(ws.gAgentLast.size(), size);
    EXPECT_EQ(ws.gAgentFirst.size(), size);
    EXPECT_EQ(ws.gAgentEmail.size(), size);
    EXPECT_EQ(ws.gAgentKey.size(), size);
    EXPECT_EQ(ws.gVacation.size(), size);
    EXPECT_EQ(ws.gRestriction.size(), size);
}

}  // namespace

// New agents go where a sorted list box puts them, capitals ignored, and the rows behind them
// move down with their vacations and restrictions.
TEST(AgentList, AddPutsTheAgentInNameOrderAndMovesTheRowsBehind) {
    struct Case {
        const char* last;
        const char* first;
        int position;
        QStringList items;
    };
    const Case cases[] = {
        {"Abbott", "Zoe", 0, texts({"Abbott, Zoe", "Brennan, Patrick", "Delgado, Sofia"})},
        {"Chen", "Wei", 1, texts({"Brennan, Patrick", "Chen, Wei", "Delgado, Sofia"})},
        {"Zhou", "Lin", 2, texts({"Brennan, Patrick", "Delgado, Sofia", "Zhou, Lin"})},
        // A case-sensitive order would put every capital before "d".
        {"de la Cruz", "Ana", 1, texts({"Brennan, Patrick", "de la Cruz, Ana", "Delgado, Sofia"})},
        {"brennan", "Aidan", 0, texts({"brennan, Aidan", "Brennan, Patrick", "Delgado, Sofia"})},
        // The item is compared whole: "Brennan, P..." sorts after "Brennan Smith, ...".
        {"Brennan Smith", "Jo", 0,
         texts({"Brennan Smith, Jo", "Brennan, Patrick", "Delgado, Sofia"})},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.last);
        Workspace ws = office({{"Brennan", "Patrick", 3, 2}, {"Delgado", "Sofia", 9, 5}});
        const QString last = QString::fromUtf8(c.last);
        EXPECT_EQ(
            addAgent(ws, last, QString::fromUtf8(c.first), QStringLiteral("new@office.example")),
            c.position);
        EXPECT_EQ(ws.gAgentCount, 3);
        expectArraysSized(ws);
        EXPECT_EQ(items(ws), c.items);
        EXPECT_EQ(ws.gAgentEmail[c.position + 1], QStringLiteral("new@office.example"));
        QStringList expectedDays = texts({"Brennan:3", "Delgado:9"});
        QStringList expectedShifts = texts({"Brennan:2", "Delgado:5"});
        expectedDays.insert(c.position, last + QLatin1Char(':'));
        expectedShifts.insert(c.position, last + QLatin1Char(':'));
        EXPECT_EQ(vacations(ws), expectedDays);
        EXPECT_EQ(restrictions(ws), expectedShifts);
    }
}

// Agents added one by one in no order end up sorted, each with its own address.
TEST(AgentList, AddsInAnyOrderGiveTheSortedList) {
    Workspace ws = office({});
    for (const char* last : {"Olsen", "brady", "Kowalski", "Adams", "Young"}) {
        const QString name = QString::fromUtf8(last);
        addAgent(ws, name, QStringLiteral("Kim"), name.toLower() + QStringLiteral("@x.example"));
    }
    EXPECT_EQ(items(ws),
              texts({"Adams, Kim", "brady, Kim", "Kowalski, Kim", "Olsen, Kim", "Young, Kim"}));
    for (int i = 1; i <= ws.gAgentCount; ++i) {
        EXPECT_EQ(ws.gAgentEmail[i], ws.gAgentLast[i].toLower() + QStringLiteral("@x.example"));
    }
    expectArraysSized(ws);
}

// An add moves vacations over the current month's days only: in a 30-day month the flag of
// day 31 stays in its old row, and the new row keeps whatever day 31 it inherits.
TEST(AgentList, AddInAShortMonthLeavesDay31Behind) {
    Workspace ws = office({{"Brennan", "Patrick", 31, 0}, {"Delgado", "Sofia", 30, 0}}, 4);
    ws.gVacation[1][12] = 1;
    addAgent(ws, QStringLiteral("Abbott"), QStringLiteral("Zoe"), QString());
    EXPECT_EQ(vacations(ws), texts({"Abbott:31", "Brennan:12", "Delgado:30"}));
}

// A change moves the agent, with all of its vacation days (31 too, in any month) and its
// restrictions, to where its new name sorts; restrictions of shift 0 stay with the row.
TEST(AgentList, ChangeTakesTheConstraintsAlongToTheNewPlace) {
    struct Case {
        const char* what;
        int listIndex;
        const char* last;
        int position;
        QStringList items;
        QStringList days;
        QStringList shifts;
    };
    const Case cases[] = {
        {"first to last", 0, "Young", 2, texts({"Chen, Wei", "Delgado, Sofia", "Young, Patrick"}),
         texts({"Chen:4", "Delgado:9", "Young:3,31"}), texts({"Chen:3", "Delgado:0,5", "Young:2"})},
        {"last to first", 2, "Adams", 0, texts({"Adams, Sofia", "Brennan, Patrick", "Chen, Wei"}),
         texts({"Adams:9", "Brennan:3,31", "Chen:4"}), texts({"Adams:5", "Brennan:0,2", "Chen:3"})},
        {"middle to last", 1, "Zhou", 2, texts({"Brennan, Patrick", "Delgado, Sofia", "Zhou, Wei"}),
         texts({"Brennan:3,31", "Delgado:9", "Zhou:4"}),
         texts({"Brennan:2", "Delgado:0,5", "Zhou:3"})},
        {"same place", 1, "Chan", 1, texts({"Brennan, Patrick", "Chan, Wei", "Delgado, Sofia"}),
         texts({"Brennan:3,31", "Chan:4", "Delgado:9"}),
         texts({"Brennan:2", "Chan:0,3", "Delgado:5"})},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        Workspace ws = office(
            {{"Brennan", "Patrick", 3, 2}, {"Chen", "Wei", 4, 3}, {"Delgado", "Sofia", 9, 5}}, 2);
        ws.gVacation[1][31] = 1;
        ws.gRestriction[2][1][0] = 1;
        const auto agent = static_cast<std::size_t>(c.listIndex) + 1;
        const QString first = ws.gAgentFirst[agent];
        EXPECT_EQ(changeAgent(ws, c.listIndex, QString::fromUtf8(c.last), first,
                              QStringLiteral("changed@office.example")),
                  c.position);
        EXPECT_EQ(ws.gAgentCount, 3);
        expectArraysSized(ws);
        EXPECT_EQ(items(ws), c.items);
        EXPECT_EQ(vacations(ws), c.days);
        EXPECT_EQ(restrictions(ws), c.shifts);
        EXPECT_EQ(ws.gAgentEmail[c.position + 1], QStringLiteral("changed@office.example"));
    }
}

// A delete closes the gap in the names always, in the vacations (month days only) only when
// the month has vacations, and in the restrictions only when there are restrictions.
TEST(AgentList, DeleteClosesTheGapWhereTheFlagsSaySo) {
    struct Case {
        const char* what;
        int listIndex;
        int hasVacations;
        int hasRestrictions;
        QStringList items;
        QStringList days;
        QStringList shifts;
    };
    const Case cases[] = {
        {"first", 0, 1, 1, texts({"Chen, Wei", "Delgado, Sofia"}), texts({"Chen:4", "Delgado:9"}),
         texts({"Chen:3", "Delgado:5"})},
        {"middle", 1, 1, 1, texts({"Brennan, Patrick", "Delgado, Sofia"}),
         texts({"Brennan:3", "Delgado:9"}), texts({"Brennan:2", "Delgado:5"})},
        {"last", 2, 1, 1, texts({"Brennan, Patrick", "Chen, Wei"}), texts({"Brennan:3", "Chen:4"}),
         texts({"Brennan:2", "Chen:3"})},
        {"without vacations", 0, 0, 1, texts({"Chen, Wei", "Delgado, Sofia"}),
         texts({"Chen:3", "Delgado:4"}), texts({"Chen:3", "Delgado:5"})},
        {"without restrictions", 0, 1, 0, texts({"Chen, Wei", "Delgado, Sofia"}),
         texts({"Chen:4", "Delgado:9"}), texts({"Chen:2", "Delgado:3"})},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        Workspace ws = office(
            {{"Brennan", "Patrick", 3, 2}, {"Chen", "Wei", 4, 3}, {"Delgado", "Sofia", 9, 5}});
        ws.gHasVacations = c.hasVacations;
        ws.gHasRestrictions = c.hasRestrictions;
        deleteAgent(ws, c.listIndex);
        EXPECT_EQ(ws.gAgentCount, 2);
        expectArraysSized(ws);
        EXPECT_EQ(items(ws), c.items);
        EXPECT_EQ(vacations(ws), c.days);
        EXPECT_EQ(restrictions(ws), c.shifts);
    }
}

// Vacations of a deleted agent's followers move only over the current month's days.
TEST(AgentList, DeleteInAShortMonthLeavesDay31Behind) {
    Workspace ws = office({{"Brennan", "Patrick", 31, 0}, {"Chen", "Wei", 31, 0}}, 4);
    ws.gVacation[2][7] = 1;
    ws.gHasVacations = 1;
    deleteAgent(ws, 0);
    EXPECT_EQ(vacations(ws), texts({"Chen:7,31"}));

    Workspace only = office({{"Brennan", "Patrick", 3, 2}});
    only.gHasVacations = 1;
    deleteAgent(only, 0);
    EXPECT_EQ(only.gAgentCount, 0);
    expectArraysSized(only);
}

TEST(AgentList, DuplicatesAreFoundWhateverTheCapitals) {
    const Workspace ws = office({{"Brennan", "Patrick", 0, 0}, {"Chen", "Wei", 0, 0}});
    EXPECT_EQ(findAgentNamed(ws, QStringLiteral("CHEN"), QStringLiteral("wei")), 2);
    EXPECT_EQ(findAgentNamed(ws, QStringLiteral("Chen"), QStringLiteral("Wei"), 2), 0);
    EXPECT_EQ(findAgentNamed(ws, QStringLiteral("Chen"), QStringLiteral("Wei"), 1), 2);
    EXPECT_EQ(findAgentNamed(ws, QStringLiteral("Chen"), QStringLiteral("Patrick")), 0);
}

TEST(AgentList, ArticleAndCapitals) {
    struct Case {
        const char* first;
        const char* article;
    };
    const Case articles[] = {{"Anna", "an"}, {"eve", "an"}, {"Ivan", "an"},
                             {"Olga", "an"}, {"Uma", "an"}, {"Yusuf", "a"},
                             {"yara", "a"},  {"Bo", "a"},   {"", "a"}};
    for (const Case& c : articles) {
        EXPECT_EQ(agentArticle(QString::fromUtf8(c.first)), QString::fromUtf8(c.article))
            << c.first;
    }

    struct Name {
        const char* name;
        bool proper;
    };
    const Name names[] = {{"Smith", true},     {"smith", false},      {"SMITH", false},
                          {"McDonald", false}, {"Smith-Jones", true}, {"Smith-jones", false},
                          {"Van Dyke", true},  {"O'Brien", false},    {"", true}};
    for (const Name& n : names) {
        EXPECT_EQ(hasProperCapitals(QString::fromUtf8(n.name)), n.proper) << n.name;
    }
}
