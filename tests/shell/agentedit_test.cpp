#include "shell/agentedit.h"

#include "core/model/workspace.h"
#include "fakes.h"
#include "offices.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

const QString kCapitals = QStringLiteral(
    "For more professional printed reports, only the first letter of each name should be "
    "capitalized.  Would you like to correct the name now?");
const QString kEnterBoth = QStringLiteral("Please enter the first and last name for this agent.");

struct Office {
    explicit Office(std::initializer_list<std::pair<const char*, const char*>> names) {
        openMonth(ws, 2027, 1, home.path());
        setAgents(ws, names);
    }
    // Add (row -1) or change the agent at the row.
    AgentEditResult edit(int row, const char* first, const char* last, const char* email = "") {
        ws.gAgentEditMode = row < 0 ? 0 : 1;
        ws.gAgentEditIndex = static_cast<qint16>(row);
        return commitAgentEdit(
            ws, s.ctx,
            {QString::fromUtf8(first), QString::fromUtf8(last), QString::fromUtf8(email), false});
    }
    QStringList items() const {
        QStringList list;
        for (int i = 1; i <= ws.gAgentCount; ++i) {
            list.append(ws.gAgentLast[i] + QStringLiteral(", ") + ws.gAgentFirst[i]);
        }
        return list;
    }
    QTemporaryDir home;
    TestServices s;
    Workspace ws;
};

}  // namespace

// An add puts the agent where its name sorts; a change takes it out of its row and puts it
// where its new name sorts; a change of the address alone is no duplicate of the agent
// itself. Each says where the list changes.
TEST(AgentEdit, AddsAndChangesWhereTheNameSorts) {
    Office office({{"Brennan", "Patrick"}, {"Delgado", "Sofia"}});
    AgentEditResult added = office.edit(-1, "Ana", "de la Cruz", "ana@office.example");
    EXPECT_EQ(office.s.dialogs.texts(), office.s.dialogs.wrapped({kCapitals}));  // "de la"
    EXPECT_EQ(added.end, AgentEditEnd::Close);
    EXPECT_EQ(std::pair(added.removedItem, added.insertedItem), std::pair(-1, 1));
    EXPECT_EQ(office.items(), texts({"Brennan, Patrick", "de la Cruz, Ana", "Delgado, Sofia"}));
    EXPECT_TRUE(logged(office.ws, QStringLiteral("Adding Ana de la Cruz to the agent list")));

    office.s.dialogs.shown.clear();
    const AgentEditResult changed = office.edit(0, "Patrick", "Young", "pat@office.example");
    EXPECT_TRUE(office.s.dialogs.shown.empty());
    EXPECT_EQ(std::pair(changed.removedItem, changed.insertedItem), std::pair(0, 2));
    EXPECT_EQ(office.ws.gAgentEditIndex, 2);
    EXPECT_EQ(office.items(), texts({"de la Cruz, Ana", "Delgado, Sofia", "Young, Patrick"}));
    EXPECT_TRUE(logged(office.ws, QStringLiteral("Editing Patrick Young in the agent list")));

    const AgentEditResult address = office.edit(1, "Sofia", "Delgado", "sofia@office.example");
    EXPECT_EQ(std::pair(address.removedItem, address.insertedItem), std::pair(1, 1));
    EXPECT_EQ(office.ws.gAgentEmail[2], QStringLiteral("sofia@office.example"));
    EXPECT_EQ(office.ws.gDirty, 1);
}

// What the edit refuses or questions, with the words shown and logged; every such edit counts
// as a change all the same. A Yes to the capitals question sends the user back to the box.
TEST(AgentEdit, RefusalsAndTheCapitalsQuestion) {
    const struct {
        int row;  // -1: add
        const char* first;
        const char* last;
        QString shown;
        AgentEditEnd end;
        const char* logLine;
    } cases[] = {
        {-1, "Kim", "", kEnterBoth, AgentEditEnd::TypeLastName, nullptr},
        {1, "", "Chen", kEnterBoth, AgentEditEnd::TypeFirstName, nullptr},
        {-1, "WEI", "chen",
         QStringLiteral("The list already contains a Wei Chen.  Please enter a different name."),
         AgentEditEnd::Close, "Agent list already contains a Wei Chen"},
        // The log line of an add always says "a".
        {-1, "Ann", "Adams",
         QStringLiteral("The list already contains an Ann Adams.  Please enter a different name."),
         AgentEditEnd::Close, "Agent list already contains a Ann Adams"},
        {1, "ann", "ADAMS",
         QStringLiteral(
             "The agent list already contains an Ann Adams.  Please enter a different name."),
         AgentEditEnd::Close, "Agent list already contains an Ann Adams"},
        {-1, "Ian", "McDonald", kCapitals, AgentEditEnd::TypeLastName, nullptr},
        {1, "wei", "Chen", kCapitals, AgentEditEnd::TypeFirstName, nullptr},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.first) + " " + c.last);
        Office office({{"Adams", "Ann"}, {"Chen", "Wei"}});
        office.s.dialogs.answers = {MsgAnswer::Yes};
        const AgentEditResult result = office.edit(c.row, c.first, c.last);

        EXPECT_EQ(office.s.dialogs.texts(), office.s.dialogs.wrapped({c.shown}));
        const bool question = c.shown == kCapitals;
        EXPECT_EQ(office.s.dialogs.shown[0].icon,
                  question ? MsgIcon::Question : MsgIcon::Exclamation);
        EXPECT_EQ(office.s.dialogs.shown[0].buttons, question ? MsgButtons::YesNo : MsgButtons::OK);
        EXPECT_EQ(result.end, c.end);
        EXPECT_EQ(std::pair(result.removedItem, result.insertedItem), std::pair(-1, -1));
        EXPECT_EQ(office.ws.gDirty, 1);
        EXPECT_EQ(office.items(), texts({"Adams, Ann", "Chen, Wei"}));
        if (c.logLine != nullptr) {
            EXPECT_TRUE(logged(office.ws, QString::fromUtf8(c.logLine)));
        }
    }
}

// Deleting asks first, with No as the default; a No changes nothing. The row of the deleted
// agent stays the one chosen. A command on an agent with none chosen says so.
TEST(AgentEdit, DeleteAsksAndAnAgentMustBeChosen) {
    const struct {
        int row;
        MsgAnswer answer;
        const char* names;
        QStringList items;
        std::optional<int> selected;
    } cases[] = {
        {1, MsgAnswer::Yes, "Wei Chen", texts({"Brennan, Patrick", "Delgado, Sofia"}), 1},
        // Past the end: the window then chooses the new last item.
        {2, MsgAnswer::Yes, "Sofia Delgado", texts({"Brennan, Patrick", "Chen, Wei"}), 2},
        {2, MsgAnswer::No, "Sofia Delgado",
         texts({"Brennan, Patrick", "Chen, Wei", "Delgado, Sofia"}), std::nullopt},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.names);
        Office office({{"Brennan", "Patrick"}, {"Chen", "Wei"}, {"Delgado", "Sofia"}});
        office.s.dialogs.answers = {c.answer};
        EXPECT_EQ(deleteAgentAsked(office.ws, office.s.ctx, c.row), c.answer == MsgAnswer::Yes);
        EXPECT_EQ(office.s.dialogs.texts(),
                  office.s.dialogs.wrapped(
                      {QStringLiteral("Deleting an agent will erase any vacations and "
                                      "shift restrictions.  Are you sure you want to "
                                      "delete ") +
                       QString::fromUtf8(c.names) + QLatin1Char('?')}));
        EXPECT_EQ(office.s.dialogs.shown[0].defaultButton, 2);
        EXPECT_EQ(office.items(), c.items);
        EXPECT_EQ(office.ws.gSelectedAgent, c.selected);
        EXPECT_EQ(logged(office.ws, QStringLiteral("Deleting ") + QString::fromUtf8(c.names)),
                  c.answer == MsgAnswer::Yes);
    }

    TestServices s;
    EXPECT_TRUE(agentChosen(s.ctx, 0));
    EXPECT_TRUE(s.dialogs.shown.empty());
    EXPECT_FALSE(agentChosen(s.ctx, -1));
    EXPECT_EQ(s.dialogs.texts(), texts({"Please select an agent from the agent list."}));
    EXPECT_EQ(s.dialogs.shown[0].icon, MsgIcon::Exclamation);
}
