#include "core/model/agentkeys.h"
#include "core/model/workspace.h"
#include "fakes.h"
#include "offices.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace {

struct Keys {
    QStringList keys;
    QStringList firstKeys;
};

Keys keysOf(std::initializer_list<std::pair<const char*, const char*>> names) {
    Workspace ws;
    setAgents(ws, names);
    Keys result;
    for (int agent = 1; agent <= ws.gAgentCount; ++agent) {
        result.keys.append(ws.gAgentKey[agent]);
        result.firstKeys.append(ws.gAgentFirstKey[agent]);
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
        {"no shared names", keysOf({{"Brown", "Al"}, {"Smith", "Jo"}}), texts({"Brown", "Smith"}),
         texts({"Al", "Jo"})},
        {"two Smiths with different initials", keysOf({{"Smith", "Adam"}, {"Smith", "John"}}),
         texts({"Smith (A.)", "Smith (J.)"}), texts({"Adam", "John"})},
        {"two Smiths of one initial share one key", keysOf({{"Smith", "Jane"}, {"Smith", "John"}}),
         texts({"Smith (J.)", "Smith (J.)"}), texts({"Jane", "John"})},
        {"three Smiths lengthen every later suffix",
         keysOf({{"Smith", "Adam"},
                 {"Smith", "Jane"},
                 {"Smith", "John"},
                 {"Young", "Bo"},
                 {"Young", "Cy"}}),
         texts({"Smith (Ad.)", "Smith (Ja.)", "Smith (Jo.)", "Young (Bo.)", "Young (Cy.)"}),
         texts({"Adam", "Jane", "John", "Bo", "Cy"})},
        {"a first name of three agents carries its length into the last-name keys",
         keysOf(
             {{"Green", "Ann"}, {"Grey", "Ann"}, {"Gray", "Ann"}, {"Lee", "Bob"}, {"Lee", "Bill"}}),
         texts({"Green", "Grey", "Gray", "Lee (Bob.)", "Lee (Bill.)"}),
         texts({"Ann (Gre.)", "Ann (Gre.)", "Ann (Gray.)", "Bob", "Bill"})},
        {"a name shorter than the suffix is taken whole",
         keysOf({{"Ng", "Ann"}, {"Ngu", "Ann"}, {"X", "Ann"}}), texts({"Ng", "Ngu", "X"}),
         texts({"Ann (N.)", "Ann (N.)", "Ann (X.)"})},
        {"an agent's own name is not compared with itself", keysOf({{"Smith", "John"}}),
         texts({"Smith"}), texts({"John"})},
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
    EXPECT_EQ(got.firstKeys, texts({"John (Smith.)", "John (Smith.)", "John (Smith.)", "Al"}));
    EXPECT_EQ(got.keys, texts({"Smith (John.)", "Smith (John.)", "Smith (John.)", "Zed"}));
}

TEST(AgentKeys, NoAgentsLeaveOnlyIndexZero) {
    Workspace ws;
    modBuildAgentKeys(ws);
    ASSERT_EQ(ws.gAgentKey.size(), 1U);
    EXPECT_TRUE(ws.gAgentKey[0].isEmpty());
}

// With first names printed, a cell shows the first-name key of the first agent whose key it
// holds, or nothing for an agent who is gone; otherwise the cell shows as it stands.
TEST(AgentKeys, DesiredNameOfACell) {
    Workspace ws;
    setAgents(ws, {{"Smith", "Jane"}, {"Smith", "John"}, {"Lee", "Jane"}});  // one "Smith (J.)"
    struct Case {
        const char* useFirstName;
        const char* cell;
        const char* label;
    };
    const Case cases[] = {
        {"1", "Smith (J.)", "Jane (S.)"},
        {"1", "Lee", "Jane (L.)"},
        {"1", "Gone", ""},
        {"0", "Gone", "Gone"},
        {"", "Lee", "Lee"},
    };
    for (const Case& c : cases) {
        ws.gCalendarUseFirstName = QString::fromUtf8(c.useFirstName);
        EXPECT_EQ(modGetDesiredName(ws, QString::fromUtf8(c.cell)), QString::fromUtf8(c.label))
            << c.useFirstName << " " << c.cell;
    }
}
