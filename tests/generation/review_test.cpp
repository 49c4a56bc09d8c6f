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

TEST(Review, HolidayMessageAndShiftFrameCaptions) {
    January office;
    Workspace& ws = office.ws;
    ws.gHolidayName[1] = QStringLiteral("New Year's Day");
    EXPECT_EQ(holidayMessage(ws, 1), QStringLiteral("January 1 is New Year's Day."));
    ws.gShiftText[2][1] = QStringLiteral("8:00 - 12:00");
    const char* const words[] = {"First", "Second", "Third", "Fourth", "Fifth", "Sixth"};
    for (int n = 1; n <= 6; ++n) {
        ws.gShiftText[2][n] = QStringLiteral("%1:00").arg(n + 6);
        EXPECT_EQ(
            shiftFrameCaption(ws, 2, n),
            QString::fromUtf8(words[n - 1]) + QStringLiteral(" shift: ") + ws.gShiftText[2][n]);
    }
}

// The list's item n starts a serial engine from agent n + 1, over every cell, changes by hand
// included; Shuffled takes the item as its draw count, and other engines run nothing.
TEST(Review, RerunFromAgentStartsTheEngineAfterTheItem) {
    const struct {
        int engine;
        int item;
        int firstAgent;  // who takes the 1st, 0 when the cell is left as it was
    } cases[] = {{kEngineHorizontal, 0, 1}, {kEngineHorizontal, 6, 7},  {kEngineMixed, 6, 7},
                 {kEngineShuffled, 3, -1},  {kEngineSmartRandom, 6, 0}, {-1, 6, 0}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.engine);
        January office;
        office.ws.schedule(1, 1, 0) = QStringLiteral("Leave empty");
        office.s.ctx.random.setState(99);
        rerunFromAgent(office.ws, office.s.ctx, c.engine, c.item);
        if (c.firstAgent >= 0) {
            EXPECT_EQ(agentIn(office.ws, 1, 1, 0), c.firstAgent);
        } else {
            EXPECT_NE(office.ws.gInitialAgent, c.item);  // the deal moved its count on
        }
        EXPECT_EQ(office.ws.schedule(1, 1, 0) == QStringLiteral("Leave empty"), c.firstAgent == 0);
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
