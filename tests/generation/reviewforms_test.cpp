#include "core/model/agentkeys.h"
#include "core/model/workspace.h"
#include "core/services/textfile.h"
#include "fakes.h"
#include "generation/engines.h"
#include "generation/forms/frmIndividualDay.h"
#include "generation/forms/frmWholeCalendar.h"
#include "shell/forms/frmMain.h"
#include "shell/session.h"

#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace {

// January 2027 begins on a Friday, in cell 5.
constexpr int kFirstCell = 5;

QString indexed(const char* name, int index) {
    return QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(index);
}

// The main window and the review over three agents, whose keys are their last names, in
// January 2027. Sundays have one shift of one agent, Mondays one of three, Tuesdays two of
// one, Wednesdays one of four and one of five, Thursdays six of one; Fridays and Saturdays
// none. The agents take the positions in turn.
class ReviewForms : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(home.isValid());
        openMonth(ws, 2027, 1, home.path());
        ws.redimAgents(ws.gAgentCount = 3);
        ws.gAgentLast = {
            {}, QStringLiteral("Brennan"), QStringLiteral("Chen"), QStringLiteral("Delgado")};
        ws.gAgentFirst = {
            {}, QStringLiteral("Pat"), QStringLiteral("Wei"), QStringLiteral("Sofia")};
        modBuildAgentKeys(ws);
        const std::vector<int> highestSlots[] = {{0}, {2}, {0, 0}, {3, 4}, {0, 0, 0, 0, 0, 0}};
        for (int w = 0; w < 5; ++w) {
            ws.gShiftCount[w] = static_cast<int>(highestSlots[w].size());
            for (int s = 1; s <= ws.gShiftCount[w]; ++s) {
                ws.gShiftAgents[w][s] = highestSlots[w][s - 1];
            }
        }
        ws.gShiftText[2][1] = QStringLiteral("8:00 - 12:00");
        ws.gShiftText[2][2] = QStringLiteral("12:00 - 17:00");
        fillSchedule();
    }

    void TearDown() override {
        delete review.data();
        main.reset();
    }

    // The agents in turn over every position of the month.
    void fillSchedule() {
        int next = 0;
        for (int d = 1; d <= 31; ++d) {
            const int w = (d - 1 + kFirstCell) % 7;
            for (int s = 1; s <= ws.gShiftCount[w]; ++s) {
                for (int k = 0; k <= ws.gShiftAgents[w][s]; ++k) {
                    ws.schedule(d, s, k) = ws.gAgentKey[1 + next++ % 3];
                }
            }
        }
    }

    // The review as the generate command opens it, over the main window in its busy face.
    void open(int engine) {
        main = std::make_unique<frmMain>(ws, s.ctx, QStringLiteral("desko40"));
        main->cmbGenerate->setCurrentIndex(engine);
        main->show();
        main->modEnterBusyState();
        main->showWholeCalendar();
        for (QWidget* top : QApplication::topLevelWidgets()) {
            if (auto* found = qobject_cast<frmWholeCalendar*>(top)) {
                review = found;
            }
        }
        ASSERT_TRUE(review);
    }
    frmIndividualDay* editor() const { return review->dayEditor(); }
    template <typename T>
    static T* find(QWidget* form, const QString& name) {
        T* found = form->findChild<T*>(name);
        EXPECT_NE(found, nullptr) << name.toStdString();
        return found;
    }
    QLabel* cell(int day, const char* name = "labDay") const {
        return find<QLabel>(review, indexed(name, day - 1 + kFirstCell));
    }
    QComboBox* list(int shift, int slot) const {
        return find<QComboBox>(editor(), QStringLiteral("cmbShift%1(%2)").arg(shift).arg(slot));
    }
    static void press(QWidget* form, const char* button) {
        QTest::mouseClick(find<QPushButton>(form, QLatin1String(button)), Qt::LeftButton);
    }
    void clickDay(int day) { QTest::mouseClick(cell(day), Qt::LeftButton); }
    bool logged(const QString& line) const {
        return readTextFile(ws.gLogFile)
            .value_or(QString())
            .contains(QStringLiteral("]     ") + line + QStringLiteral("\r\n"));
    }

    QTemporaryDir home;
    TestServices s;
    Workspace ws;
    std::unique_ptr<frmMain> main;
    QPointer<frmWholeCalendar> review;
};

TEST_F(ReviewForms, CellsShowShiftsTwoToALineAndNotesOnTheSixth) {
    ws.gHoliday[1] = 1;
    ws.gHolidayName[1] = QStringLiteral("New Year's Day");
    for (const int day : {2, 3, 6, 7}) {
        ws.gNoted[day] = 1;
        ws.gNotedText[day] = QStringLiteral("Note");
    }
    ws.schedule(3, 1, 0) = QStringLiteral("Leave empty");
    open(0);
    const struct {
        int day;
        const char* caption;
    } cases[] = {
        {1, "\n\n\n\n\nNew Year's Day"},
        {2, "\n\n\n\n\nNote"},
        {3, "Leave empty\n\n\n\n\nNote"},
        {4, "Chen/Delgado\nBrennan\n"},
        {6, "Brennan/Chen\nDelgado/Brennan\nChen/Delgado\nBrennan/Chen\nDelgado\nNote"},
        {7, "Brennan\nChen\nDelgado\nBrennan\nChen\nDelgado\nNote"},
        {8, ""},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.day);
        EXPECT_EQ(cell(row.day)->text(), QString::fromUtf8(row.caption));
        EXPECT_TRUE(cell(row.day)->isVisible());
        EXPECT_EQ(cell(row.day, "labNumber")->text(), QString::number(row.day));
    }
    for (const int i : {0, kFirstCell - 1, kFirstCell + 31}) {
        EXPECT_FALSE(find<QLabel>(review, indexed("labDay", i))->isVisible()) << i;
        EXPECT_FALSE(find<QLabel>(review, indexed("labNumber", i))->isVisible()) << i;
    }

    // A press on a holiday's text or number only names it.
    for (const char* label : {"labDay", "labNumber"}) {
        QTest::mouseClick(cell(1, label), Qt::LeftButton);
    }
    ASSERT_EQ(s.dialogs.shown.size(), 2U);
    for (const auto& box : s.dialogs.shown) {
        EXPECT_EQ(box.text, QStringLiteral("January 1 is New Year's Day."));
        EXPECT_EQ(box.icon, MsgIcon::Information);
        EXPECT_EQ(box.buttons, MsgButtons::OK);
    }
    EXPECT_EQ(editor(), nullptr);
    EXPECT_TRUE(review->isVisible());
}

// The review takes the main window's place with what the engine offers. Shuffled's
// Reschedule deals the month again. A serial engine's list opens on the agent after the
// cursor, and item n starts the engine again from agent n + 1, over any change by hand; the
// load and the item last rebuilt for, which the generate command sets to 0, rebuild nothing.
TEST_F(ReviewForms, TheReviewTakesTheMainWindowsPlaceWithWhatTheEngineOffers) {
    const struct {
        int engine;
        int baseAgent;
        int agentItem;  // -1: no list
        bool reschedule;
        bool okCentred;
    } cases[] = {
        {0, 0, -1, false, true},
        {1, 0, -1, true, false},
        {2, 3, 0, false, false},  // a run from the last agent began with the first
        {3, 1, 1, false, false},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.engine);
        TearDown();
        ws.schedule(4, 1, 0) = QStringLiteral("Leave empty");
        const std::vector<QString> before = ws.gSchedule;
        ws.gBaseAgent = row.baseAgent;
        ws.gScheduleGenerated = 0;
        ws.gCalendarAgentIndex = 0;
        ws.gDirty = 0;
        open(row.engine);

        // Where the main window was, unless that would put part of the review off the screen.
        const QRect screen = main->screen()->availableGeometry();
        EXPECT_TRUE(screen.contains(review->pos()));
        if (screen.contains(QRect(main->pos(), review->size()))) {
            EXPECT_EQ(review->pos(), main->pos());
        }
        EXPECT_EQ(review->windowTitle(), main->windowTitle());
        EXPECT_EQ(ws.gScheduleGenerated, 1);
        EXPECT_EQ(ws.gSchedule, before);
        EXPECT_TRUE(logged(QStringLiteral("Viewing generated schedule")));
        EXPECT_EQ(find<QPushButton>(review, QStringLiteral("cmdReschedule"))->isVisible(),
                  row.reschedule);
        auto* agents = find<QComboBox>(review, QStringLiteral("cmbAgents"));
        EXPECT_EQ(agents->isVisible(), row.agentItem >= 0);
        EXPECT_EQ(agents->currentIndex(), row.agentItem);
        EXPECT_EQ(find<QLabel>(review, QStringLiteral("labInstruction"))->text(),
                  row.agentItem >= 0 ? QStringLiteral("Click on any day to view its contents.  "
                                                      "Use the dropdown to change the initial "
                                                      "agent.")
                                     : QStringLiteral("Click a day to view or edit its contents."));
        const QWidget* ok = find<QPushButton>(review, QStringLiteral("cmdOK"));
        const QWidget* wednesday = cell(6);
        const int offset = ok->mapTo(review, ok->rect().center()).x() -
                           wednesday->mapTo(review, wednesday->rect().center()).x();
        EXPECT_EQ(std::abs(offset) <= 1, row.okCentred) << offset;
        if (row.engine == 0) {
            continue;
        }

        Workspace expected = ws;
        expected.gLogFile = home.filePath(QStringLiteral("expected.log"));
        if (row.reschedule) {
            TestServices same;
            same.ctx.random.setState(s.ctx.random.state());
            int draws = 0;
            modGenerateShuffled(expected, same.ctx, draws);
            press(review, "cmdReschedule");
        } else {
            agents->setCurrentIndex(0);
            EXPECT_EQ(ws.schedule(4, 1, 0), QStringLiteral("Leave empty"));
            int cursor = 2;
            (row.engine == 2 ? modGenerateSerialHorizontal : modGenerateSerialMixed)(expected,
                                                                                     s.ctx, cursor);
            agents->setCurrentIndex(2);
            EXPECT_EQ(ws.schedule(3, 1, 0), QStringLiteral("Delgado"));  // the first position
            EXPECT_EQ(ws.gCalendarAgentIndex, 2);
            EXPECT_EQ(ws.gDirty, 0);
        }
        EXPECT_EQ(ws.gSchedule, expected.gSchedule);
        EXPECT_EQ(cell(3)->text(), ws.schedule(3, 1, 0) + QLatin1Char('\n'));
    }
}

// Days opened one after another: each shows a frame per shift and a list per slot, up to
// four, on the cell's key, and nothing of the day before. The user has the last word: OK
// stores what the lists show and checks nothing; the close box stores nothing.
TEST_F(ReviewForms, TheDayEditorShowsTheDayAndOKStoresItAsTheListsShowIt) {
    open(0);
    const struct {
        int day;
        int shifts;
        int lists;  // in each frame
    } cases[] = {{7, 6, 1}, {6, 2, 4}, {5, 2, 1}, {2, 0, 0}, {4, 1, 3}};
    for (const auto& row : cases) {
        SCOPED_TRACE(row.day);
        clickDay(row.day);
        ASSERT_NE(editor(), nullptr);
        EXPECT_TRUE(editor()->isVisible());
        EXPECT_FALSE(review->isVisible());
        EXPECT_EQ(editor()->windowTitle(), review->windowTitle());
        for (int n = 1; n <= 6; ++n) {
            EXPECT_EQ(find<QGroupBox>(editor(), indexed("fraShift", n - 1))->isVisible(),
                      n <= row.shifts);
            for (int k = 0; k < 4; ++k) {
                const bool shown = n <= row.shifts && k < row.lists;
                EXPECT_EQ(list(n, k)->isVisible(), shown) << n << k;
                if (shown) {
                    EXPECT_EQ(list(n, k)->currentText(), ws.schedule(row.day, n, k)) << n << k;
                }
            }
        }
        press(editor(), "cmdOK");
    }
    EXPECT_EQ(list(1, 0)->count(), 4);
    EXPECT_EQ(list(1, 0)->itemText(3), QStringLiteral("Leave empty"));
    EXPECT_TRUE(logged(QStringLiteral("Viewing scheduled agents for January 7")));

    // A key no list offers, of an agent deleted since, opens unselected, and OK empties its
    // cell as it does that of a shift Tuesdays no longer have; "Leave empty" is kept.
    ws.schedule(5, 1, 0) = QStringLiteral("Zimmer");
    ws.schedule(5, 3, 0) = QStringLiteral("Stale");
    ws.gDirty = 0;
    clickDay(5);
    EXPECT_EQ(find<QGroupBox>(editor(), QStringLiteral("fraShift(1)"))->title(),
              QStringLiteral("Second shift: 12:00 - 17:00"));
    EXPECT_EQ(list(1, 0)->currentIndex(), -1);
    list(2, 0)->setCurrentIndex(3);
    press(editor(), "cmdOK");
    EXPECT_EQ(ws.schedule(5, 1, 0), QString());
    EXPECT_EQ(ws.schedule(5, 2, 0), QStringLiteral("Leave empty"));
    EXPECT_EQ(ws.schedule(5, 3, 0), QString());
    EXPECT_EQ(ws.gDirty, 1);
    EXPECT_TRUE(logged(QStringLiteral("Saving scheduled agents for January 5")));
    EXPECT_TRUE(review->isVisible());
    EXPECT_EQ(cell(5)->text(), QStringLiteral("\nLeave empty\n"));
    clickDay(5);
    EXPECT_EQ(list(2, 0)->currentText(), QStringLiteral("Leave empty"));
    press(editor(), "cmdOK");

    // One agent in every slot of a shift is taken without a word.
    clickDay(4);
    for (int k = 0; k < 3; ++k) {
        list(1, k)->setCurrentIndex(1);
    }
    press(editor(), "cmdOK");
    EXPECT_EQ(cell(4)->text(), QStringLiteral("Chen/Chen\nChen\n"));
    EXPECT_TRUE(s.dialogs.shown.empty());

    const std::vector<QString> before = ws.gSchedule;
    clickDay(4);
    list(1, 0)->setCurrentIndex(0);
    editor()->close();
    EXPECT_EQ(ws.gSchedule, before);
    EXPECT_TRUE(review->isVisible());
}

// OK and the close box both unload the review and its editor and give the main window back
// its normal face.
TEST_F(ReviewForms, LeavingTheReviewGivesTheMainWindowBack) {
    for (const bool byOK : {true, false}) {
        SCOPED_TRACE(byOK);
        TearDown();
        open(0);
        clickDay(4);
        QPointer<frmIndividualDay> dayEditor = editor();
        press(dayEditor, "cmdOK");
        if (byOK) {
            press(review, "cmdOK");
        } else {
            review->close();
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_TRUE(review.isNull());
        EXPECT_TRUE(dayEditor.isNull());
        EXPECT_TRUE(main->isVisible());
        EXPECT_TRUE(main->cmdPrint->isEnabled());
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
        EXPECT_TRUE(logged(QStringLiteral("Closing generated schedule")));
    }
}

}  // namespace
