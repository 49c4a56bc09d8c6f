#include "core/model/workspace.h"
#include "generation/forms/frmWholeCalendar.h"
#include "mainwindow.h"
#include "offices.h"

#include <gtest/gtest.h>

namespace {

// Four agents and two agents on every Monday of January 2027; the window is up.
struct Office : MainWindow {
    Office() {
        setAgents(ws,
                  {{"Brennan", "Pat"}, {"Chen", "Pat"}, {"Delgado", "Pat"}, {"Fischer", "Pat"}});
        ws.gShiftCount[1] = 1;
        ws.gShiftAgents[1][1] = 1;
        open();
    }
};

// January 2027's Mondays.
constexpr int kMondays[] = {4, 11, 18, 25};

}  // namespace

// Each engine fills the month while the window shows the status frame, then the review takes
// the window's place until its OK brings the window back.
TEST(GenerateCommand, EachEngineFillsTheMonthAndTheReviewTakesOver) {
    for (const int engine : {0, 1, 2, 3}) {
        SCOPED_TRACE(engine);
        Office office;
        office.main->cmbGenerate->setCurrentIndex(engine);
        QSignalSpy followed(office.main->lstAgents, &QListWidget::currentRowChanged);
        QTest::mouseClick(office.main->cmdGenerate, Qt::LeftButton);

        EXPECT_TRUE(office.s.dialogs.shown.empty());
        EXPECT_EQ(office.ws.gEngine, engine);
        EXPECT_EQ(office.ws.gScheduleGenerated, 1);
        EXPECT_EQ(office.ws.gDirty, 1);
        for (const int day : kMondays) {
            EXPECT_FALSE(office.ws.schedule(day, 1, 0).isEmpty()) << day;
            EXPECT_FALSE(office.ws.schedule(day, 1, 1).isEmpty()) << day;
        }
        frmWholeCalendar* review = office.main->review();
        EXPECT_TRUE(review->isVisible());
        EXPECT_FALSE(office.main->isVisible());
        EXPECT_TRUE(office.busy());
        EXPECT_FALSE(office.main->fraStatus->isHidden());
        EXPECT_TRUE(office.main->picStatus->isHidden());
        // SmartRandom shows its progress: the agent list follows each position it fills,
        // and the bar ends full.
        const bool smart = engine == 0;
        EXPECT_EQ(office.main->labStatus->text(),
                  smart ? QString() : QStringLiteral("Generating a schedule . . ."));
        EXPECT_EQ(office.main->labStatusHigh->text(),
                  smart ? QStringLiteral("Fixing the schedule . . .") : QString());
        if (smart) {
            EXPECT_GE(followed.count(), 4);
            EXPECT_EQ(office.main->shpStatus->width(), office.main->picStatus->width() - 2);
        }

        QTest::mouseClick(review->cmdOK, Qt::LeftButton);
        EXPECT_FALSE(review->isVisible());
        EXPECT_TRUE(office.main->isVisible());
        EXPECT_FALSE(office.busy());
    }
}
