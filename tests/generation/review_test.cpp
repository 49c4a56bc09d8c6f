#include "generation/review.h"

#include "core/model/workspace.h"
#include "fakes.h"
#include "generation/engines.h"
#include "generation/generate.h"
#include "offices.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

// Forty agents and one position a day in January 2023, which starts on a Sunday.
struct January {
    January() {
        makeOffice(ws, 2023, 1, 40);
        loseLogLines(ws, home);
    }
    QTemporaryDir home;
    TestServices s;
    Workspace ws;
};

}  // namespace

// The day editor's frames name each shift by its order and its time. What a holiday's click
// says is the review form's test.
TEST(Review, ShiftFrameCaptions) {
    Workspace ws;
    ws.gShiftText[2] = {
        QString(), QStringLiteral("7:00"),         QStringLiteral("8:00"), QString(), QString(),
        QString(), QStringLiteral("12:00 - 17:00")};
    QStringList captions;
    for (int n = 1; n <= 6; ++n) {
        captions.append(shiftFrameCaption(ws, 2, n));
    }
    EXPECT_EQ(captions, texts({"First shift: 7:00", "Second shift: 8:00", "Third shift: ",
                               "Fourth shift: ", "Fifth shift: ", "Sixth shift: 12:00 - 17:00"}));
}

// The list's item n starts a serial engine from agent n + 1, over every cell, changes by hand
// included; Shuffled takes the item as its draw count, and other engines run nothing.
TEST(Review, RerunFromAgentStartsTheEngineAfterTheItem) {
    // The engine; the item; who takes the 1st, 0 when the cell is left as it was.
    const std::tuple<int, int, int> cases[] = {
        {kEngineHorizontal, 0, 1}, {kEngineHorizontal, 6, 7},  {kEngineMixed, 6, 7},
        {kEngineShuffled, 3, -1},  {kEngineSmartRandom, 6, 0}, {-1, 6, 0}};
    for (const auto& [engine, item, firstAgent] : cases) {
        SCOPED_TRACE(engine);
        January office;
        office.ws.schedule(1, 1, 0) = QStringLiteral("Leave empty");
        office.s.ctx.random.setState(99);
        rerunFromAgent(office.ws, office.s.ctx, engine, item);
        if (firstAgent >= 0) {
            EXPECT_EQ(agentIn(office.ws, 1, 1, 0), firstAgent);
        } else {
            EXPECT_NE(office.ws.gInitialAgent, item);  // the deal moved its count on
        }
        EXPECT_EQ(office.ws.schedule(1, 1, 0) == QStringLiteral("Leave empty"), firstAgent == 0);
    }
}

// OK stores what the lists show over every shift of the day, the table's slots of each, up to
// the fourth; a slot past the lists keeps its text, and a day outside the grid stores nothing.
TEST(Review, StoreDayWritesTheListsOverEveryShift) {
    January office;
    Workspace& ws = office.ws;
    setTable(ws, 2, 2);
    ws.gShiftAgents[ws.weekdayOf(3)][5] = 4;  // an unused shift with five slots
    fillWithOldSchedule(ws);
    const QString beyond = ws.schedule(3, 5, 4);
    DayLists lists;
    lists[0] = {QStringLiteral("Agent001"), QStringLiteral("Leave empty"), QStringLiteral("x"),
                QStringLiteral("x")};
    lists[1] = {QStringLiteral("Agent002"), QString(), QStringLiteral("x"), QStringLiteral("x")};
    storeDay(ws, 3, lists);
    EXPECT_EQ(ws.schedule(3, 1, 0), QStringLiteral("Agent001"));
    EXPECT_EQ(ws.schedule(3, 1, 1), QStringLiteral("Leave empty"));
    EXPECT_EQ(ws.schedule(3, 2, 0), QStringLiteral("Agent002"));
    EXPECT_EQ(ws.schedule(3, 2, 1), QString());
    EXPECT_EQ(ws.schedule(3, 1, 2), QStringLiteral("old %1").arg(scheduleIndex(3, 1, 2)));
    for (int k = 0; k <= 3; ++k) {
        EXPECT_EQ(ws.schedule(3, 5, k), QString()) << k;
    }
    EXPECT_EQ(ws.schedule(3, 5, 4), beyond);

    const std::vector<QString> before = ws.gSchedule;
    storeDay(ws, 39, lists);
    storeDay(ws, -1, lists);
    EXPECT_EQ(ws.gSchedule, before);
}
