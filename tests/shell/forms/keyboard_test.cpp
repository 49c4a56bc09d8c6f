#include "constraints/forms/frmHolidays.h"
#include "core/forms/elidedlabel.h"
#include "core/model/workspace.h"
#include "generation/forms/frmIndividualDay.h"
#include "generation/forms/frmWholeCalendar.h"
#include "mainwindow.h"
#include "offices.h"
#include "shell/forms/monthstepper.h"

#include <QKeyEvent>

#include <gtest/gtest.h>

#include <functional>

namespace {

// A key pressed where the user's focus is, as a keyboard does; held down, it repeats.
void press(Qt::Key key, bool held = false) {
    QWidget* focus = QApplication::focusWidget();
    ASSERT_NE(focus, nullptr);
    QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier, QString(), held);
    QKeyEvent up(QEvent::KeyRelease, key, Qt::NoModifier, QString(), held);
    QApplication::sendEvent(focus, &down);
    QApplication::sendEvent(focus, &up);
}

// Names a day of the month day picker in the mode given by its click.
void nameDay(MainWindow& w, QPushButton* opener) {
    QTest::mouseClick(opener, Qt::LeftButton);
    w.s.dialogs.inputAnswers = {QStringLiteral("Team day")};
    QTest::mouseClick(w.control<frmHolidays>("frmHolidays")->labDay[8], Qt::LeftButton);
}

}  // namespace

// Every form works from the keyboard alone. The focus lands in a form as it opens, also after
// a day was named in the picker's input box and after a long command; Escape presses the
// form's Cancel, or closes a form without one as its OK or its close box does, and cancels the
// agent editor; Return presses the focused button, else the default one; Tab reaches the
// month stepper, whose arrow and page keys step once a press, never a run or to the end.
TEST(Keyboard, EveryFormFromTheKeyboardAlone) {
    struct Road {
        const char* what;
        std::function<void(MainWindow&)> open;
        const char* face;  // where the focus lands
        std::vector<std::pair<Qt::Key, bool>> keys;
        std::function<bool(MainWindow&)> done;
    };
    const auto mainBack = [](MainWindow& w) { return w.main->isVisible() && !w.busy(); };
    const auto mainBackLogging = [&](const char* line) {
        return [&, line](MainWindow& w) {
            return mainBack(w) && logged(w.ws, QString::fromUtf8(line));
        };
    };
    // The month shown, after as many questions as steps.
    const auto month = [](const char* shown, std::size_t steps) {
        return [shown, steps](MainWindow& w) {
            return w.main->labDate->text() == QString::fromUtf8(shown) &&
                   w.s.dialogs.shown.size() == steps;
        };
    };
    const Road roads[] = {
        {"daily shifts",
         [](MainWindow& w) { w.main->mnuEShifts->trigger(); },
         "frmViewDay",
         {{Qt::Key_Escape, false}},
         mainBackLogging("Exiting without saving daily shifts and times")},
        {"restrictions",
         [](MainWindow& w) { QTest::mouseClick(w.main->cmdRestrictions, Qt::LeftButton); },
         "frmRestrictions",
         {{Qt::Key_Escape, false}},
         mainBackLogging("Exiting without saving shift restrictions for  ")},
        {"holidays, a day named",
         [](MainWindow& w) { nameDay(w, w.main->cmdHolidays); },
         "frmHolidays",
         {{Qt::Key_Escape, false}},
         [&](MainWindow& w) { return mainBack(w) && w.ws.gHoliday[4] == 0; }},
        {"notes, a day named",
         [](MainWindow& w) { nameDay(w, w.main->cmdNotes); },
         "frmHolidays",
         {{Qt::Key_Return, false}},
         [&](MainWindow& w) { return mainBack(w) && w.ws.gNoted[4] == 1; }},
        {"the agent editor",
         [](MainWindow& w) {
             QTest::mouseClick(w.main->cmdAdd, Qt::LeftButton);
             QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("Zed"));
         },
         "fraEditAgent",
         {{Qt::Key_Escape, false}},
         [&](MainWindow& w) { return mainBack(w) && !w.main->fraEditAgent->isVisible(); }},
        {"a focused button",
         [](MainWindow& w) { w.main->cmdChange->setFocus(); },
         "frmMain",
         {{Qt::Key_Return, false}},
         [](MainWindow& w) {
             return w.main->fraEditAgent->isVisible() &&
                    w.main->fraEditAgent->title() == QStringLiteral("Edit an agent");
         }},
        {"after printing",
         [](MainWindow& w) {
             w.main->chkPrint[0]->setChecked(true);
             QTest::mouseClick(w.main->cmdPrint, Qt::LeftButton);
         },
         "frmMain",
         {},
         [](MainWindow& w) { return QApplication::focusWidget() == w.main->cmdPrint; }},
        {"the review",
         [](MainWindow& w) { w.main->mnuESchedule->trigger(); },
         "frmWholeCalendar",
         {{Qt::Key_Escape, false}},
         mainBack},
        {"the review's OK",
         [](MainWindow& w) { w.main->mnuESchedule->trigger(); },
         "frmWholeCalendar",
         {{Qt::Key_Return, false}},
         mainBack},
        {"the day editor",
         [](MainWindow& w) {
             w.main->mnuESchedule->trigger();
             QTest::mouseClick(w.main->review()->labDay[8], Qt::LeftButton);
         },
         "frmIndividualDay",
         {{Qt::Key_Escape, false}},
         [](MainWindow& w) {
             return w.main->review()->isVisible() && w.ws.schedule(4, 1, 0) == w.ws.gAgentKey[2];
         }},
        {"the month stepper",
         [](MainWindow& w) {
             for (int tab = 0; tab < 20 && QApplication::focusWidget() != w.main->vscDate; ++tab) {
                 press(Qt::Key_Tab);
             }
         },
         "vscDate",
         {{Qt::Key_Up, false}},
         month("February 2027", 1)},
        // No to the question keeps the focus on the stepper, and the key held down repeats.
        {"the month stepper, a key held",
         [](MainWindow& w) {
             w.s.dialogs.answers = {MsgAnswer::No, MsgAnswer::Yes, MsgAnswer::Yes};
             w.main->vscDate->setFocus();
         },
         "vscDate",
         {{Qt::Key_PageDown, false}, {Qt::Key_PageDown, true}, {Qt::Key_PageDown, true}},
         month("January 2027", 1)},
        {"the month stepper's ends",
         [](MainWindow& w) { w.main->vscDate->setFocus(); },
         "vscDate",
         {{Qt::Key_End, false}, {Qt::Key_Home, false}},
         [&](MainWindow& w) {
             return month("January 2027", 0)(w) && w.ws.gScheduleGenerated == 1;
         }},
    };
    for (const Road& road : roads) {
        SCOPED_TRACE(road.what);
        MainWindow w;
        setAgents(w.ws, {{"Brennan", "Pat"}, {"Chen", "Wei"}});
        setTable(w.ws, 1, 1);
        dealInTurn(w.ws);
        w.ws.gScheduleGenerated = 1;
        w.ws.chkPrint = {0, 0, 0, 0, 0, 0};
        w.s.dialogs.answers = {MsgAnswer::Yes, MsgAnswer::Yes, MsgAnswer::Yes};
        w.open();
        w.window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(w.window.get()));
        road.open(w);
        QWidget* face = w.control<QWidget>(road.face);
        ASSERT_NE(face, nullptr);
        QWidget* focus = QApplication::focusWidget();
        EXPECT_TRUE(focus != nullptr && (focus == face || face->isAncestorOf(focus)));
        for (const auto& [key, held] : road.keys) {
            press(key, held);
        }
        EXPECT_TRUE(road.done(w));
    }
}
