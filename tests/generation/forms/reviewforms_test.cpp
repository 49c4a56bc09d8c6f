#include "core/forms/elidedlabel.h"
#include "core/model/calendar.h"
#include "core/model/workspace.h"
#include "generation/forms/balancepanel.h"
#include "generation/forms/frmIndividualDay.h"
#include "generation/forms/frmWholeCalendar.h"
#include "mainwindow.h"
#include "offices.h"
#include "shell/filecommands.h"

#include <QDir>
#include <QTableView>

#include <gtest/gtest.h>

namespace {

// January 2027 begins on a Friday, in cell 5.
constexpr int kFirstCell = 5;

// The main window and the review over three agents, whose keys are their last names, in
// January 2027. Sundays have one shift of one agent, Mondays one of three, Tuesdays two of
// one; the agents take the positions in turn.
struct Review : MainWindow {
    Review() {
        setAgents(ws, {{"Brennan", "Pat"}, {"Chen", "Wei"}, {"Delgado", "Sofia"}});
        setShifts(ws, {{0}, {2}, {0, 0}});
        ws.gShiftText[2][2] = QStringLiteral("12:00 - 17:00");
        dealInTurn(ws);
    }

    // The review as the generate command opens it, over the main window in its busy face.
    frmWholeCalendar* show(int engine) {
        ws.cmbGenerateListIndex = engine;
        open();
        main->modEnterBusyState();
        main->showReview();
        return main->review();
    }
    frmIndividualDay* editor() const { return main->review()->dayEditor(); }
    ElidedLabel* cell(int day) const { return main->review()->labDay[day - 1 + kFirstCell]; }
    QComboBox* list(int shift, int slot) const { return editor()->cmbShift[shift - 1][slot]; }
    void clickDay(int day) const { QTest::mouseClick(cell(day), Qt::LeftButton); }
};

}  // namespace

// The review takes the main window's place with what the engine offers. Shuffled's
// Reschedule deals the month again. A serial engine's list opens on the agent after the
// cursor; choosing item n, also the one shown, starts the engine again from agent n + 1 over
// any change by hand, unless the item is the one last rebuilt for. OK and the close box both
// unload the review and give the main window back its normal face.
TEST(ReviewForm, TheReviewOffersWhatTheEngineOffers) {
    // The engine; the base agent; the list's item shown, -1 for no list; Reschedule; OK centred.
    // A run from the last agent began with the first.
    const std::tuple<int, int, int, bool, bool> cases[] = {{0, 0, -1, false, true},
                                                           {1, 0, -1, true, false},
                                                           {2, 3, 0, false, false},
                                                           {3, 1, 1, false, false}};
    for (const auto& [engine, baseAgent, agentItem, reschedule, okCentred] : cases) {
        SCOPED_TRACE(engine);
        Review r;
        r.ws.schedule(4, 1, 0) = QStringLiteral("Leave empty");
        const std::vector<QString> before = r.ws.gSchedule;
        r.ws.gBaseAgent = baseAgent;
        frmWholeCalendar* review = r.show(engine);

        EXPECT_FALSE(r.main->isVisible());
        EXPECT_EQ(r.window->windowTitle(), r.main->windowTitle());
        EXPECT_EQ(r.ws.gScheduleGenerated, 1);
        EXPECT_EQ(r.ws.gSchedule, before);
        EXPECT_TRUE(logged(r.ws, QStringLiteral("Viewing generated schedule")));
        EXPECT_EQ(review->cmdReschedule->isVisible(), reschedule);
        EXPECT_EQ(review->cmbAgents->isVisible(), agentItem >= 0);
        EXPECT_EQ(review->cmbAgents->currentIndex(), agentItem);
        EXPECT_EQ(review->labInstruction->text(),
                  agentItem >= 0 ? QStringLiteral("Click on any day to view its contents.  "
                                                  "Use the dropdown to change the initial "
                                                  "agent.")
                                 : QStringLiteral("Click a day to view or edit its contents."));
        const int offset = review->cmdOK->mapTo(review, review->cmdOK->rect().center()).x() -
                           r.cell(6)->mapTo(review, r.cell(6)->rect().center()).x();
        EXPECT_EQ(std::abs(offset) <= 1, okCentred) << offset;

        if (reschedule) {
            QTest::mouseClick(review->cmdReschedule, Qt::LeftButton);
            EXPECT_NE(r.ws.schedule(4, 1, 0), QStringLiteral("Leave empty"));
            EXPECT_EQ(r.cell(3)->text(), r.ws.schedule(3, 1, 0) + QLatin1Char('\n'));
        } else if (agentItem >= 0) {
            // The item shown is chosen again: it was not the one last rebuilt for, 0.
            r.ws.gCalendarAgentIndex = 0;
            emit review->cmbAgents->activated(agentItem);
            EXPECT_EQ(r.ws.gCalendarAgentIndex, agentItem);
            EXPECT_EQ(agentIn(r.ws, 3, 1, 0), agentItem + 1);  // Sunday the 3rd goes first
            EXPECT_EQ(r.cell(3)->text(), r.ws.schedule(3, 1, 0) + QLatin1Char('\n'));
            emit review->cmbAgents->activated(agentItem);  // rebuilt for: nothing
            r.ws.schedule(3, 1, 0) = QStringLiteral("Leave empty");
            emit review->cmbAgents->activated(agentItem);
            EXPECT_EQ(r.ws.schedule(3, 1, 0), QStringLiteral("Leave empty"));
            EXPECT_FALSE(r.ws.gDirty.has_value());
        }
        if (engine % 2 == 0) {
            QTest::mouseClick(review->cmdOK, Qt::LeftButton);
        } else {
            r.window->close();
        }
        EXPECT_FALSE(review->isLoaded());
        EXPECT_TRUE(r.main->isVisible());
        EXPECT_TRUE(r.main->cmdPrint->isEnabled());
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
        EXPECT_TRUE(logged(r.ws, QStringLiteral("Closing generated schedule")));
    }
}

// A press on a holiday's text or number only names it. Days opened one after another: each
// shows a frame per shift and a list per slot on the cell's key, and nothing of the day
// before. OK stores what the lists show; the close box stores nothing; a key no list offers
// opens unselected. A cell whose text does not fit shows that it is cut and has the whole
// text as its tooltip. Opened again, in another month, the review shows that month alone.
TEST(ReviewForm, TheDayEditorShowsTheDayAndOKStoresIt) {
    Review r;
    r.ws.gHoliday[1] = 1;
    r.ws.gHolidayName[1] = QStringLiteral("New Year's Day");
    r.ws.gNoted[11] = 1;
    r.ws.gNotedText[11] =
        QStringLiteral("A-note-with-no-place-to-break-that-is-wider-than-any-cell");
    frmWholeCalendar* review = r.show(0);
    QTest::mouseClick(r.cell(1), Qt::LeftButton);
    QTest::mouseClick(review->labNumber[kFirstCell], Qt::LeftButton);
    EXPECT_EQ(r.s.dialogs.texts(),
              texts({"January 1 is New Year's Day.", "January 1 is New Year's Day."}));
    EXPECT_EQ(r.s.dialogs.shown[0].icon, MsgIcon::Information);
    EXPECT_FALSE(r.editor()->isVisible());
    EXPECT_FALSE(r.cell(4)->isCut());
    EXPECT_TRUE(r.cell(4)->toolTip().isEmpty());
    EXPECT_TRUE(r.cell(11)->isCut());
    EXPECT_EQ(r.cell(11)->toolTip(), r.cell(11)->text());
    EXPECT_TRUE(r.cell(11)->text().endsWith(r.ws.gNotedText[11]));
    // The day; its shifts; the lists in each frame.
    const std::tuple<int, int, int> days[] = {{4, 1, 3}, {5, 2, 1}, {2, 0, 0}, {3, 1, 1}};
    for (const auto& [day, shifts, lists] : days) {
        SCOPED_TRACE(day);
        r.clickDay(day);
        EXPECT_TRUE(r.editor()->isVisible());
        EXPECT_FALSE(review->isVisible());
        for (int n = 1; n <= 6; ++n) {
            EXPECT_EQ(r.editor()->fraShift[n - 1]->isVisible(), n <= shifts);
            for (int k = 0; k < 4; ++k) {
                const bool shown = n <= shifts && k < lists;
                EXPECT_EQ(r.list(n, k)->isVisible(), shown) << n << k;
                if (shown) {
                    EXPECT_EQ(r.list(n, k)->currentText(), r.ws.schedule(day, n, k));
                }
            }
        }
        QTest::mouseClick(r.editor()->cmdOK, Qt::LeftButton);
    }
    EXPECT_EQ(r.list(1, 0)->count(), 4);
    EXPECT_TRUE(logged(r.ws, QStringLiteral("Viewing scheduled agents for January 4")));

    r.ws.schedule(5, 1, 0) = QStringLiteral("Zimmer");
    r.clickDay(5);
    EXPECT_EQ(spokenName(r.editor()->fraShift[1]), QStringLiteral("Second shift: 12:00 - 17:00"));
    EXPECT_EQ(r.list(1, 0)->currentIndex(), -1);
    r.list(2, 0)->setCurrentIndex(3);
    QTest::mouseClick(r.editor()->cmdOK, Qt::LeftButton);
    EXPECT_EQ(r.ws.gDirty, 1);
    EXPECT_TRUE(logged(r.ws, QStringLiteral("Saving scheduled agents for January 5")));
    EXPECT_EQ(r.cell(5)->text(), QStringLiteral("\nLeave empty\n"));

    const std::vector<QString> before = r.ws.gSchedule;
    r.clickDay(4);
    r.list(1, 0)->setCurrentIndex(0);
    r.window->close();
    EXPECT_EQ(r.ws.gSchedule, before);
    EXPECT_TRUE(review->isVisible());
    EXPECT_FALSE(r.editor()->isVisible());

    r.window->close();
    EXPECT_FALSE(r.editor()->isLoaded());
    r.ws.gCurrentMonth = 2;
    modSetupMonth(r.ws);  // February 2027: 28 days from a Monday
    r.main->showReview();
    int shown = 0;
    for (QLabel* label : r.main->review()->labDay) {
        shown += label->parentWidget()->isVisible() ? 1 : 0;
    }
    EXPECT_EQ(shown, 28);
    EXPECT_EQ(r.main->review()->labNumber[1]->text(), QStringLiteral("1"));
}

// The balance stands beside the calendar once the toggle asks for it on this small screen, and
// tells each hand-counted month as the headless tool does. A click on an agent's row marks the
// agent's days, a second click ends it; the day editor's change shows at once; hiding the
// balance ends the marks.
TEST(ReviewForm, TheBalanceAgreesWithTheToolAndMarksTheAgentsDays) {
    const QDir golden(QStringLiteral(DESKO_BALANCE_DIR));
    for (const QString& month : golden.entryList({QStringLiteral("*.dko")})) {
        SCOPED_TRACE(month.toStdString());
        Review r;
        const QString copy = r.home.filePath(month);
        QFile::copy(golden.filePath(month), copy);
        ASSERT_TRUE(openSchedule(r.ws, r.s.ctx, copy));
        frmWholeCalendar* review = r.show(0);
        EXPECT_FALSE(review->balancePanel->isVisible());
        QTest::mouseClick(review->cmdBalance, Qt::LeftButton);
        ASSERT_TRUE(review->balancePanel->isVisible());

        QTableView* table = review->balancePanel->tabBalance;
        const auto text = [&](int row, int column) {
            return table->model()->index(row, column).data().toString();
        };
        QStringList shown = {balanceHeader().join(QLatin1Char('\t'))};
        for (int row = 0; row < table->model()->rowCount(); ++row) {
            QStringList fields = {text(row, 0).remove(QRegularExpression(QStringLiteral("^. ")))};
            for (int column = 1; column < 8; ++column) {
                fields.append(text(row, column));
            }
            fields.append(text(row, 0).startsWith(QChar(0x25B2))   ? QStringLiteral("over")
                          : text(row, 0).startsWith(QChar(0x25BC)) ? QStringLiteral("under")
                                                                   : QString());
            shown.append(fields.join(QLatin1Char('\t')));
        }
        const QStringList told =
            fileText(golden.filePath(QFileInfo(month).completeBaseName() + QStringLiteral(".tsv")))
                .split(QLatin1Char('\n'));
        EXPECT_EQ(shown, told.mid(0, shown.size()));
        const QStringList spread = told[shown.size()].split(QLatin1Char('\t'));
        EXPECT_TRUE(review->balancePanel->labSpread->text().startsWith(
            QStringLiteral("Spread: %1 shifts, %2 hours").arg(spread[1], spread[2])));

        const auto marked = [&] {
            QList<int> days;
            for (int day = 1; day <= 31; ++day) {
                days.append(
                    r.cell(day)->parentWidget()->backgroundRole() == QPalette::Highlight ? day : 0);
            }
            days.removeAll(0);
            return days;
        };
        const QPoint adams = table->visualRect(table->model()->index(0, 1)).center();
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, adams);
        const QList<int> adamsDays = month.startsWith(QLatin1String("holidays"))
                                         ? QList<int>{2, 3, 7, 11, 13, 15}
                                         : QList<int>{4, 7, 9};
        EXPECT_EQ(marked(), adamsDays);
        r.clickDay(20);
        r.list(1, 0)->setCurrentIndex(0);
        QTest::mouseClick(r.editor()->cmdOK, Qt::LeftButton);
        EXPECT_TRUE(marked().contains(20));
        EXPECT_EQ(text(0, 1).toInt(), told[1].split(QLatin1Char('\t'))[1].toInt() + 1);
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, adams);
        EXPECT_TRUE(marked().isEmpty());
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, adams);
        QTest::mouseClick(review->cmdBalance, Qt::LeftButton);
        EXPECT_FALSE(review->balancePanel->isVisible());
        EXPECT_TRUE(marked().isEmpty());
    }
}
