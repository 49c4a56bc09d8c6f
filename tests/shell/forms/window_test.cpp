#include "constraints/forms/frmHolidays.h"
#include "core/forms/elidedlabel.h"
#include "core/model/agentkeys.h"
#include "core/model/calendar.h"
#include "core/services/textfile.h"
#include "generation/forms/balancepanel.h"
#include "generation/forms/frmIndividualDay.h"
#include "generation/forms/frmWholeCalendar.h"
#include "mainwindow.h"
#include "persistence/workspacefile.h"
#include "shell/forms/windowkeeper.h"

#include <gtest/gtest.h>

#include <QLayout>

#include <algorithm>

namespace {

// January 2027 begins on a Friday, in cell 5, and needs six rows.
constexpr int kFirstCell = 5;

// The example office with its schedule of the serial engine (mixed) open, in January 2027.
struct Example : MainWindow {
    Example() {
        modLoadWorkspace(ws, s.ctx, exampleSchedule(home.path()));
        modBuildAgentKeys(ws);
        open();
        main->lstAgents->setCurrentRow(0);
    }
    Form* face() const {
        const QList<Form*> faces = window->findChildren<Form*>();
        return *std::find_if(faces.begin(), faces.end(), [](Form* f) { return f->isVisible(); });
    }
    frmWholeCalendar* review(int engine) {
        ws.cmbGenerateListIndex = engine;
        main->modEnterBusyState();
        main->showReview();
        return main->review();
    }
    QWidget* cell(int day) const { return main->review()->labDay[day + 4]->parentWidget(); }
};

// Each face, in the state in which it needs the most room.
const struct {
    const char* name;
    void (*enter)(Example&);
} kStates[] = {
    {"main window", [](Example&) {}},
    {"agent editor", [](Example& w) { w.main->cmdAdd->click(); }},
    {"review, SmartRandom", [](Example& w) { w.review(0); }},
    {"review, serial", [](Example& w) { w.review(3); }},
    {"review of a month of five weeks",
     [](Example& w) {
         w.ws.gCurrentMonth = 2;
         modSetupMonth(w.ws);
         w.review(3);
     }},
    {"review, balance asked for", [](Example& w) { w.review(3)->cmdBalance->click(); }},
    {"day editor, six shifts of four agents",
     [](Example& w) {
         w.ws.gShiftCount[5] = 6;
         for (int n = 1; n <= 6; ++n) {
             w.ws.gShiftAgents[5][n] = 3;
             w.ws.gShiftText[5][n] = QStringLiteral("10:30am-2:30pm");
         }
         w.review(3)->labDay_MouseDown(kFirstCell + 7);
     }},
    {"weekday editor",
     [](Example& w) {
         w.main->mnuEShifts->trigger();
         w.control<QPushButton>("cmdChange(3)")->click();
     }},
    {"vacations", [](Example& w) { w.main->cmdVacations->click(); }},
    {"restrictions", [](Example& w) { w.main->cmdRestrictions->click(); }},
    {"all constraints", [](Example& w) { w.main->mnuEConstraints->trigger(); }},
    {"fonts and printer", [](Example& w) { w.main->mnuEFonts->trigger(); }},
    {"About", [](Example& w) { w.main->mnuHAbout->trigger(); }},
};

// Every control that the face lays out, on the face or in a frame, lies inside what holds
// it with the room its text needs, and overlaps none of the controls beside it; together
// they reach across the whole face, leaving no room unused at its right.
void expectLaidOut(const Form* face) {
    QList<QWidget*> shown;
    QRect spread;
    for (QWidget* control : face->findChildren<QWidget*>()) {
        const QWidget* holder = control->parentWidget();
        if (control->isVisible() && control->metaObject() != &QWidget::staticMetaObject &&
            (holder == face || holder->inherits("QGroupBox") ||
             holder->metaObject() == &QWidget::staticMetaObject)) {
            shown.append(control);
            spread |=
                control->geometry().translated(control->parentWidget()->mapTo(face, QPoint()));
        }
    }
    EXPECT_GE(spread.right(), face->layout()->contentsRect().right()) << "room left unused";
    for (const QWidget* control : shown) {
        const std::string name = control->objectName().toStdString();
        EXPECT_TRUE(control->parentWidget()->rect().contains(control->geometry())) << name;
        // A fixed width is the least a layout gives, else the text's need.
        EXPECT_GE(control->width(), control->minimumWidth() > 0
                                        ? control->minimumWidth()
                                        : control->minimumSizeHint().width())
            << name;
        for (const QWidget* other : shown) {
            EXPECT_TRUE(other == control || other->parentWidget() != control->parentWidget() ||
                        !control->geometry().intersects(other->geometry()))
                << name << " and " << other->objectName().toStdString();
        }
    }
}

}  // namespace

// The window's least size, taken as it opens, is what every face needs in every state, with
// no scroll bar on a screen of 1024 by 768, and stays so. From a maximised screen of 1920 by 1080
// down to the least size every face fills the window with nothing cut and nothing over another; at
// 1920 by 1080 the example's month reads whole, and at 1280 by 1024 beside the balance.
TEST(Window, EveryFaceFitsFromAMaximisedScreenDownToTheLeastSize) {
    for (const auto& state : kStates) {
        SCOPED_TRACE(state.name);
        Example w;
        const QSize least = w.window->minimumSize();
        state.enter(w);
        for (const QSize size : {QSize(1920, 1050), QSize(1280, 994), least}) {
            w.window->resize(size);
            QApplication::processEvents();
            EXPECT_EQ(w.face()->size(), size);
            expectLaidOut(w.face());
        }
        EXPECT_EQ(w.window->minimumSize(), least);
    }
    Example w;
    w.window->resize(1920, 1050);
    w.review(3);
    QApplication::processEvents();
    for (const ElidedLabel* cell : w.main->review()->labDay) {
        EXPECT_FALSE(cell->isCut()) << cell->text().toStdString();
    }
    // Beside the balance that shows by itself the days keep their whole width.
    w.window->resize(1280, 994);
    QApplication::processEvents();
    EXPECT_TRUE(w.main->review()->balancePanel->isVisible());
    EXPECT_GE(w.cell(8)->width(), w.cell(8)->sizeHint().width());
}

// The window shows again where it was left, maximised or not; a place that lies on no screen
// any more gives way to the middle of the screen.
TEST(Window, TheWindowComesBackAsItWasLeft) {
    const QTemporaryDir state;
    const QString file = state.filePath(QStringLiteral("desko/window.ini"));
    const QRect placed(10, 60, 700, 500);
    FaceWindow left;
    left.setGeometry(placed);
    keepWindowPlace(left, file);
    FaceWindow back;
    showWindowAsLeft(back, file);
    EXPECT_EQ(back.geometry(), placed);
    back.showMaximized();
    keepWindowPlace(back, file);
    FaceWindow maximised;
    showWindowAsLeft(maximised, file);
    EXPECT_TRUE(maximised.isMaximized());

    writeTextFile(file, QStringLiteral("[Window]\nLeft=3000\nTop=2000\nWidth=700\nHeight=500\n"));
    // The window needs more room than it was left with.
    const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
    FaceWindow moved;
    moved.setMinimumSize(area.size() * 9 / 10);
    showWindowAsLeft(moved, file);
    EXPECT_LE((moved.geometry().center() - area.center()).manhattanLength(), 40);
    EXPECT_TRUE(area.contains(moved.geometry()));
}

// The arrow keys walk the month's days in the review and in the day picker, Home and End go
// to the first and the last day, and Return or Space press the day; a screen reader reads a
// cell as its date and what it shows.
TEST(Window, TheKeyboardWalksTheMonthsDays) {
    Example w;
    frmWholeCalendar* review = w.review(3);
    w.cell(1)->setFocus();
    const std::pair<Qt::Key, int> steps[] = {
        {Qt::Key_Right, 2}, {Qt::Key_Down, 9}, {Qt::Key_Up, 2},   {Qt::Key_Up, 2},
        {Qt::Key_Left, 1},  {Qt::Key_Left, 1}, {Qt::Key_End, 31}, {Qt::Key_Down, 31},
        {Qt::Key_Home, 1},  {Qt::Key_Down, 8}};
    for (const auto& [key, day] : steps) {
        QTest::keyClick(QApplication::focusWidget(), key);
        EXPECT_EQ(QApplication::focusWidget(), w.cell(day)) << day;
    }
    EXPECT_EQ(w.cell(8)->accessibleName(),
              QStringLiteral("Friday, January 8: Nakamura/Kowalski, Delgado/Hoffman, "
                             "Svensson/Garcia (M.); Staff meeting at 9am"));
    QTest::keyClick(w.cell(8), Qt::Key_Return);
    EXPECT_TRUE(review->dayEditor()->isVisible() && w.ws.gSelectedDay == 8);
    review->cmdOK->click();

    w.main->cmdVacations->click();
    auto* picker = w.window->findChild<frmHolidays*>();
    picker->labDay[kFirstCell]->setFocus();
    QTest::keyClick(picker->labDay[kFirstCell], Qt::Key_Space);
    EXPECT_TRUE(picker->isSelected(kFirstCell));
    EXPECT_EQ(picker->labDay[kFirstCell]->accessibleName(), QStringLiteral("Friday, January 1"));
}
