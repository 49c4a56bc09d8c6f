#include "shell/forms/frmMain.h"
#include "core/model/workspace.h"
#include "fakes.h"
#include "shell/session.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPushButton>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <memory>

namespace {

// The main window over a workspace of its own, in a program directory of its own.
class MainWindow : public ::testing::Test {
protected:
    void SetUp() override {
        ws = Workspace();
        openMonth(ws, 2027, 1, home.path());
    }

    // The first count agents of a small office, in list order.
    void withAgents(int count) {
        const char* names[][2] = {{"Brennan", "Patrick"}, {"Chen", "Wei"}, {"Delgado", "Sofia"}};
        ws.gAgentCount = count;
        ws.redimAgents(count);
        for (int i = 1; i <= count; ++i) {
            ws.gAgentLast[i] = QString::fromUtf8(names[i - 1][0]);
            ws.gAgentFirst[i] = QString::fromUtf8(names[i - 1][1]);
        }
    }

    frmMain& open(const QString& programFile = QStringLiteral("desko40")) {
        window = std::make_unique<frmMain>(ws, s.ctx, programFile);
        window->show();
        return *window;
    }

    QTemporaryDir home;
    TestServices s;
    Workspace ws;
    std::unique_ptr<frmMain> window;
};

// An item can be chosen when it and every menu above it are enabled.
bool reachable(const QAction* action) {
    const QObjectList holders = action->associatedObjects();
    return action->isEnabled() && std::all_of(holders.begin(), holders.end(), [](const QObject* o) {
               const auto* menu = qobject_cast<const QMenu*>(o);
               return menu == nullptr || reachable(menu->menuAction());
           });
}

// Whether the user can work the named control or menu.
bool live(const frmMain& window, const QString& name) {
    if (const auto* menu = window.findChild<QMenu*>(name)) {
        return reachable(menu->menuAction());
    }
    if (const auto* widget = window.findChild<QWidget*>(name)) {
        return widget->isEnabled();
    }
    if (const auto* action = window.findChild<QAction*>(name)) {
        return reachable(action);
    }
    ADD_FAILURE() << "no control " << name.toStdString();
    return false;
}

void press(QWidget* widget, QEvent::Type type, QPoint at, Qt::MouseButton button = Qt::LeftButton) {
    QMouseEvent event(type, QPointF(at), QPointF(widget->mapToGlobal(at)), button,
                      type == QEvent::MouseButtonRelease ? Qt::NoButton : button, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

bool activate(QWidget* window) {
    window->activateWindow();
    for (int round = 0; round < 100 && !window->isActiveWindow(); ++round) {
        QCoreApplication::processEvents();
    }
    return window->isActiveWindow();
}

// Which controls and menus are live in the normal face, for each state of the workspace, and
// in the busy face, where only the status and the agent editor stay as they were.
TEST_F(MainWindow, EachFaceEnablesWhatTheWorkspaceAllows) {
    // Live with no agents, with agents, with a generated schedule, busy.
    const std::pair<std::array<bool, 4>, const char*> groups[] = {
        {{1, 1, 1, 0},
         "fraAgents lstAgents cmdAdd fraDate labDate vscDate fraViewEdit cmbViewEdit "
         "cmdViewEdit fraGenerate mnuFile mnuFNew mnuFOpen mnuFSaveAs mnuFExit mnuEdit "
         "mnuEShifts mnuEFonts mnuGenerate mnuGSmartRandom mnuGShuffled mnuGMixed "
         "mnuGHorizontal mnuHelp mnuHHelp mnuHDump mnuHAbout"},
        {{0, 1, 1, 0},
         "cmdChange cmdDelete cmdVacations cmdRestrictions cmdHolidays cmdNotes cmbGenerate "
         "cmdGenerate"},
        {{0, 0, 1, 0},
         "fraPrint chkPrint(0) chkPrint(1) chkPrint(2) cmdPrint fraExport chkPrint(3) "
         "chkPrint(4) chkPrint(5) cmdExport mnuFPrint mnuFPCalendar mnuFPGrid mnuFPTearsheet "
         "mnuFExport mnuFEEmail mnuFEOutlook mnuFECreator mnuESchedule"},
        {{0, 0, 0, 0}, "mnuEConstraints"},
        {{1, 1, 1, 1},
         "fraStatus labStatus txtFirstName txtLastName txtEmail cmdResolveName cmdOK cmdCancel"},
    };
    // A face left busy again after the workspace changed to agentsAfter agents, from 0 up, and
    // generatedAfter: explicit disabling must not outlive the enabling of the frames.
    struct Face {
        const char* name;
        int column, agents, generated, agentsAfter, generatedAfter;
    };
    const Face faces[] = {
        {"no agents", 0, 0, 0, -1, 0},
        {"agents", 1, 3, 0, -1, 0},
        {"generated schedule", 2, 3, 1, -1, 0},
        {"busy", 3, 3, 1, -1, 0},
        {"busy, then back without agents", 0, 3, 1, 0, 0},
        {"busy, then back with a schedule", 2, 3, 0, 3, 1},
    };
    for (const Face& face : faces) {
        SCOPED_TRACE(face.name);
        SetUp();
        withAgents(face.agents);
        ws.gScheduleGenerated = face.generated;
        open();
        if (face.column == 3 || face.agentsAfter >= 0) {
            window->modEnterBusyState();
        }
        if (face.agentsAfter >= 0) {
            withAgents(face.agentsAfter);
            ws.gScheduleGenerated = face.generatedAfter;
            window->modLeaveBusyState();
        }
        for (const auto& [pattern, names] : groups) {
            for (const QString& name : QString::fromUtf8(names).split(QLatin1Char(' '))) {
                EXPECT_EQ(live(*window, name), pattern[face.column]) << name.toStdString();
            }
        }
    }
}

TEST_F(MainWindow, CaptionShowsTheTagOnlyUnderTheProgramsOwnName) {
    const char* const cases[][3] = {
        {"desko40", " [not saved]", "Desko for Windows rev 4.0  [not saved]"},
        {"DESKO40", " [Example Office]", "Desko for Windows rev 4.0  [Example Office]"},
        {"Desko40.exe", " [Example Office]", "Desko for Windows rev 4.0  [Example Office]"},
        {"desko41", " [not saved]", "Desko for Windows rev 4.0 "},
        {"desko40-test", " [Example Office]", "Desko for Windows rev 4.0 "},
    };
    for (const auto& [programFile, tag, caption] : cases) {
        ws.gScheduleTag = QString::fromUtf8(tag);
        EXPECT_EQ(open(QString::fromUtf8(programFile)).windowTitle(), QString::fromUtf8(caption))
            << programFile;
    }
}

// The frame counts the agents and the list names them. Filling and refilling the list keep
// the agent chosen before; one that is gone gives the first.
TEST_F(MainWindow, TheAgentListCountsKeepsTheChosenAgentAndTakesClicks) {
    struct Case {
        int agents;
        const char* caption;
        std::optional<int> selected;
        int row;
    };
    const Case cases[] = {
        {0, "Agent list (no agents)", std::nullopt, -1},
        {1, "Agent list (1 agent)", 0, 0},
        {3, "Agent list (3 agents)", std::nullopt, 0},
        {3, "Agent list (3 agents)", 1, 1},
        {3, "Agent list (3 agents)", 2, 2},
        {3, "Agent list (3 agents)", 7, 0},
        {3, "Agent list (3 agents)", -1, 0},
    };
    const QStringList office = texts({"Brennan, Patrick", "Chen, Wei", "Delgado, Sofia"});
    for (const Case& c : cases) {
        SCOPED_TRACE(&c - cases);
        withAgents(c.agents);
        ws.gSelectedAgent = c.selected;
        open();
        EXPECT_EQ(window->fraAgents->title(), QString::fromUtf8(c.caption));
        QStringList items;
        for (int row = 0; row < window->lstAgents->count(); ++row) {
            items.append(window->lstAgents->item(row)->text());
        }
        EXPECT_EQ(items, office.mid(0, c.agents));
        EXPECT_EQ(window->lstAgents->currentRow(), c.row);
        window->Form_Activate();
        EXPECT_EQ(window->lstAgents->currentRow(), c.row);
        if (c.agents > 0) {
            EXPECT_EQ(ws.gSelectedAgent, c.row);
        }
    }

    // A click chooses an agent; a double click also presses Change.
    QListWidget* list = window->lstAgents;
    int changes = 0;
    QObject::connect(window->cmdChange, &QPushButton::clicked, [&changes] { ++changes; });
    const auto click = [list](int row, bool twice) {
        const QPoint at = list->visualItemRect(list->item(row)).center();
        press(list->viewport(), QEvent::MouseButtonPress, at);
        press(list->viewport(), QEvent::MouseButtonRelease, at);
        if (twice) {
            press(list->viewport(), QEvent::MouseButtonDblClick, at);
            press(list->viewport(), QEvent::MouseButtonRelease, at);
        }
    };
    click(2, false);
    EXPECT_EQ(ws.gSelectedAgent, 2);
    EXPECT_EQ(changes, 0);
    click(1, true);
    EXPECT_EQ(ws.gSelectedAgent, 1);
    EXPECT_EQ(changes, 1);
}

// Any one kind of constraint brings in its entry. The user's choice does not survive the
// return to the normal face.
TEST_F(MainWindow, ViewEditListOffersWhatTheWorkspaceHolds) {
    struct Case {
        int generated, vacations, holidays, noted, restrictions;
        QStringList items;
    };
    const QStringList constrained =
        texts({"Daily shifts & times", "All constraints", "Fonts & printer setup"});
    const Case cases[] = {
        {0, 0, 0, 0, 0, texts({"Daily shifts & times", "Fonts & printer setup"})},
        {1, 0, 0, 0, 0, texts({"Schedule", "Daily shifts & times", "Fonts & printer setup"})},
        {0, 1, 0, 0, 0, constrained},
        {0, 0, 1, 0, 0, constrained},
        {0, 0, 0, 1, 0, constrained},
        {0, 0, 0, 0, 1, constrained},
        {1, 0, 0, 0, 1,
         texts({"Schedule", "Daily shifts & times", "All constraints", "Fonts & printer setup"})},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(&c - cases);
        ws.gScheduleGenerated = c.generated;
        ws.gHasVacations = c.vacations;
        ws.gHasHolidays = c.holidays;
        ws.gHasNotedDays = c.noted;
        ws.gHasRestrictions = c.restrictions;
        open();
        QComboBox* list = window->cmbViewEdit;
        list->setCurrentIndex(list->count() - 1);
        window->modEnterBusyState();
        window->modLeaveBusyState();
        QStringList items;
        for (int i = 0; i < list->count(); ++i) {
            items.append(list->itemText(i));
        }
        EXPECT_EQ(items, c.items);
        EXPECT_EQ(list->currentIndex(), 0);
        EXPECT_EQ(window->mnuEConstraints->isEnabled(),
                  c.items.contains(QStringLiteral("All constraints")));
    }
}

// The frame's own click, on its enabled area with the left button, tells of a schedule that
// is not there.
TEST_F(MainWindow, AClickOnThePrintFrameWithoutAScheduleSaysSo) {
    struct Case {
        int generatedAtOpen, generatedAtClick;  // the first decides whether the frame is enabled
        Qt::MouseButton button;
        bool told;
    };
    const Case cases[] = {{1, 0, Qt::LeftButton, true},
                          {1, 1, Qt::LeftButton, false},
                          {0, 0, Qt::LeftButton, false},
                          {1, 0, Qt::RightButton, false}};
    withAgents(3);
    for (const Case& c : cases) {
        SCOPED_TRACE(&c - cases);
        s.dialogs.shown.clear();
        ws.gScheduleGenerated = c.generatedAtOpen;
        open();
        ws.gScheduleGenerated = c.generatedAtClick;
        QGroupBox* frame = window->fraPrint;
        press(frame, QEvent::MouseButtonPress, QPoint(frame->width() - 3, frame->height() - 3),
              c.button);
        ASSERT_EQ(s.dialogs.shown.size(), c.told ? 1U : 0U);
        if (c.told) {
            EXPECT_EQ(s.dialogs.shown[0].text,
                      QStringLiteral("You must generate a schedule before printing."));
            EXPECT_EQ(s.dialogs.shown[0].icon, MsgIcon::Exclamation);
            EXPECT_EQ(s.dialogs.shown[0].buttons, MsgButtons::OK);
        }
    }
}

// The boxes and the engine list show what loading put into the workspace, and what the user
// changes there goes back for saving. A greyed box comes only from a file.
TEST_F(MainWindow, PrintBoxesAndEngineListMirrorTheWorkspace) {
    withAgents(3);
    ws.gScheduleGenerated = 1;
    ws.chkPrint = {1, 0, 2, 0, 1, 2};
    ws.cmbGenerateListIndex = 3;
    open();
    const Qt::CheckState shown[] = {Qt::Checked,   Qt::Unchecked, Qt::PartiallyChecked,
                                    Qt::Unchecked, Qt::Checked,   Qt::PartiallyChecked};
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(window->chkPrint[i]->checkState(), shown[i]) << i;
    }
    EXPECT_EQ(window->cmbGenerate->currentText(), QStringLiteral("Serial (mixed)"));

    for (const int box : {1, 4, 5}) {
        window->chkPrint[box]->click();
    }
    EXPECT_EQ(ws.chkPrint, (std::array<int, 6>{1, 1, 2, 0, 0, 1}));
    window->chkPrint[5]->click();
    window->chkPrint[5]->click();
    EXPECT_EQ(ws.chkPrint[5], 1);  // on, off, on: never greyed again
}

// Each engine item chooses its engine, for saving too, and presses Generate, which ignores
// the press without agents. The serial engines stand in the menu in the reverse of the list's
// order.
TEST_F(MainWindow, GenerateMenuChoosesTheEngineAndPresses) {
    const std::pair<QAction * frmMain::*, int> cases[] = {{&frmMain::mnuGSmartRandom, 0},
                                                          {&frmMain::mnuGShuffled, 1},
                                                          {&frmMain::mnuGMixed, 3},
                                                          {&frmMain::mnuGHorizontal, 2}};
    for (const int agents : {3, 0}) {
        withAgents(agents);
        ws.cmbGenerateListIndex = agents == 0 ? 2 : 1;
        open();
        // The command itself stops at its first question.
        s.dialogs.answers.assign(8, MsgAnswer::No);
        int presses = 0;
        QObject::connect(window->cmdGenerate, &QPushButton::clicked, [&presses] { ++presses; });
        for (const auto& [item, index] : cases) {
            SCOPED_TRACE((window.get()->*item)->objectName().toStdString() + " with " +
                         std::to_string(agents) + " agents");
            const int before = presses;
            (window.get()->*item)->trigger();
            EXPECT_EQ(ws.cmbGenerateListIndex, index);
            EXPECT_EQ(presses - before, agents == 0 ? 0 : 1);
        }
    }
}

TEST_F(MainWindow, LeavingTheBusyFaceRestoresTheMonthAndTheCursor) {
    withAgents(3);
    open();
    window->fraDate->hide();
    window->fraStatus->show();
    window->labStatus->setText(QStringLiteral("Generating . . ."));
    window->labStatusHigh->setText(QStringLiteral("Agent 2"));
    window->modEnterBusyState();
    ws.gFocusAddButton = 1;
    window->modLeaveBusyState();
    EXPECT_FALSE(window->fraStatus->isVisible());
    EXPECT_TRUE(window->fraDate->isVisible());
    EXPECT_TRUE(window->labStatus->text().isEmpty());
    EXPECT_TRUE(window->labStatusHigh->text().isEmpty());
    EXPECT_EQ(window->focusWidget(), window->cmdAdd);
    EXPECT_EQ(ws.gFocusAddButton, 0);
}

// Enter presses the focused button, else the default one if it is in sight, as in any form.
TEST_F(MainWindow, EnterPressesTheFocusedOrTheDefaultButton) {
    withAgents(3);
    open();
    int oks = 0;
    int deletes = 0;
    QObject::connect(window->cmdOK, &QPushButton::clicked, [&oks] { ++oks; });
    QObject::connect(window->cmdDelete, &QPushButton::clicked, [&deletes] { ++deletes; });
    const auto enter = [](QWidget* target) {
        QKeyEvent event(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QApplication::sendEvent(target, &event);
    };

    window->fraEditAgent->show();
    window->cmdOK->setDefault(true);
    enter(window->txtLastName);
    EXPECT_EQ(oks, 1);
    window->cmdDelete->setFocus();
    enter(window->cmdDelete);
    EXPECT_EQ(deletes, 1);
    EXPECT_EQ(oks, 1);
    window->fraEditAgent->hide();
    enter(window->lstAgents);
    EXPECT_EQ(oks, 1);
}

// Coming back from another of the program's windows rebuilds the controls; coming back from a
// message box leaves them as the command in progress set them.
TEST_F(MainWindow, OnlyAReturnFromAnotherFormRebuildsTheControls) {
    withAgents(3);
    open();
    ASSERT_TRUE(activate(window.get()));
    window->modEnterBusyState();

    QMessageBox box(QMessageBox::Warning, QString(), QStringLiteral("A question"), QMessageBox::Ok,
                    window.get());
    box.show();
    ASSERT_TRUE(activate(&box));
    box.hide();
    ASSERT_TRUE(activate(window.get()));
    EXPECT_FALSE(window->cmdAdd->isEnabled());

    QWidget form;
    form.show();
    ASSERT_TRUE(activate(&form));
    form.hide();
    ASSERT_TRUE(activate(window.get()));
    EXPECT_TRUE(window->cmdAdd->isEnabled());
}

}  // namespace
