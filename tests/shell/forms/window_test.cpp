#include "constraints/forms/frmHolidays.h"
#include "core/forms/elidedlabel.h"
#include "core/model/agentkeys.h"
#include "core/services/textfile.h"
#include "generation/forms/frmIndividualDay.h"
#include "generation/forms/frmWholeCalendar.h"
#include "mainwindow.h"
#include "offices.h"
#include "persistence/workspacefile.h"
#include "shell/forms/windowkeeper.h"

#include <QScrollArea>
#include <QScrollBar>

#include <gtest/gtest.h>

#include <functional>

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
        for (Form* form : window->findChildren<Form*>()) {
            if (form->isVisible()) {
                return form;
            }
        }
        return nullptr;
    }
    QScrollArea* scroll() const { return window->findChild<QScrollArea*>(); }
    frmWholeCalendar* review(int engine) {
        ws.cmbGenerateListIndex = engine;
        main->modEnterBusyState();
        main->showReview();
        return main->review();
    }
    QWidget* reviewCell(int day) const {
        return main->review()->labDay[day - 1 + kFirstCell]->parentWidget();
    }
};

void settle() {
    QApplication::processEvents();
}

// Each face the window shows, in the state in which it needs the most room.
struct State {
    const char* name;
    std::function<void(Example&)> enter;
};

const State kStates[] = {
    {"main window", [](Example&) {}},
    {"agent editor", [](Example& w) { QTest::mouseClick(w.main->cmdAdd, Qt::LeftButton); }},
    {"long command with its progress",
     [](Example& w) {
         w.main->beginLongCommand(QStringLiteral("Generating a schedule . . ."));
         w.main->picStatus->show();
         w.main->showProgress(0.5);
     }},
    {"review, SmartRandom", [](Example& w) { w.review(0); }},
    {"review, Shuffled", [](Example& w) { w.review(1); }},
    {"review, Serial (horizontal)", [](Example& w) { w.review(2); }},
    {"review, Serial (mixed)", [](Example& w) { w.review(3); }},
    {"day of six shifts of four",
     [](Example& w) {
         setTable(w.ws, 6, 4);
         w.review(3)->labDay_MouseDown(3 + kFirstCell);
     }},
    {"weekly shifts", [](Example& w) { w.main->mnuEShifts->trigger(); }},
    {"weekday of six shifts",
     [](Example& w) {
         setTable(w.ws, 6, 4);
         w.main->mnuEShifts->trigger();
         QTest::mouseClick(w.control<QPushButton>("cmdChange(3)"), Qt::LeftButton);
     }},
    {"holidays", [](Example& w) { QTest::mouseClick(w.main->cmdHolidays, Qt::LeftButton); }},
    {"vacations", [](Example& w) { QTest::mouseClick(w.main->cmdVacations, Qt::LeftButton); }},
    {"restrictions",
     [](Example& w) { QTest::mouseClick(w.main->cmdRestrictions, Qt::LeftButton); }},
    {"all constraints", [](Example& w) { w.main->mnuEConstraints->trigger(); }},
    {"fonts and printer", [](Example& w) { w.main->mnuEFonts->trigger(); }},
    {"About", [](Example& w) { w.main->mnuHAbout->trigger(); }},
};

// The controls the forms lay out: those on a face, in a frame or in a plain box, which is no
// control itself.
bool laidOutByTheForm(const QWidget* control, const Form* face) {
    const QWidget* holder = control->parentWidget();
    if (control->metaObject() == &QWidget::staticMetaObject) {
        return false;
    }
    return holder == face || qobject_cast<const QGroupBox*>(holder) != nullptr ||
           holder->metaObject() == &QWidget::staticMetaObject ||
           holder->metaObject() == &QFrame::staticMetaObject;
}

// Every control on the face lies inside what holds it, with the room its text needs, and
// overlaps none of the controls beside it.
void expectLaidOut(const Form* face) {
    QList<QWidget*> shown;
    for (QWidget* control : face->findChildren<QWidget*>()) {
        if (control->isVisible() && laidOutByTheForm(control, face)) {
            shown.append(control);
        }
    }
    for (const QWidget* control : shown) {
        const std::string name = control->objectName().toStdString();
        EXPECT_TRUE(control->parentWidget()->rect().contains(control->geometry())) << name;
        if (control->inherits("QAbstractButton") || control->inherits("QComboBox") ||
            control->inherits("QLineEdit")) {
            // The least a layout gives it: its own least size where it has one.
            QSize least = control->minimumSizeHint();
            least.setWidth(control->minimumWidth() > 0 ? control->minimumWidth() : least.width());
            least.setHeight(control->minimumHeight() > 0 ? control->minimumHeight()
                                                         : least.height());
            EXPECT_GE(control->width(), least.width()) << name;
            EXPECT_GE(control->height(), least.height()) << name;
        }
        for (const QWidget* other : shown) {
            if (other != control && other->parentWidget() == control->parentWidget()) {
                EXPECT_FALSE(control->geometry().intersects(other->geometry()))
                    << name << " and " << other->objectName().toStdString();
            }
        }
    }
}

}  // namespace

// The window's least size, taken as it opens, holds every face in every state without a
// scroll bar, on a screen of 1024 by 768, and stays as it was.
TEST(Window, TheLeastSizeHoldsEveryFaceInEveryState) {
    for (const State& state : kStates) {
        SCOPED_TRACE(state.name);
        Example w;
        const QSize least = w.window->minimumSize();
        EXPECT_EQ(least, w.scroll()->widget()->minimumSizeHint());
        w.window->resize(least);
        state.enter(w);
        settle();
        ASSERT_NE(w.face(), nullptr);
        EXPECT_EQ(w.window->minimumSize(), least);
        EXPECT_TRUE(w.face()->minimumSizeHint().boundedTo(least) == w.face()->minimumSizeHint());
        EXPECT_FALSE(w.scroll()->horizontalScrollBar()->isVisible());
        EXPECT_FALSE(w.scroll()->verticalScrollBar()->isVisible());
    }
}

// From the least size to a maximised screen of 1920 by 1080 every face uses the window's
// room with nothing cut and nothing over another; there the example's month reads whole.
TEST(Window, EveryFaceIsLaidOutOverTheWholeWindow) {
    for (const State& state : kStates) {
        SCOPED_TRACE(state.name);
        Example w;
        state.enter(w);
        for (const QSize size : {w.window->minimumSize(), QSize(1280, 994), QSize(1920, 1050)}) {
            SCOPED_TRACE(size.width());
            w.window->resize(size);
            settle();
            EXPECT_EQ(w.face()->size(), size);
            expectLaidOut(w.face());
        }
    }
    Example w;
    w.window->resize(1920, 1050);
    w.review(3);
    settle();
    for (const ElidedLabel* cell : w.main->review()->labDay) {
        EXPECT_FALSE(cell->isCut()) << cell->text().toStdString();
    }
}

// The window shows again where it was left, maximised or not; a place that lies on no screen
// any more, or a file that says nothing whole, leaves the window in the middle of the screen.
TEST(Window, TheWindowComesBackAsItWasLeft) {
    const QTemporaryDir state;
    const QString file = state.filePath(QStringLiteral("desko/window.ini"));
    const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
    QRect placed;
    {
        Example w;
        placed = QRect(QPoint(10, 60), w.window->minimumSize() + QSize(20, 30));
        w.window->setGeometry(placed);
        keepWindowPlace(*w.window, file);
    }
    FaceWindow back;
    showWindowAsLeft(back, file);
    EXPECT_EQ(back.geometry(), placed);
    back.showMaximized();
    keepWindowPlace(back, file);
    FaceWindow maximised;
    showWindowAsLeft(maximised, file);
    EXPECT_TRUE(maximised.isMaximized());
    EXPECT_TRUE(fileText(file).contains(QStringLiteral("Width=%1\r\nHeight=%2\r\nMaximized=1")
                                            .arg(placed.width())
                                            .arg(placed.height())));

    const struct {
        const char* text;
        QPoint middle;
    } cases[] = {
        {"[Window]\nLeft=3000\nTop=2000\nWidth=900\nHeight=650\n", area.center()},
        {"[Window]\nLeft=40\nTop=x\nWidth=900\nHeight=650\n", QPoint(300, 200)},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        writeTextFile(file, QString::fromLatin1(c.text));
        FaceWindow window;
        window.setGeometry(
            QRect(QPoint(), QSize(600, 400)).translated(c.middle - QPoint(300, 200)));
        showWindowAsLeft(window, file);
        EXPECT_LE((window.geometry().center() - c.middle).manhattanLength(), 40);
        EXPECT_FALSE(window.isMaximized());
    }
}

// The arrow keys walk the month's days in the review and in the day picker, Home and End go
// to the first and the last day, and Return or Space press the day; a screen reader reads a
// cell as its date and what it shows.
TEST(Window, TheKeyboardWalksTheMonthsDays) {
    Example w;
    frmWholeCalendar* review = w.review(3);
    w.reviewCell(1)->setFocus();
    const struct {
        Qt::Key key;
        int day;
    } steps[] = {{Qt::Key_Right, 2}, {Qt::Key_Down, 9}, {Qt::Key_Up, 2},   {Qt::Key_Up, 2},
                 {Qt::Key_Left, 1},  {Qt::Key_Left, 1}, {Qt::Key_End, 31}, {Qt::Key_Down, 31},
                 {Qt::Key_Home, 1},  {Qt::Key_Down, 8}};
    for (const auto& step : steps) {
        QTest::keyClick(QApplication::focusWidget(), step.key);
        EXPECT_EQ(QApplication::focusWidget(), w.reviewCell(step.day)) << step.day;
    }
    EXPECT_EQ(w.reviewCell(8)->accessibleName(),
              QStringLiteral("Friday, January 8: Nakamura/Kowalski, Delgado/Hoffman, "
                             "Svensson/Garcia (M.); Staff meeting at 9am"));
    QTest::keyClick(w.reviewCell(8), Qt::Key_Return);
    EXPECT_TRUE(review->dayEditor()->isVisible());
    EXPECT_EQ(w.ws.gSelectedDay, 8);
    QTest::mouseClick(review->dayEditor()->cmdOK, Qt::LeftButton);
    QTest::mouseClick(review->cmdOK, Qt::LeftButton);

    QTest::mouseClick(w.main->cmdVacations, Qt::LeftButton);
    auto* picker = w.window->findChild<frmHolidays*>();
    picker->labDay[kFirstCell]->setFocus();
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Right, Qt::Key_Return, Qt::Key_Down}) {
        QTest::keyClick(QApplication::focusWidget(), key);
    }
    EXPECT_TRUE(picker->isSelected(kFirstCell));
    EXPECT_TRUE(picker->isSelected(kFirstCell + 1));
    EXPECT_EQ(QApplication::focusWidget(), picker->labDay[kFirstCell + 8]);
    EXPECT_EQ(picker->labDay[kFirstCell + 8]->accessibleName(),
              QStringLiteral("Saturday, January 9"));
}
