#include "generation/generate.h"
#include "core/model/workspace.h"
#include "fakes.h"
#include "offices.h"
#include "tables.h"

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

}  // namespace

// The questions and the log as the table says; a command that goes on marks the month
// changed and gives it its default titles.
TEST(Generate, WarnsByTheRatioOfAgentsToTheBusiestDay) {
    for (const QStringList& row : tableRows("generation/golden/tables/generate.tsv")) {
        SCOPED_TRACE(row.join(QLatin1Char(' ')).toStdString());
        Office office(row[0].toInt(), row[1].toInt());
        Workspace& ws = office.ws;
        ws.gScheduleGenerated = row[2].toInt();
        ws.gCalendarAgentIndex = 4;
        ws.schedule(2, 1, 0) = QStringLiteral("Kept");
        ws.gGridTitle = QStringLiteral("Mine");
        for (const QString& answer : row[4].split(QLatin1Char('|'), Qt::SkipEmptyParts)) {
            office.s.dialogs.answers.push_back(answer == QStringLiteral("Yes") ? MsgAnswer::Yes
                                                                               : MsgAnswer::No);
        }
        const bool goesOn = !row[6].isEmpty();

        EXPECT_EQ(prepareGenerate(ws, office.s.ctx, row[3].toInt()), goesOn);

        EXPECT_EQ(office.s.dialogs.texts(),
                  office.s.dialogs.wrapped(row[5].split(QLatin1Char('|'), Qt::SkipEmptyParts)));
        for (const auto& shown : office.s.dialogs.shown) {
            EXPECT_EQ(shown.icon, MsgIcon::Exclamation);
            EXPECT_EQ(shown.buttons, MsgButtons::YesNo);
            EXPECT_EQ(shown.defaultButton, 2);
        }
        EXPECT_EQ(fileText(ws.gLogFile).remove(QStringLiteral("[09:14:03]     ")),
                  goesOn ? QString(row[6]).replace(QLatin1Char('|'), QStringLiteral("\r\n")) +
                               QStringLiteral("\r\n")
                         : QString());
        EXPECT_DOUBLE_EQ(ws.gAgentRatio, row[7].toDouble());
        EXPECT_EQ(ws.gEngine, goesOn ? std::max(row[3].toInt(), 0) : 0);
        EXPECT_EQ(ws.schedule(2, 1, 0), QStringLiteral("Kept"));
        EXPECT_EQ(ws.gDirty.has_value(), goesOn);
        EXPECT_EQ(ws.gGridTitle,
                  goesOn ? QStringLiteral("March 2027 Desko Schedule") : QStringLiteral("Mine"));
        if (row[2] == QStringLiteral("0") || goesOn) {
            EXPECT_EQ(ws.gCalendarAgentIndex, 0);
        }
    }
}

// Every engine starts from an erased schedule, days outside the month included. Where a serial
// engine starts when it is given an agent is the headless tool's test.
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
