#include "shell/agentkeys.h"
#include "workspace/workspace.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace {

struct Name {
    const char* last;
    const char* first;
};

struct Keys {
    QStringList keys;
    QStringList firstKeys;
};

Keys keysOf(std::initializer_list<Name> names) {
    Workspace ws;
    ws.gAgentCount = static_cast<int>(names.size());
    ws.redimAgents(ws.gAgentCount);
    int i = 0;
    for (const Name& name : names) {
        ++i;
        ws.gAgentLast[i] = QString::fromUtf8(name.last);
        ws.gAgentFirst[i] = QString::fromUtf8(name.first);
    }
    modBuildAgentKeys(ws);
    Keys result;
    for (int agent = 1; agent <= ws.gAgentCount; ++agent) {
        result.keys.append(ws.gAgentKey[agent]);
        result.firstKeys.append(ws.gAgentFirstKey[agent]);
    }
    return result;
}

QStringList list(std::initializer_list<const char*> texts) {
    QStringList result;
    for (const char* text : texts) {
        result.append(QString::fromUtf8(text));
    }
    return result;
}

}  // namespace

TEST(AgentKeys, SuffixesFollowTheSharedCounter) {
    struct Case {
        const char* what;
        Keys got;
        QStringList keys;
        QStringList firstKeys;
    };
    const Case cases[] = {
        {"no shared names", keysOf({{"Brown", "Al"}, {"Smith", "Jo"}}), list({"Brown", "Smith"}),
         list({"Al", "Jo"})},
        {"two Smiths with different initials", keysOf({{"Smith", "Adam"}, {"Smith", "John"}}),
         list({"Smith (A.)", "Smith (J.)"}), list({"Adam", "John"})},
        {"two Smiths of one initial share one key", keysOf({{"Smith", "Jane"}, {"Smith", "John"}}),
         list({"Smith (J.)", "Smith (J.)"}), list({"Jane", "John"})},
        {"three Smiths lengthen every later suffix",
         keysOf({{"Smith", "Adam"},
                 {"Smith", "Jane"},
                 {"Smith", "John"},
                 {"Young", "Bo"},
                 {"Young", "Cy"}}),
         list({"Smith (Ad.)", "Smith (Ja.)", "Smith (Jo.)", "Young (Bo.)", "Young (Cy.)"}),
         list({"Adam", "Jane", "John", "Bo", "Cy"})},
        {"a first name of three agents carries its length into the last-name keys",
         keysOf(
             {{"Green", "Ann"}, {"Grey", "Ann"}, {"Gray", "Ann"}, {"Lee", "Bob"}, {"Lee", "Bill"}}),
         list({"Green", "Grey", "Gray", "Lee (Bob.)", "Lee (Bill.)"}),
         list({"Ann (Gre.)", "Ann (Gre.)", "Ann (Gray.)", "Bob", "Bill"})},
        {"a name shorter than the suffix is taken whole",
         keysOf({{"Ng", "Ann"}, {"Ngu", "Ann"}, {"X", "Ann"}}), list({"Ng", "Ngu", "X"}),
         list({"Ann (N.)", "Ann (N.)", "Ann (X.)"})},
        {"an agent's own name is not compared with itself", keysOf({{"Smith", "John"}}),
         list({"Smith"}), list({"John"})},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(c.got.keys, c.keys) << c.what;
        EXPECT_EQ(c.got.firstKeys, c.firstKeys) << c.what;
    }
}

// Three agents of one full name never come apart: the suffix grows to its limit and stops.
TEST(AgentKeys, IdenticalAgentsStopAtTheLongestSuffix) {
    const Keys got =
        keysOf({{"Smith", "John"}, {"Smith", "John"}, {"Smith", "John"}, {"Zed", "Al"}});
    EXPECT_EQ(got.firstKeys, list({"John (Smith.)", "John (Smith.)", "John (Smith.)", "Al"}));
    EXPECT_EQ(got.keys, list({"Smith (John.)", "Smith (John.)", "Smith (John.)", "Zed"}));
}

TEST(AgentKeys, NoAgentsLeaveOnlyIndexZero) {
    Workspace ws;
    modBuildAgentKeys(ws);
    ASSERT_EQ(ws.gAgentKey.size(), 1U);
    EXPECT_TRUE(ws.gAgentKey[0].isEmpty());
}
