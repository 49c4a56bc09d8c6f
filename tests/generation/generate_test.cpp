#include "generation/generate.h"
#include "core/model/workspace.h"
#include "fakes.h"
#include "offices.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

// An office of agents Agent001..n in March 2027 with a table of one Wednesday shift of
// `needed` agents.
struct Office {
    explicit Office(int agents, int needed) {
        makeOffice(ws, 2027, 3, agents, home.path());
        setTable(ws, 0, 1);
        if (needed > 0) {
            ws.gShiftCount[3] = 1;
            ws.gShiftAgents[3][1] = needed - 1;
        }
    }

    QTemporaryDir home;
    TestServices s;
    Workspace ws;
};

const QString kReplace = QStringLiteral(
    "Generating a new schedule will erase the previous schedule.  Would you like to proceed?");
const QString kTwice = QStringLiteral(
    "With the current configuration, an agent may be scheduled "
    "twice in a day.  Would you like to proceed anyway?");
const QString kAdjacent = QStringLiteral(
    "With the current configuration, an agent may be "
    "scheduled on adjacent days.  Would you like to proceed "
    "anyway?");

}  // namespace

// The ratio of agents to the busiest weekday decides the warning; only a No stops.
TEST(Generate, WarnsByTheRatioOfAgentsToTheBusiestDay) {
    struct Case {
        const char* what;
        int agents;
        int needed;
        int generated;
        std::vector<MsgAnswer> answers;
        QStringList asked;
        bool goesOn;
        double ratio;
    };
    const Case cases[] = {
        {"twice as many agents", 10, 5, 0, {}, {}, true, 2.0},
        {"nine for five", 9, 5, 0, {MsgAnswer::Yes}, {kAdjacent}, true, 1.8},
        {"exactly as many", 5, 5, 0, {MsgAnswer::Yes}, {kAdjacent}, true, 1.0},
        {"too few", 4, 5, 0, {MsgAnswer::Yes}, {kTwice}, true, 0.8},
        {"too few, No", 4, 5, 0, {MsgAnswer::No}, {kTwice}, false, 0.8},
        {"a schedule to replace, No", 10, 5, 1, {MsgAnswer::No}, {kReplace}, false, 0.0},
        {"a schedule to replace, then adjacent days, No",
         9,
         5,
         1,
         {MsgAnswer::Yes, MsgAnswer::No},
         {kReplace, kAdjacent},
         false,
         1.8},
        // No positions at all: the last ratio stands, here the unset 0, and the warning with it.
        {"no positions", 3, 0, 0, {MsgAnswer::Yes}, {kTwice}, true, 0.0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        Office office(c.agents, c.needed);
        Workspace& ws = office.ws;
        ws.gScheduleGenerated = c.generated;
        ws.gCalendarAgentIndex = 4;
        ws.schedule(2, 1, 0) = QStringLiteral("Kept");
        ws.gGridTitle = QStringLiteral("Mine");
        office.s.dialogs.answers.assign(c.answers.begin(), c.answers.end());

        EXPECT_EQ(prepareGenerate(ws, office.s.ctx, kEngineShuffled), c.goesOn);

        EXPECT_EQ(office.s.dialogs.texts(), office.s.dialogs.wrapped(c.asked));
        for (const auto& shown : office.s.dialogs.shown) {
            EXPECT_EQ(shown.icon, MsgIcon::Exclamation);
            EXPECT_EQ(shown.buttons, MsgButtons::YesNo);
            EXPECT_EQ(shown.defaultButton, 2);
        }
        EXPECT_DOUBLE_EQ(ws.gAgentRatio, c.ratio);
        EXPECT_EQ(ws.schedule(2, 1, 0), QStringLiteral("Kept"));
        EXPECT_EQ(ws.gDirty.has_value(), c.goesOn);
        EXPECT_EQ(ws.gGridTitle,
                  c.goesOn ? QStringLiteral("March 2027 Desko Schedule") : QStringLiteral("Mine"));
        if (c.generated == 0 || c.goesOn) {
            EXPECT_EQ(ws.gCalendarAgentIndex, 0);
        }
        EXPECT_EQ(logged(ws, QStringLiteral("Generating a schedule")), c.goesOn);
        EXPECT_EQ(logged(ws, QStringLiteral("Some agents may be scheduled twice in a day due to "
                                            "configuration")),
                  c.goesOn && c.asked.contains(kTwice));
        EXPECT_EQ(logged(ws, QStringLiteral("Some agents may be scheduled on adjacent days due "
                                            "to configuration")),
                  c.goesOn && c.asked.contains(kAdjacent));
    }
}

TEST(Generate, ChoosesTheEngineByItsListIndex) {
    const struct {
        int listIndex;
        int engine;
        const char* line;
    } cases[] = {
        {-1, 0, "Using SmartRandom engine for schedule generation"},
        {0, 0, "Using SmartRandom engine for schedule generation"},
        {1, 1, "Using Shuffled engine for schedule generation"},
        {2, 2, "Using Serial (horizontal) engine for schedule generation"},
        {3, 3, "Using Serial (mixed) engine for schedule generation"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.listIndex);
        Office office(10, 5);
        EXPECT_TRUE(prepareGenerate(office.ws, office.s.ctx, c.listIndex));
        EXPECT_EQ(office.ws.gEngine, c.engine);
        EXPECT_TRUE(logged(office.ws, QString::fromUtf8(c.line)));
    }
}

// Every engine starts from an erased schedule, days outside the month included; a serial
// engine starts after a drawn agent, or after the one it is given.
TEST(Generate, RunsTheEngineOnAnErasedSchedule) {
    for (const int engine :
         {kEngineSmartRandom, kEngineShuffled, kEngineHorizontal, kEngineMixed}) {
        SCOPED_TRACE(engine);
        Office office(10, 5);
        Workspace& ws = office.ws;
        ws.gEngine = engine;
        ws.gAgentRatio = 2.0;
        ws.schedule(0, 0, 0) = QStringLiteral("Old");
        ws.schedule(37, 6, 4) = QStringLiteral("Old");
        office.s.ctx.random.setState(99);
        runEngine(ws, office.s.ctx);
        EXPECT_EQ(ws.schedule(37, 6, 4), QString());
        EXPECT_EQ(ws.schedule(0, 0, 0), QString());
        // March 2027 begins on a Monday: the 3rd is its first Wednesday.
        EXPECT_FALSE(ws.schedule(3, 1, 4).isEmpty());
        EXPECT_TRUE(ws.schedule(2, 1, 0).isEmpty());
    }
    Office office(10, 5);
    office.ws.gEngine = kEngineHorizontal;
    runEngine(office.ws, office.s.ctx, {}, 6);
    EXPECT_EQ(office.ws.gBaseAgent, 6);
    EXPECT_EQ(office.ws.schedule(3, 1, 0), QStringLiteral("Agent007"));
}

// The window closed during the SmartRandom deal, after a position or before the weekend
// repair: the engine stops there, logs nothing more, and the schedule it was to replace is
// back. A deal that nobody stops yields after each of its 25 positions and once more.
TEST(Generate, TheProgramsEndLeavesTheScheduleItWasToReplace) {
    for (const int closeAt : {3, 26, 0}) {
        SCOPED_TRACE(closeAt);
        Office office(10, 5);
        Events& events = office.s.ctx.events;
        office.ws.gEngine = kEngineSmartRandom;
        fillWithOldSchedule(office.ws);
        const std::vector<QString> old = office.ws.gSchedule;
        int yields = 0;
        events.run = [&] {
            if (++yields == closeAt) {
                events.putOffClose();
            }
        };
        EXPECT_EQ(events.runCommand([&] { runEngine(office.ws, office.s.ctx); }), closeAt > 0);
        EXPECT_EQ(yields, closeAt > 0 ? closeAt : 26);
        EXPECT_EQ(office.ws.gSchedule == old, closeAt > 0);
        EXPECT_TRUE(fileText(office.ws.gLogFile)
                        .endsWith(u"Generating a schedule using the SmartRandom schedule\r\n"));
    }
}
