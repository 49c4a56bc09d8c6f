#include "shell/frmMain.h"
#include "fakes.h"
#include "shell/session.h"
#include "workspace/workspace.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPushButton>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace {

struct Name {
    const char* last;
    const char* first;
};

const Name kOffice[] = {{"Brennan", "Patrick"}, {"Chen", "Wei"}, {"Delgado", "Sofia"}};

// The main window over a workspace of its own, in a program directory of its own.
class MainWindow : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(home.isValid());
        modInitSession(ws, home.path());
        modInitNameTables(ws);
        ws.gCurrentMonth = 1;
        ws.gCurrentYear = 2027;
    }

    // The first count agents of the office, in list order.
    void withAgents(int count) {
        ws.gAgentCount = count;
        ws.redimAgents(count);
        for (int i = 1; i <= count; ++i) {
            ws.gAgentLast[i] = QString::fromUtf8(kOffice[i - 1].last);
            ws.gAgentFirst[i] = QString::fromUtf8(kOffice[i - 1].first);
        }
    }

    frmMain& open(const QString& programFile = QStringLiteral("desko40")) {
        window = std::make_unique<frmMain>(ws, s.ctx, programFile);
        window->show();
        return *window;
    }

    template <typename T>
    T* control(const char* name) const {
        T* found = window->findChild<T*>(QString::fromUtf8(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }

    QTemporaryDir home;
    TestServices s;
    Workspace ws;
    std::unique_ptr<frmMain> window;
};

// An item can be chosen when it and every menu above it are enabled.
bool reachable(const QAction* action) {
    if (!action->isEnabled()) {
        return false;
    }
    for (const QObject* holder : action->associatedObjects()) {
        if (const auto* menu = qobject_cast<const QMenu*>(holder)) {
            if (!reachable(menu->menuAction())) {
                return false;
            }
        }
    }
    return true;
}

// Whether the user can work the named control or menu.
bool live(const frmMain& window, const char* name) {
    const QString objectName = QString::fromUtf8(name);
    if (const auto* menu = window.findChild<QMenu*>(objectName)) {
        return reachable(menu->menuAction());
    }
    if (const auto* widget = window.findChild<QWidget*>(objectName)) {
        return widget->isEnabled();
    }
    if (const auto* action = window.findChild<QAction*>(objectName)) {
        return reachable(action);
    }
    ADD_FAILURE() << "no control " << name;
    return false;
}

void press(QWidget* widget, QEvent::Type type, QPoint at, Qt::MouseButton button = Qt::LeftButton) {
    QMouseEvent event(type, QPointF(at), QPointF(widget->mapToGlobal(at)), button,
                      type == QEvent::MouseButtonRelease ? Qt::NoButton : button, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

void clickItem(QListWidget* list, int row, bool twice = false) {
    const QPoint at = list->visualItemRect(list->item(row)).center();
    press(list->viewport(), QEvent::MouseButtonPress, at);
    press(list->viewport(), QEvent::MouseButtonRelease, at);
    if (twice) {
        press(list->viewport(), QEvent::MouseButtonDblClick, at);
        press(list->viewport(), QEvent::MouseButtonRelease, at);
    }
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
    struct Row {
        const char* name;
        bool live[4];  // no agents, agents, generated schedule, busy
    };
    const Row rows[] = {
        {"fraAgents", {1, 1, 1, 0}},       {"lstAgents", {1, 1, 1, 0}},
        {"cmdAdd", {1, 1, 1, 0}},          {"cmdChange", {0, 1, 1, 0}},
        {"cmdDelete", {0, 1, 1, 0}},       {"cmdVacations", {0, 1, 1, 0}},
        {"cmdRestrictions", {0, 1, 1, 0}}, {"cmdHolidays", {0, 1, 1, 0}},
        {"cmdNotes", {0, 1, 1, 0}},        {"fraDate", {1, 1, 1, 0}},
        {"labDate", {1, 1, 1, 0}},         {"vscDate", {1, 1, 1, 0}},
        {"fraViewEdit", {1, 1, 1, 0}},     {"cmbViewEdit", {1, 1, 1, 0}},
        {"cmdViewEdit", {1, 1, 1, 0}},     {"fraGenerate", {1, 1, 1, 0}},
        {"cmbGenerate", {0, 1, 1, 0}},     {"cmdGenerate", {0, 1, 1, 0}},
        {"fraPrint", {0, 0, 1, 0}},        {"chkPrint(0)", {0, 0, 1, 0}},
        {"chkPrint(1)", {0, 0, 1, 0}},     {"chkPrint(2)", {0, 0, 1, 0}},
        {"cmdPrint", {0, 0, 1, 0}},        {"fraExport", {0, 0, 1, 0}},
        {"chkPrint(3)", {0, 0, 1, 0}},     {"chkPrint(4)", {0, 0, 1, 0}},
        {"chkPrint(5)", {0, 0, 1, 0}},     {"cmdExport", {0, 0, 1, 0}},
        {"fraStatus", {1, 1, 1, 1}},       {"labStatus", {1, 1, 1, 1}},
        {"txtFirstName", {1, 1, 1, 1}},    {"txtLastName", {1, 1, 1, 1}},
        {"txtEmail", {1, 1, 1, 1}},        {"cmdResolveName", {1, 1, 1, 1}},
        {"cmdOK", {1, 1, 1, 1}},           {"cmdCancel", {1, 1, 1, 1}},
        {"mnuFile", {1, 1, 1, 0}},         {"mnuFNew", {1, 1, 1, 0}},
        {"mnuFOpen", {1, 1, 1, 0}},        {"mnuFSaveAs", {1, 1, 1, 0}},
        {"mnuFPrint", {0, 0, 1, 0}},       {"mnuFPCalendar", {0, 0, 1, 0}},
        {"mnuFPGrid", {0, 0, 1, 0}},       {"mnuFPTearsheet", {0, 0, 1, 0}},
        {"mnuFExport", {0, 0, 1, 0}},      {"mnuFEEmail", {0, 0, 1, 0}},
        {"mnuFEOutlook", {0, 0, 1, 0}},    {"mnuFECreator", {0, 0, 1, 0}},
        {"mnuFExit", {1, 1, 1, 0}},        {"mnuEdit", {1, 1, 1, 0}},
        {"mnuESchedule", {0, 0, 1, 0}},    {"mnuEShifts", {1, 1, 1, 0}},
        {"mnuEConstraints", {0, 0, 0, 0}}, {"mnuEFonts", {1, 1, 1, 0}},
        {"mnuGenerate", {1, 1, 1, 0}},     {"mnuGSmartRandom", {1, 1, 1, 0}},
        {"mnuGShuffled", {1, 1, 1, 0}},    {"mnuGMixed", {1, 1, 1, 0}},
        {"mnuGHorizontal", {1, 1, 1, 0}},  {"mnuHelp", {1, 1, 1, 0}},
        {"mnuHHelp", {1, 1, 1, 0}},        {"mnuHDump", {1, 1, 1, 0}},
        {"mnuHAbout", {1, 1, 1, 0}},
    };
    struct Face {
        const char* name;
        int column;
        std::function<void()> reach;
    };
    const Face faces[] = {
        {"no agents", 0, [this] { open(); }},
        {"agents", 1,
         [this] {
             withAgents(3);
             open();
         }},
        {"generated schedule", 2,
         [this] {
             withAgents(3);
             ws.gScheduleGenerated = 1;
             open();
         }},
        {"busy", 3,
         [this] {
             withAgents(3);
             ws.gScheduleGenerated = 1;
             open().modEnterBusyState();
         }},
        // Back from the busy face after the last agent went: explicit disabling must not
        // outlive the enabling of the frames.
        {"busy, then back without agents", 0,
         [this] {
             withAgents(3);
             ws.gScheduleGenerated = 1;
             open().modEnterBusyState();
             withAgents(0);
             ws.gScheduleGenerated = 0;
             window->modLeaveBusyState();
         }},
        {"busy, then back with a schedule", 2,
         [this] {
             withAgents(3);
             open().modEnterBusyState();
             ws.gScheduleGenerated = 1;
             window->modLeaveBusyState();
         }},
    };
    for (const Face& face : faces) {
        SCOPED_TRACE(face.name);
        ws = Workspace();
        SetUp();
        face.reach();
        for (const Row& row : rows) {
            EXPECT_EQ(live(*window, row.name), row.live[face.column]) << row.name;
        }
    }
}

TEST_F(MainWindow, CaptionShowsTheTagOnlyUnderTheProgramsOwnName) {
    struct Case {
        const char* programFile;
        const char* tag;
        const char* caption;
    };
    const Case cases[] = {
        {"desko40", " [not saved]", "Desko for Windows rev 4.0  [not saved]"},
        {"DESKO40", " [Example Office]", "Desko for Windows rev 4.0  [Example Office]"},
        {"Desko40.exe", " [Example Office]", "Desko for Windows rev 4.0  [Example Office]"},
        {"desko41", " [not saved]", "Desko for Windows rev 4.0 "},
        {"desko40-test", " [Example Office]", "Desko for Windows rev 4.0 "},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.programFile);
        ws.gScheduleTag = QString::fromUtf8(c.tag);
        EXPECT_EQ(open(QString::fromUtf8(c.programFile)).windowTitle(),
                  QString::fromUtf8(c.caption));
    }
}

TEST_F(MainWindow, AgentFrameCountsTheAgentsAndListsTheirNames) {
    struct Case {
        int agents;
        const char* caption;
        QStringList items;
    };
    const Case cases[] = {
        {0, "Agent list (no agents)", {}},
        {1, "Agent list (1 agent)", texts({"Brennan, Patrick"})},
        {3, "Agent list (3 agents)", texts({"Brennan, Patrick", "Chen, Wei", "Delgado, Sofia"})},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.agents);
        withAgents(c.agents);
        open();
        EXPECT_EQ(control<QGroupBox>("fraAgents")->title(), QString::fromUtf8(c.caption));
        auto* list = control<QListWidget>("lstAgents");
        QStringList items;
        for (int row = 0; row < list->count(); ++row) {
            items.append(list->item(row)->text());
        }
        EXPECT_EQ(items, c.items);
    }

    // A change of the agent list recounts, writes the working file and rebuilds the keys.
    withAgents(1);
    open();
    withAgents(2);
    window->modUpdateAgentList();
    EXPECT_EQ(control<QGroupBox>("fraAgents")->title(), QStringLiteral("Agent list (2 agents)"));
    EXPECT_TRUE(QFile::exists(ws.gConfigFile));
    EXPECT_EQ(ws.gAgentKey[2], QStringLiteral("Chen"));
}

TEST_F(MainWindow, TheListKeepsTheSelectedAgentAndClicksChooseOne) {
    struct Case {
        std::optional<int> selected;
        int row;
    };
    // Filling and refilling the list keep the agent chosen before; one that is gone gives the
    // first.
    const Case cases[] = {{std::nullopt, 0}, {1, 1}, {2, 2}, {7, 0}, {-1, 0}};
    withAgents(3);
    for (const Case& c : cases) {
        SCOPED_TRACE(c.selected.value_or(-99));
        ws.gSelectedAgent = c.selected;
        open();
        EXPECT_EQ(control<QListWidget>("lstAgents")->currentRow(), c.row);
        EXPECT_EQ(ws.gSelectedAgent, c.row);
        window->Form_Activate();
        EXPECT_EQ(control<QListWidget>("lstAgents")->currentRow(), c.row);
        EXPECT_EQ(ws.gSelectedAgent, c.row);
    }

    auto* list = control<QListWidget>("lstAgents");
    int changes = 0;
    QObject::connect(control<QPushButton>("cmdChange"), &QPushButton::clicked,
                     [&changes] { ++changes; });
    clickItem(list, 2);
    EXPECT_EQ(ws.gSelectedAgent, 2);
    EXPECT_EQ(changes, 0);
    clickItem(list, 1, true);
    EXPECT_EQ(ws.gSelectedAgent, 1);
    EXPECT_EQ(changes, 1);
}

TEST_F(MainWindow, ViewEditListOffersWhatTheWorkspaceHolds) {
    struct Case {
        const char* name;
        int generated;
        int vacations, holidays, noted, restrictions;
        QStringList items;
    };
    const QStringList plain = texts({"Daily shifts & times", "Fonts & printer setup"});
    const QStringList constrained =
        texts({"Daily shifts & times", "All constraints", "Fonts & printer setup"});
    const Case cases[] = {
        {"nothing", 0, 0, 0, 0, 0, plain},
        {"schedule", 1, 0, 0, 0, 0,
         texts({"Schedule", "Daily shifts & times", "Fonts & printer setup"})},
        {"vacations", 0, 1, 0, 0, 0, constrained},
        {"holidays", 0, 0, 1, 0, 0, constrained},
        {"noted days", 0, 0, 0, 1, 0, constrained},
        {"restrictions", 0, 0, 0, 0, 1, constrained},
        {"schedule and restrictions", 1, 0, 0, 0, 1,
         texts({"Schedule", "Daily shifts & times", "All constraints", "Fonts & printer setup"})},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        ws.gScheduleGenerated = c.generated;
        ws.gHasVacations = c.vacations;
        ws.gHasHolidays = c.holidays;
        ws.gHasNotedDays = c.noted;
        ws.gHasRestrictions = c.restrictions;
        open();
        auto* list = control<QComboBox>("cmbViewEdit");
        // The user's choice does not survive the return to the normal face.
        list->setCurrentIndex(list->count() - 1);
        window->modEnterBusyState();
        window->modLeaveBusyState();
        QStringList items;
        for (int i = 0; i < list->count(); ++i) {
            items.append(list->itemText(i));
        }
        EXPECT_EQ(items, c.items);
        EXPECT_EQ(list->currentIndex(), 0);
        EXPECT_EQ(control<QAction>("mnuESchedule")->isEnabled(), c.generated == 1);
        EXPECT_EQ(control<QAction>("mnuEConstraints")->isEnabled(),
                  c.items.contains(QStringLiteral("All constraints")));
    }
}

TEST_F(MainWindow, AClickOnThePrintFrameWithoutAScheduleSaysSo) {
    struct Case {
        const char* name;
        int generatedAtOpen;  // decides whether the frame is enabled
        int generatedAtClick;
        Qt::MouseButton button;
        bool told;
    };
    const Case cases[] = {
        {"enabled frame, schedule gone", 1, 0, Qt::LeftButton, true},
        {"enabled frame, schedule there", 1, 1, Qt::LeftButton, false},
        {"disabled frame", 0, 0, Qt::LeftButton, false},
        {"right button", 1, 0, Qt::RightButton, false},
    };
    withAgents(3);
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        s.dialogs.shown.clear();
        ws.gScheduleGenerated = c.generatedAtOpen;
        open();
        ws.gScheduleGenerated = c.generatedAtClick;
        auto* frame = control<QGroupBox>("fraPrint");
        press(frame, QEvent::MouseButtonPress, QPoint(frame->width() - 3, frame->height() - 3),
              c.button);
        if (!c.told) {
            EXPECT_TRUE(s.dialogs.shown.empty());
            continue;
        }
        ASSERT_EQ(s.dialogs.shown.size(), 1U);
        EXPECT_EQ(s.dialogs.shown[0].text,
                  QStringLiteral("You must generate a schedule before printing."));
        EXPECT_EQ(s.dialogs.shown[0].icon, MsgIcon::Exclamation);
        EXPECT_EQ(s.dialogs.shown[0].buttons, MsgButtons::OK);
        EXPECT_EQ(s.dialogs.shown[0].defaultButton, 1);
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
        const std::string name = "chkPrint(" + std::to_string(i) + ")";
        EXPECT_EQ(control<QCheckBox>(name.c_str())->checkState(), shown[i]) << name;
    }
    auto* engines = control<QComboBox>("cmbGenerate");
    EXPECT_EQ(engines->currentIndex(), 3);
    EXPECT_EQ(engines->itemText(3), QStringLiteral("Serial (mixed)"));

    control<QCheckBox>("chkPrint(1)")->click();
    control<QCheckBox>("chkPrint(4)")->click();
    control<QCheckBox>("chkPrint(5)")->click();
    EXPECT_EQ(ws.chkPrint, (std::array<int, 6>{1, 1, 2, 0, 0, 1}));
    control<QCheckBox>("chkPrint(5)")->click();
    control<QCheckBox>("chkPrint(5)")->click();
    EXPECT_EQ(ws.chkPrint[5], 1);  // on, off, on: never greyed again

    engines->setCurrentIndex(1);
    EXPECT_EQ(ws.cmbGenerateListIndex, 1);
}

// Each engine item chooses its engine and presses Generate, which ignores the press without
// agents. The serial engines stand in the menu in the reverse of the list's order.
TEST_F(MainWindow, GenerateMenuChoosesTheEngineAndPresses) {
    struct Case {
        const char* item;
        int index;
    };
    const Case cases[] = {
        {"mnuGSmartRandom", 0}, {"mnuGShuffled", 1}, {"mnuGMixed", 3}, {"mnuGHorizontal", 2}};
    for (const int agents : {3, 0}) {
        withAgents(agents);
        ws.cmbGenerateListIndex = agents == 0 ? 2 : 1;
        open();
        // The command itself stops at its first question.
        s.dialogs.answers.assign(8, MsgAnswer::No);
        int presses = 0;
        QObject::connect(control<QPushButton>("cmdGenerate"), &QPushButton::clicked,
                         [&presses] { ++presses; });
        for (const Case& c : cases) {
            SCOPED_TRACE(std::string(c.item) + " with " + std::to_string(agents) + " agents");
            const int before = presses;
            control<QAction>(c.item)->trigger();
            EXPECT_EQ(control<QComboBox>("cmbGenerate")->currentIndex(), c.index);
            EXPECT_EQ(ws.cmbGenerateListIndex, c.index);
            EXPECT_EQ(presses - before, agents == 0 ? 0 : 1);
        }
    }
}

TEST_F(MainWindow, LeavingTheBusyFaceRestoresTheMonthAndTheCursor) {
    withAgents(3);
    open();
    EXPECT_FALSE(control<QGroupBox>("fraStatus")->isVisible());
    EXPECT_EQ(control<QFrame>("shpStatus")->width(), 0);
    EXPECT_EQ(control<QLabel>("labDate")->text(), QStringLiteral("January 2027"));

    control<QGroupBox>("fraDate")->hide();
    control<QGroupBox>("fraStatus")->show();
    control<QLabel>("labStatus")->setText(QStringLiteral("Generating . . ."));
    control<QLabel>("labStatusHigh")->setText(QStringLiteral("Agent 2"));
    window->modEnterBusyState();
    ws.gFocusAddButton = 1;
    window->modLeaveBusyState();
    EXPECT_FALSE(control<QGroupBox>("fraStatus")->isVisible());
    EXPECT_TRUE(control<QGroupBox>("fraDate")->isVisible());
    EXPECT_TRUE(control<QLabel>("labStatus")->text().isEmpty());
    EXPECT_TRUE(control<QLabel>("labStatusHigh")->text().isEmpty());
    EXPECT_EQ(window->focusWidget(), control<QPushButton>("cmdAdd"));
    EXPECT_EQ(ws.gFocusAddButton, 0);
}

// Enter presses the focused button, else the default one, as in any form.
TEST_F(MainWindow, EnterPressesTheFocusedOrTheDefaultButton) {
    withAgents(3);
    open();
    int oks = 0;
    int deletes = 0;
    QObject::connect(control<QPushButton>("cmdOK"), &QPushButton::clicked, [&oks] { ++oks; });
    QObject::connect(control<QPushButton>("cmdDelete"), &QPushButton::clicked,
                     [&deletes] { ++deletes; });
    const auto enter = [](QWidget* target) {
        QKeyEvent event(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QApplication::sendEvent(target, &event);
    };

    control<QGroupBox>("fraEditAgent")->show();
    control<QPushButton>("cmdOK")->setDefault(true);
    enter(control<QLineEdit>("txtLastName"));
    EXPECT_EQ(oks, 1);

    control<QPushButton>("cmdDelete")->setFocus();
    enter(control<QPushButton>("cmdDelete"));
    EXPECT_EQ(deletes, 1);
    EXPECT_EQ(oks, 1);

    // A default button out of sight is no default.
    control<QGroupBox>("fraEditAgent")->hide();
    enter(control<QListWidget>("lstAgents"));
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
    EXPECT_FALSE(control<QPushButton>("cmdAdd")->isEnabled());

    QWidget form;
    form.setObjectName(QStringLiteral("frmOther"));
    form.show();
    ASSERT_TRUE(activate(&form));
    form.hide();
    ASSERT_TRUE(activate(window.get()));
    EXPECT_TRUE(control<QPushButton>("cmdAdd")->isEnabled());
}

}  // namespace
