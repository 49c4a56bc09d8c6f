#include "constraints/forms/frmHolidays.h"
#include "core/forms/elidedlabel.h"
#include "core/model/workspace.h"
#include "generation/forms/frmWholeCalendar.h"
#include "mainwindow.h"
#include "offices.h"
#include "shell/forms/monthstepper.h"

#include <QKeyEvent>

#include <gtest/gtest.h>

#include <functional>

namespace {

// A key pressed where the user's focus is, as a keyboard gives it; a key held down repeats.
void press(int key, bool held = false) {
    QWidget* focus = QApplication::focusWidget();
    ASSERT_NE(focus, nullptr);
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier, QString(), held);
        QApplication::sendEvent(focus, &event);
    }
}

// The month day picker that the button opens, a day clicked and named in the input box.
void nameDay(MainWindow& w, QPushButton* opener) {
    opener->click();
    w.s.dialogs.inputAnswers = {QStringLiteral("Team day")};
    QTest::mouseClick(w.control<frmHolidays>("frmHolidays")->labDay[8], Qt::LeftButton);
}

}  // namespace

// Every form works from the keyboard alone. The focus lands in a form as it opens, also after
// a day was named in the picker's input box and after a long command; Escape presses the
// form's Cancel, closes a form without one as its OK or its close box does, and cancels the
// agent editor; Return presses the focused button, else the default one; Tab reaches the
// month stepper, whose arrow and page keys step once a press (a negative key is one held
// down), never a run and never to the end.
TEST(Keyboard, EveryFormFromTheKeyboardAlone) {
    // The main window back in its normal face, with the line in the log if one is given.
    const auto back = [](const char* line) {
        return [line](MainWindow& w) {
            return w.main->isVisible() && !w.busy() &&
                   (*line == '\0' || logged(w.ws, QString::fromUtf8(line)));
        };
    };
    const auto month = [](const char* shown, std::size_t asked) {
        return [shown, asked](MainWindow& w) {
            return w.main->labDate->text() == QString::fromUtf8(shown) &&
                   w.s.dialogs.shown.size() == asked;
        };
    };
    const auto click = [](QPushButton* frmMain::*button) {
        return [button](MainWindow& w) { (w.main->*button)->click(); };
    };
    const auto focus = [](auto frmMain::*control) {
        return [control](MainWindow& w) { (w.main->*control)->setFocus(); };
    };
    const auto review = [](MainWindow& w) { w.main->mnuESchedule->trigger(); };
    const struct {
        std::function<void(MainWindow&)> open;
        const char* face;  // where the focus lands
        std::vector<int> keys;
        std::function<bool(MainWindow&)> done;
    } roads[] = {
        // clang-format off
        {[](MainWindow& w) { w.main->mnuEShifts->trigger(); }, "frmViewDay", {Qt::Key_Escape},
         back("Exiting without saving daily shifts and times")},
        {click(&frmMain::cmdRestrictions), "frmRestrictions", {Qt::Key_Escape},
         back("Exiting without saving shift restrictions for  ")},
        {[](MainWindow& w) { nameDay(w, w.main->cmdHolidays); }, "frmHolidays", {Qt::Key_Escape},
         [](MainWindow& w) { return !w.busy() && w.ws.gHoliday[4] == 0; }},
        {click(&frmMain::cmdAdd), "fraEditAgent", {Qt::Key_Escape}, back("")},
        {focus(&frmMain::cmdChange), "frmMain", {Qt::Key_Return},
         [](MainWindow& w) { return w.main->fraEditAgent->isVisible(); }},
        {[&](MainWindow& w) {
             w.main->chkPrint[0]->setChecked(true);
             click(&frmMain::cmdPrint)(w);
         }, "fraPrint", {}, back("Printing the schedule for January")},
        {review, "frmWholeCalendar", {Qt::Key_Escape}, back("Closing generated schedule")},
        {[&](MainWindow& w) {
             review(w);
             w.main->review()->labDay[8]->setFocus();
             press(Qt::Key_Return);
         }, "frmIndividualDay", {Qt::Key_Escape},
         [](MainWindow& w) { return w.main->review()->isVisible() && !w.ws.gDirty; }},
        {[](MainWindow& w) {
             for (int tab = 0; tab < 20 && !w.main->vscDate->hasFocus(); ++tab) {
                 press(Qt::Key_Tab);
             }
         }, "vscDate", {Qt::Key_Up}, month("February 2027", 1)},
        // No to the question keeps the focus on the stepper, where the held key repeats.
        {[&](MainWindow& w) {
             w.s.dialogs.answers = {MsgAnswer::No, MsgAnswer::Yes};
             focus(&frmMain::vscDate)(w);
         }, "vscDate", {Qt::Key_PageDown, -Qt::Key_PageDown}, month("January 2027", 1)},
        {focus(&frmMain::vscDate), "vscDate", {Qt::Key_End, Qt::Key_Home},
         month("January 2027", 0)},
        // clang-format on
    };
    for (const auto& road : roads) {
        SCOPED_TRACE(&road - roads);
        MainWindow w;
        setAgents(w.ws, {{"Brennan", "Pat"}, {"Chen", "Wei"}});
        setTable(w.ws, 1, 1);
        w.ws.gScheduleGenerated = 1;
        w.ws.chkPrint = {};
        w.s.dialogs.answers = {MsgAnswer::Yes};
        w.open();
        w.window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(w.window.get()));
        road.open(w);
        const QWidget* face = w.control<QWidget>(road.face);
        const QWidget* focused = QApplication::focusWidget();
        EXPECT_TRUE(focused != nullptr && (focused == face || face->isAncestorOf(focused)));
        for (const int key : road.keys) {
            press(std::abs(key), key < 0);
        }
        EXPECT_TRUE(road.done(w));
    }
}
