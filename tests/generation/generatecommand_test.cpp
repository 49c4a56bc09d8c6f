#include "core/model/agentkeys.h"
#include "core/model/workspace.h"
#include "fakes.h"
#include "generation/forms/frmWholeCalendar.h"
#include "shell/forms/frmMain.h"
#include "shell/session.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace {

// Four agents and two agents on every Monday of January 2027, in a program directory of
// its own; the window is up.
struct Office {
    Office() {
        openMonth(ws, 2027, 1, home.path());
        ws.gAgentCount = 4;
        ws.redimAgents(4);
        const char* names[] = {"Brennan", "Chen", "Delgado", "Fischer"};
        for (int a = 1; a <= 4; ++a) {
            ws.gAgentLast[a] = QString::fromUtf8(names[a - 1]);
            ws.gAgentFirst[a] = QStringLiteral("Pat");
        }
        modBuildAgentKeys(ws);
        ws.gShiftCount[1] = 1;
        ws.gShiftAgents[1][1] = 1;
        window = std::make_unique<frmMain>(ws, s.ctx, QStringLiteral("desko40"));
        window->show();
    }

    template <typename T>
    T* control(const char* name) const {
        return window->findChild<T*>(QString::fromUtf8(name));
    }

    // The review form on the screen, or null.
    static frmWholeCalendar* review() {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (auto* form = qobject_cast<frmWholeCalendar*>(widget); form && form->isVisible()) {
                return form;
            }
        }
        return nullptr;
    }

    bool busy() const { return !control<QPushButton>("cmdAdd")->isEnabled(); }

    QTemporaryDir home;
    TestServices s;
    Workspace ws;
    std::unique_ptr<frmMain> window;
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
        office.control<QComboBox>("cmbGenerate")->setCurrentIndex(engine);
        QSignalSpy followed(office.control<QListWidget>("lstAgents"),
                            &QListWidget::currentRowChanged);
        office.control<QPushButton>("cmdGenerate")->click();

        EXPECT_TRUE(office.s.dialogs.shown.empty());
        EXPECT_EQ(office.ws.gEngine, engine);
        EXPECT_EQ(office.ws.gScheduleGenerated, 1);
        EXPECT_EQ(office.ws.gDirty, 1);
        for (const int day : kMondays) {
            EXPECT_FALSE(office.ws.schedule(day, 1, 0).isEmpty()) << day;
            EXPECT_FALSE(office.ws.schedule(day, 1, 1).isEmpty()) << day;
        }
        frmWholeCalendar* review = Office::review();
        ASSERT_NE(review, nullptr);
        EXPECT_FALSE(office.window->isVisible());
        EXPECT_TRUE(office.busy());
        EXPECT_FALSE(office.control<QGroupBox>("fraStatus")->isHidden());
        EXPECT_TRUE(office.control<QFrame>("picStatus")->isHidden());
        // SmartRandom shows its progress: the agent list follows each position it fills,
        // and the bar ends full.
        const bool smart = engine == 0;
        EXPECT_EQ(office.control<QLabel>("labStatus")->text(),
                  smart ? QString() : QStringLiteral("Generating a schedule . . ."));
        EXPECT_EQ(office.control<QLabel>("labStatusHigh")->text(),
                  smart ? QStringLiteral("Fixing the schedule . . .") : QString());
        if (smart) {
            EXPECT_GE(followed.count(), 4);
            const auto* bar = office.control<QFrame>("picStatus");
            EXPECT_EQ(office.control<QFrame>("shpStatus")->width(), bar->width() - 2);
        }

        review->cmdOK->click();
        EXPECT_EQ(Office::review(), nullptr);
        EXPECT_TRUE(office.window->isVisible());
        EXPECT_FALSE(office.busy());
    }
}

// A No to the question keeps the schedule there was; nothing else opens.
TEST(GenerateCommand, ANoKeepsTheScheduleThereWas) {
    Office office;
    office.ws.gScheduleGenerated = 1;
    office.ws.schedule(4, 1, 0) = QStringLiteral("Kept");
    office.s.dialogs.answers = {MsgAnswer::No};
    office.control<QAction>("mnuGShuffled")->trigger();
    ASSERT_EQ(office.s.dialogs.shown.size(), 1U);
    EXPECT_EQ(office.ws.schedule(4, 1, 0), QStringLiteral("Kept"));
    EXPECT_FALSE(office.ws.gDirty.has_value());
    EXPECT_EQ(Office::review(), nullptr);
    EXPECT_FALSE(office.busy());
}

// The view/edit list and the Edit menu open the review of a generated schedule; the other
// entries wait for their forms and leave the window as it is.
TEST(GenerateCommand, ViewEditAndTheEditMenuOpenTheReview) {
    struct Case {
        const char* what;
        std::function<void(Office&)> choose;
        bool opens;
    };
    const auto viaList = [](int index) {
        return [index](Office& office) {
            office.control<QComboBox>("cmbViewEdit")->setCurrentIndex(index);
            office.control<QPushButton>("cmdViewEdit")->click();
        };
    };
    const auto viaMenu = [](const char* item) {
        return [item](Office& office) { office.control<QAction>(item)->trigger(); };
    };
    const Case cases[] = {
        {"Schedule in the list", viaList(0), true},
        {"Daily shifts & times in the list", viaList(1), false},
        {"Fonts & printer setup in the list", viaList(2), false},
        {"Edit Schedule", viaMenu("mnuESchedule"), true},
        {"Edit Daily shifts", viaMenu("mnuEShifts"), false},
        {"Edit Fonts", viaMenu("mnuEFonts"), false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        Office office;
        office.ws.gScheduleGenerated = 1;
        office.ws.schedule(4, 1, 0) = QStringLiteral("Chen");
        office.window->modLeaveBusyState();
        c.choose(office);
        frmWholeCalendar* review = Office::review();
        EXPECT_EQ(review != nullptr, c.opens);
        EXPECT_EQ(office.busy(), c.opens);
        EXPECT_EQ(office.window->isVisible(), !c.opens);
        if (review) {
            const int cell = 4 - 1 + office.ws.gFirstWeekday;
            EXPECT_TRUE(review->labDay[cell]->text().startsWith(QStringLiteral("Chen/")));
            review->cmdOK->click();
        }
    }
}
