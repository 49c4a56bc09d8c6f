#include "constraints/forms/frmBoth.h"
#include "constraints/forms/frmDay.h"
#include "constraints/forms/frmHolidays.h"
#include "constraints/forms/frmRestrictions.h"
#include "constraints/forms/frmViewDay.h"
#include "core/forms/elidedlabel.h"
#include "core/model/workspace.h"
#include "mainwindow.h"
#include "offices.h"

#include <QRadioButton>

#include <gtest/gtest.h>

namespace {

// Two agents, and three shifts of two agents on every weekday but Sunday, which has none.
struct Office : MainWindow {
    Office() {
        setAgents(ws, {{"Brennan", "Patrick"}, {"Chen", "Wei"}});
        setTable(ws, 3, 2, 0);
        for (int w = 1; w < kWeekdays; ++w) {
            ws.gShiftText[w] = {QString(), QStringLiteral("8am-12pm"), QStringLiteral("12pm-4pm"),
                                QStringLiteral("4pm-8pm")};
        }
        open();
        main->lstAgents->setCurrentRow(0);
    }

    template <typename F>
    F* face() const {
        F* form = window->findChild<F*>();
        EXPECT_TRUE(form != nullptr && form->isVisible());
        return form;
    }

    QString workingFile() const { return fileText(ws.gConfigFile); }

    // Escape, pressed where the user's focus is.
    void escape(QWidget* in) {
        in->setFocus();
        QTest::keyClick(in, Qt::Key_Escape);
    }
};

// Chooses the next entry of a drop-down list by the keyboard, as a user may.
void nextEntry(QComboBox* list) {
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Down);
}

}  // namespace

// The Edit menu opens the weekly view; a weekday's editor saves at once, and the view's Escape
// puts back the table it found, in the workspace and in the working file.
TEST(ConstraintForms, TheWeeklyViewAndItsDayEditor) {
    Office w;
    w.main->mnuEShifts->trigger();
    auto* view = w.face<frmViewDay>();
    ASSERT_NE(view, nullptr);
    EXPECT_TRUE(w.busy());
    EXPECT_EQ(view->labShift[1][0]->text(), QStringLiteral("8am-12pm (x2)"));
    EXPECT_FALSE(view->labShift[0][0]->isVisible());
    QTest::mouseClick(view->cmdChange[1], Qt::LeftButton);
    frmDay* day = view->dayEditor();
    ASSERT_TRUE(day != nullptr && day->isVisible());
    EXPECT_FALSE(view->isVisible());
    EXPECT_EQ(day->fraShiftsPerDay->title(), QStringLiteral("Number of shifts on Monday"));
    EXPECT_TRUE(day->optAgents[2][1]->isChecked());
    QTest::mouseClick(day->optShifts[1], Qt::LeftButton);
    EXPECT_FALSE(day->fraShift[1]->isVisible());
    day->txtShift[0]->selectAll();
    QTest::keyClicks(day->txtShift[0], QStringLiteral("7am-3pm"));
    QTest::mouseClick(day->optAgents[0][0], Qt::LeftButton);
    QTest::mouseClick(day->cmdOK, Qt::LeftButton);
    EXPECT_FALSE(day->isVisible());
    ASSERT_TRUE(view->isVisible());
    EXPECT_EQ(view->labShift[1][0]->text(), QStringLiteral("7am-3pm"));
    EXPECT_FALSE(view->labShift[1][1]->isVisible());
    EXPECT_TRUE(w.workingFile().contains(QStringLiteral("1=7am-3pm|1")));

    w.escape(view->cmdOK);
    EXPECT_FALSE(view->isVisible());
    EXPECT_EQ(w.ws.gShiftCount[1], 3);
    EXPECT_FALSE(w.workingFile().contains(QStringLiteral("7am-3pm")));
    EXPECT_TRUE(w.main->isVisible());
    EXPECT_FALSE(w.busy());
}

// Holidays are named at their click and stored at OK; Cancel reads the working file back.
// For vacations the list of agents turns the picker to another agent and stores the days of
// the one before at once.
TEST(ConstraintForms, TheDayPickerNamesHolidaysAndSwitchesAgents) {
    Office w;
    const auto cell = [&](int day) { return day - 1 + w.ws.gFirstWeekday; };
    QTest::mouseClick(w.main->cmdHolidays, Qt::LeftButton);
    auto* picker = w.face<frmHolidays>();
    ASSERT_NE(picker, nullptr);
    EXPECT_FALSE(w.main->isVisible());
    EXPECT_EQ(picker->fraMonth->title(), QStringLiteral("January holidays"));
    EXPECT_FALSE(picker->labDay[cell(32)]->isVisible());
    w.s.dialogs.inputAnswers = {QStringLiteral("New Year"), std::nullopt, QStringLiteral("MLK")};
    for (int day : {1, 18, 18}) {
        mouse(picker->labDay[cell(day)], QEvent::MouseButtonPress, QPoint(5, 5));
    }
    EXPECT_TRUE(picker->isSelected(cell(1)));
    EXPECT_TRUE(picker->isSelected(cell(18)));
    EXPECT_EQ(w.s.dialogs.inputsShown.at(1).second, QStringLiteral("Martin Luther King, Jr. Day"));
    QTest::mouseClick(picker->cmdOK, Qt::LeftButton);
    EXPECT_TRUE(w.main->isVisible());
    EXPECT_TRUE(w.workingFile().contains(QStringLiteral("18=MLK")));

    QTest::mouseClick(w.main->cmdNotes, Qt::LeftButton);
    EXPECT_FALSE(picker->isSelected(cell(1)));
    w.s.dialogs.inputAnswers = {QStringLiteral("Inventory")};
    mouse(picker->labDay[cell(2)], QEvent::MouseButtonPress, QPoint(5, 5));
    EXPECT_EQ(w.ws.gNotedText[2], QStringLiteral("Inventory"));
    w.escape(picker->cmdOK);
    EXPECT_TRUE(w.ws.gNotedText[2].isEmpty());
    EXPECT_EQ(w.ws.gHolidayName[18], QStringLiteral("MLK"));

    QTest::mouseClick(w.main->cmdVacations, Qt::LeftButton);
    EXPECT_TRUE(picker->cmbAgent->isVisible());
    mouse(picker->labDay[cell(5)], QEvent::MouseButtonPress, QPoint(5, 5));
    nextEntry(picker->cmbAgent);
    EXPECT_EQ(picker->fraMonth->title(), QStringLiteral("Vacation days for Wei Chen"));
    EXPECT_FALSE(picker->isSelected(cell(5)));
    QTest::mouseClick(picker->cmdCancel, Qt::LeftButton);
    EXPECT_EQ(w.ws.gVacation[1][5], 1);
}

// The boxes follow the week's shifts; turning to another agent stores the boxes on show
// without asking, and Cancel drops only what was ticked for the agent on show.
TEST(ConstraintForms, RestrictionsStoreTheAgentOnShowWhenTheListTurns) {
    Office w;
    QTest::mouseClick(w.main->cmdRestrictions, Qt::LeftButton);
    auto* form = w.face<frmRestrictions>();
    ASSERT_NE(form, nullptr);
    EXPECT_FALSE(form->chkShift[0][0]->isVisible());
    EXPECT_FALSE(form->chkShift[1][3]->isVisible());
    EXPECT_EQ(form->labShift[2][1]->text(), QStringLiteral("12pm-4pm"));
    QTest::mouseClick(form->chkShift[2][1], Qt::LeftButton);
    nextEntry(form->cmbAgents);
    EXPECT_EQ(w.ws.gRestriction[1][2][2], 1);
    EXPECT_FALSE(form->chkShift[2][1]->isChecked());
    QTest::mouseClick(form->chkShift[3][0], Qt::LeftButton);
    w.escape(form->cmdOK);
    EXPECT_TRUE(logged(w.ws, QStringLiteral("Exiting without saving shift restrictions for  ")));
    EXPECT_EQ(w.ws.gRestriction[2][3][1], 0);
    EXPECT_TRUE(w.main->isVisible());
    EXPECT_FALSE(w.busy());

    QTest::mouseClick(w.main->cmdRestrictions, Qt::LeftButton);
    EXPECT_TRUE(form->chkShift[2][1]->isChecked());
    QTest::mouseClick(form->cmdOK, Qt::LeftButton);
    EXPECT_TRUE(w.workingFile().contains(QStringLiteral("[Restrictions]")));
}

// The lists are filled once an opening; Clear All asks, and only OK erases what an emptied
// list held.
TEST(ConstraintForms, AllConstraintsEraseWholeKindsAtOK) {
    Office w;
    w.ws.gHoliday[1] = 1;
    w.ws.gHolidayName[1] = QStringLiteral("New Year's Day");
    w.ws.gNoted[2] = 1;
    w.ws.gNotedText[2] = QStringLiteral("Inventory");
    w.ws.gVacation[1][3] = 1;
    w.ws.gHasHolidays = 1;
    w.main->modLeaveBusyState();
    const auto counts = [](const frmBoth* form) {
        std::array<int, 4> n{};
        for (int k = 0; k < 4; ++k) {
            n[k] = form->lstDays[k]->count();
        }
        return n;
    };
    for (int opening = 0; opening < 2; ++opening) {
        w.main->mnuEConstraints->trigger();
        auto* both = w.face<frmBoth>();
        ASSERT_NE(both, nullptr);
        EXPECT_EQ(counts(both), (std::array<int, 4>{2, 0, 1, 1}));
        EXPECT_EQ(both->lstDays[2]->item(0)->text(), QStringLiteral("New Year's Day, January 1"));
        w.s.dialogs.answers = {MsgAnswer::Yes, MsgAnswer::No, MsgAnswer::Yes, MsgAnswer::Yes};
        for (int kind : {2, 3, 0}) {
            QTest::mouseClick(both->cmdClear[kind], Qt::LeftButton);
        }
        EXPECT_EQ(counts(both), (std::array<int, 4>{0, 0, 0, 1}));
        EXPECT_TRUE(both->cmdPrint->isEnabled());
        QTest::mouseClick(both->cmdClear[3], Qt::LeftButton);
        EXPECT_FALSE(both->cmdPrint->isEnabled());
        QTest::mouseClick(opening == 0 ? both->cmdCancel : both->cmdOK, Qt::LeftButton);
        EXPECT_TRUE(w.main->isVisible());
        EXPECT_EQ(w.ws.gHoliday[1], opening == 0 ? 1 : 0);
    }
    EXPECT_EQ(w.ws.gNoted[2], 0);
    EXPECT_FALSE(w.workingFile().contains(QStringLiteral("Inventory")));
    EXPECT_EQ(w.s.dialogs.texts().front(),
              QStringLiteral("Are you sure you want to erase all holidays?"));
    EXPECT_TRUE(logged(w.ws, QStringLiteral("Erasing all holidays")));
}
