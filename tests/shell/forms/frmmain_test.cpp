#include "constraints/forms/frmHolidays.h"
#include "core/forms/elidedlabel.h"
#include "core/model/workspace.h"
#include "core/services/textfile.h"
#include "generation/forms/frmIndividualDay.h"
#include "generation/forms/frmWholeCalendar.h"
#include "mainwindow.h"
#include "offices.h"
#include "shell/forms/monthstepper.h"
#include "shell/forms/programstart.h"

#include <QAccessible>
#include <QLockFile>
#include <QStyle>
#include <QStyleOptionSlider>

#include <gtest/gtest.h>

#include <algorithm>

namespace {

// The first count agents of a small office, in list order.
void withAgents(Workspace& ws, int count) {
    const char* const names[][2] = {{"Brennan", "Patrick"}, {"Chen", "Wei"}, {"Delgado", "Sofia"}};
    ws.gAgentCount = count;
    ws.redimAgents(count);
    for (int i = 1; i <= count; ++i) {
        ws.gAgentLast[i] = QString::fromUtf8(names[i - 1][0]);
        ws.gAgentFirst[i] = QString::fromUtf8(names[i - 1][1]);
    }
}

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

// Opens and closes each editor of the constraints once, so that each is a face of the window.
void openEveryEditor(MainWindow& w) {
    w.ws.gHoliday[1] = 1;
    w.ws.gHolidayName[1] = QStringLiteral("New Year's Day");
    w.ws.gHasHolidays = 1;
    w.main->modLeaveBusyState();
    w.main->lstAgents->setCurrentRow(0);
    const auto ok = [&] {
        for (auto* button : w.window->findChildren<QPushButton*>(QStringLiteral("cmdOK"))) {
            if (button->isVisible()) {
                return QTest::mouseClick(button, Qt::LeftButton);
            }
        }
    };
    QTest::mouseClick(w.main->cmdHolidays, Qt::LeftButton);
    ok();
    QTest::mouseClick(w.main->cmdRestrictions, Qt::LeftButton);
    ok();
    w.main->mnuEConstraints->trigger();
    ok();
    w.main->mnuEShifts->trigger();
    QTest::mouseClick(w.window->findChild<QPushButton*>(QStringLiteral("cmdChange(1)")),
                      Qt::LeftButton);
    ok();
    ok();
    w.main->mnuEFonts->trigger();
    ok();
    EXPECT_TRUE(w.main->isVisible());
}

}  // namespace

// Which controls and menus are live in the normal face, for each state of the workspace, and
// in the busy face, where only the status and the agent editor stay as they were.
TEST(MainWindowForm, EachFaceEnablesWhatTheWorkspaceAllows) {
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
    const struct {
        const char* name;
        int column, agents, generated, agentsAfter, generatedAfter;
    } faces[] = {
        {"no agents", 0, 0, 0, -1, 0},
        {"agents", 1, 3, 0, -1, 0},
        {"generated schedule", 2, 3, 1, -1, 0},
        {"busy", 3, 3, 1, -1, 0},
        {"busy, then back without agents", 0, 3, 1, 0, 0},
        {"busy, then back with a schedule", 2, 3, 0, 3, 1},
    };
    for (const auto& face : faces) {
        SCOPED_TRACE(face.name);
        MainWindow w;
        withAgents(w.ws, face.agents);
        w.ws.gScheduleGenerated = face.generated;
        w.open();
        if (face.column == 3 || face.agentsAfter >= 0) {
            w.main->modEnterBusyState();
        }
        if (face.agentsAfter >= 0) {
            withAgents(w.ws, face.agentsAfter);
            w.ws.gScheduleGenerated = face.generatedAfter;
            w.main->modLeaveBusyState();
        }
        for (const auto& [pattern, names] : groups) {
            for (const QString& name : QString::fromUtf8(names).split(QLatin1Char(' '))) {
                EXPECT_EQ(live(*w.main, name), pattern[face.column]) << name.toStdString();
            }
        }
    }
}

// The window carries exactly the caption the main form builds, nothing appended.
TEST(MainWindowForm, CaptionShowsTheTagOnlyUnderTheProgramsOwnName) {
    const char* const cases[][3] = {
        {"desko40", " [not saved]", "Desko for Windows rev 4.0  [not saved]"},
        {"DESKO40", " [Example Office]", "Desko for Windows rev 4.0  [Example Office]"},
        {"Desko40.exe", " [Example Office]", "Desko for Windows rev 4.0  [Example Office]"},
        {"desko40-test", " [Example Office]", "Desko for Windows rev 4.0 "},
    };
    for (const auto& [programFile, tag, caption] : cases) {
        MainWindow w;
        w.ws.gScheduleTag = QString::fromUtf8(tag);
        w.open(QString::fromUtf8(programFile));
        EXPECT_EQ(w.window->windowTitle(), QString::fromUtf8(caption)) << programFile;
    }
}

// The frame counts the agents and the list names them. Filling and refilling the list keep
// the agent chosen before; one that is gone gives the first. A click chooses an agent; a
// double click also presses Change.
TEST(MainWindowForm, TheAgentListCountsKeepsTheChosenAgentAndTakesClicks) {
    const struct {
        int agents;
        const char* caption;
        std::optional<int> selected;
        int row;
    } cases[] = {
        {0, "Agent list (no agents)", std::nullopt, -1},
        {1, "Agent list (1 agent)", 0, 0},
        {3, "Agent list (3 agents)", 2, 2},
        {3, "Agent list (3 agents)", 7, 0},
    };
    const QStringList office = texts({"Brennan, Patrick", "Chen, Wei", "Delgado, Sofia"});
    for (const auto& c : cases) {
        SCOPED_TRACE(&c - cases);
        MainWindow w;
        withAgents(w.ws, c.agents);
        w.ws.gSelectedAgent = c.selected;
        w.open();
        EXPECT_EQ(w.main->fraAgents->title(), QString::fromUtf8(c.caption));
        QStringList items;
        for (int row = 0; row < w.main->lstAgents->count(); ++row) {
            items.append(w.main->lstAgents->item(row)->text());
        }
        EXPECT_EQ(items, office.mid(0, c.agents));
        EXPECT_EQ(w.main->lstAgents->currentRow(), c.row);
        if (c.agents > 0) {
            EXPECT_EQ(w.ws.gSelectedAgent, c.row);
        }
    }

    MainWindow w;
    withAgents(w.ws, 3);
    w.open();
    QListWidget* list = w.main->lstAgents;
    QSignalSpy changes(w.main->cmdChange, &QPushButton::clicked);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                      list->visualItemRect(list->item(2)).center());
    EXPECT_EQ(w.ws.gSelectedAgent, 2);
    EXPECT_EQ(changes.count(), 0);
    const QPoint second = list->visualItemRect(list->item(1)).center();
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
                                    QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease}) {
        mouse(list->viewport(), type, second);
    }
    EXPECT_EQ(w.ws.gSelectedAgent, 1);
    EXPECT_EQ(changes.count(), 1);
    EXPECT_TRUE(w.main->fraEditAgent->isVisible());
}

// The list follows the workspace, and every return to the normal face puts it back to its
// first entry; an entry opens its form, and the Edit menu does the same.
TEST(MainWindowForm, ViewEditListAndEditMenuOpenTheirForms) {
    MainWindow w;
    withAgents(w.ws, 3);
    w.ws.gScheduleGenerated = 1;
    w.ws.gHasRestrictions = 1;
    w.ws.gRestriction[1][1][1] = 1;
    w.open();
    QComboBox* list = w.main->cmbViewEdit;
    EXPECT_EQ(list->itemText(0), QStringLiteral("Schedule"));
    EXPECT_EQ(list->count(), 4);
    EXPECT_TRUE(w.main->mnuEConstraints->isEnabled());
    const struct {
        int entry;          // -1: the menu item
        QAction* item;      // or null
        const char* opens;  // the form on top, or "" for none
    } cases[] = {{0, nullptr, "frmWholeCalendar"},
                 {1, nullptr, "frmViewDay"},
                 {2, nullptr, "frmBoth"},
                 {3, nullptr, "frmPSetup"},
                 {-1, w.main->mnuESchedule, "frmWholeCalendar"},
                 {-1, w.main->mnuEShifts, "frmViewDay"},
                 {-1, w.main->mnuEConstraints, "frmBoth"},
                 {-1, w.main->mnuEFonts, "frmPSetup"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(&c - cases);
        if (c.item != nullptr) {
            c.item->trigger();
        } else {
            list->setCurrentIndex(c.entry);
            QTest::mouseClick(w.main->cmdViewEdit, Qt::LeftButton);
        }
        const bool opens = *c.opens != '\0';
        auto* form = opens ? w.window->findChild<QWidget*>(QLatin1String(c.opens)) : w.main;
        EXPECT_TRUE(form != nullptr && form->isVisible());
        EXPECT_EQ(w.busy(), opens);
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
        if (opens) {
            QTest::mouseClick(form->findChild<QPushButton*>(QStringLiteral("cmdOK")),
                              Qt::LeftButton);
            EXPECT_EQ(list->currentIndex(), 0);
        }
    }
}

// The frame's own click, on its enabled area with the left button, tells of a schedule that
// is not there.
TEST(MainWindowForm, AClickOnThePrintFrameWithoutAScheduleSaysSo) {
    const struct {
        int generatedAtOpen, generatedAtClick;  // the first decides whether the frame is enabled
        Qt::MouseButton button;
        bool told;
    } cases[] = {{1, 0, Qt::LeftButton, true},
                 {1, 1, Qt::LeftButton, false},
                 {0, 0, Qt::LeftButton, false},
                 {1, 0, Qt::RightButton, false}};
    for (const auto& c : cases) {
        SCOPED_TRACE(&c - cases);
        MainWindow w;
        withAgents(w.ws, 3);
        w.ws.gScheduleGenerated = c.generatedAtOpen;
        w.open();
        w.ws.gScheduleGenerated = c.generatedAtClick;
        QGroupBox* frame = w.main->fraPrint;
        mouse(frame, QEvent::MouseButtonPress, QPoint(frame->width() - 3, frame->height() - 3),
              c.button);
        EXPECT_EQ(
            w.s.dialogs.texts(),
            c.told ? texts({"You must generate a schedule before printing."}) : QStringList());
    }
}

// The boxes and the engine list show what the working file gave, and what the user changes
// there goes back for saving. A greyed box comes only from a file. Each engine item chooses
// its engine and presses Generate, which ignores the press without agents; the serial engines
// stand in the menu in the reverse of the list's order.
TEST(MainWindowForm, PrintBoxesAndEngineListMirrorTheWorkspace) {
    MainWindow w;
    withAgents(w.ws, 3);
    w.ws.gScheduleGenerated = 1;
    w.ws.chkPrint = {1, 0, 2, 0, 1, 2};
    w.ws.cmbGenerateListIndex = 3;
    w.open();
    const Qt::CheckState shown[] = {Qt::Checked,   Qt::Unchecked, Qt::PartiallyChecked,
                                    Qt::Unchecked, Qt::Checked,   Qt::PartiallyChecked};
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(w.main->chkPrint[i]->checkState(), shown[i]) << i;
    }
    EXPECT_EQ(w.main->cmbGenerate->currentText(), QStringLiteral("Serial (mixed)"));
    for (const int box : {1, 4, 5, 5, 5}) {
        QCheckBox* check = w.main->chkPrint[box];
        QTest::mouseClick(check, Qt::LeftButton, {}, QPoint(8, check->height() / 2));
    }
    EXPECT_EQ(w.ws.chkPrint, (std::array<int, 6>{1, 1, 2, 0, 0, 1}));  // never greyed again
    // A configuration dump read, and a Cancel of the holidays reading the working file back
    // over a box just ticked: the boxes and the list show what the commands will act on.
    const QString dump = w.home.filePath(QStringLiteral("office.dmp"));
    writeTextFile(dump, QStringLiteral("[Agents]\r\n1=Chen|Wei|\r\n[Settings]\r\nPrinter "
                                       "Format=000100\r\nScheduling Engine=2\r\n"));
    w.s.dialogs.fileAnswers = {dump};
    w.main->mnuHOpenDump->trigger();
    QTest::mouseClick(w.main->chkPrint[5], Qt::LeftButton, {}, QPoint(8, 8));
    QTest::mouseClick(w.main->cmdHolidays, Qt::LeftButton);
    QTest::mouseClick(w.window->findChild<frmHolidays*>()->cmdCancel, Qt::LeftButton);
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(w.main->chkPrint[i]->isChecked(), i == 3) << i;
    }
    EXPECT_EQ(w.main->cmbGenerate->currentIndex(), 2);

    for (const int agents : {3, 0}) {
        MainWindow m;
        withAgents(m.ws, agents);
        m.open();
        m.s.dialogs.answers.assign(8, MsgAnswer::No);  // the command stops at its question
        QSignalSpy presses(m.main->cmdGenerate, &QPushButton::clicked);
        const std::pair<QAction*, int> items[] = {{m.main->mnuGSmartRandom, 0},
                                                  {m.main->mnuGShuffled, 1},
                                                  {m.main->mnuGMixed, 3},
                                                  {m.main->mnuGHorizontal, 2}};
        for (const auto& [item, index] : items) {
            item->trigger();
            EXPECT_EQ(m.ws.cmbGenerateListIndex, index) << agents;
        }
        EXPECT_EQ(presses.count(), agents == 0 ? 0 : 4);
    }
}

// Leaving the busy face brings the month back in place of the status, and the cursor to Add
// when a run of adds asks for it; Enter presses the focused button, else the default one in
// sight.
TEST(MainWindowForm, TheBusyFaceAndEnter) {
    MainWindow w;
    withAgents(w.ws, 3);
    w.open();
    w.main->beginLongCommand(QStringLiteral("Generating . . ."));
    w.main->labStatusHigh->setText(QStringLiteral("Agent 2"));
    EXPECT_TRUE(w.busy());
    w.ws.gFocusAddButton = 1;
    w.main->modLeaveBusyState();
    EXPECT_FALSE(w.main->fraStatus->isVisible());
    EXPECT_TRUE(w.main->fraDate->isVisible());
    EXPECT_EQ(w.main->labStatus->text() + w.main->labStatusHigh->text(), QString());
    EXPECT_EQ(w.main->focusWidget(), w.main->cmdAdd);
    EXPECT_EQ(w.ws.gFocusAddButton, 0);

    QSignalSpy oks(w.main->cmdOK, &QPushButton::clicked);
    QSignalSpy deletes(w.main->cmdDelete, &QPushButton::clicked);
    w.main->fraEditAgent->show();
    w.main->cmdOK->setDefault(true);
    w.main->txtLastName->setFocus();
    QTest::keyClick(w.main->txtLastName, Qt::Key_Return);
    w.main->cmdDelete->setFocus();
    w.s.dialogs.answers = {MsgAnswer::No};
    QTest::keyClick(w.main->cmdDelete, Qt::Key_Return);
    w.main->fraEditAgent->hide();
    w.main->lstAgents->setFocus();
    QTest::keyClick(w.main->lstAgents, Qt::Key_Return);
    EXPECT_EQ(oks.count(), 1);
    EXPECT_EQ(deletes.count(), 1);
}

// One press of an arrow is one step, asked about once the button is up again, never while it
// is down; an answer holds and nothing repeats behind it. A click between the arrows, a notch
// of the wheel and an arrow key are one step each; the up arrow goes forward.
TEST(MainWindowForm, TheMonthStepperStepsOncePerPress) {
    MainWindow w;
    withAgents(w.ws, 3);
    w.ws.gHoliday[4] = w.ws.gHasHolidays = 1;
    w.open();
    MonthStepper* bar = w.main->vscDate;
    QStyleOptionSlider option;
    option.initFrom(bar);
    option.orientation = Qt::Vertical;
    option.minimum = bar->minimum();
    option.maximum = bar->maximum();
    option.sliderPosition = bar->value();
    option.sliderValue = bar->value();
    option.singleStep = 1;
    option.pageStep = 1;
    const auto centreOf = [&](QStyle::SubControl part) {
        return bar->style()->subControlRect(QStyle::CC_ScrollBar, &option, part, bar).center();
    };
    const QString question = QStringLiteral(
        "Changing the date of the calendar will erase the schedule, as well as all holidays, "
        "vacations, and notes.  Do you want to proceed anyway?");

    mouse(bar, QEvent::MouseButtonPress, centreOf(QStyle::SC_ScrollBarSubLine));
    EXPECT_TRUE(w.s.dialogs.shown.empty());
    w.s.dialogs.answers = {MsgAnswer::No};
    mouse(bar, QEvent::MouseButtonRelease, centreOf(QStyle::SC_ScrollBarSubLine));
    EXPECT_EQ(w.s.dialogs.texts(), w.s.dialogs.wrapped({question}));
    EXPECT_EQ(w.main->labDate->text(), QStringLiteral("January 2027"));
    EXPECT_EQ(w.ws.gHoliday[4], 1);

    // The bar is out of step after the No: the next step erases and keeps the month.
    w.s.dialogs.answers = {MsgAnswer::Yes};
    QTest::mouseClick(bar, Qt::LeftButton, {}, centreOf(QStyle::SC_ScrollBarSubLine));
    EXPECT_EQ(w.s.dialogs.shown.size(), 2U);
    EXPECT_EQ(w.ws.gHoliday[4], 0);
    EXPECT_EQ(w.main->labDate->text(), QStringLiteral("January 2027"));

    QWheelEvent notch(QPointF(2, 2), bar->mapToGlobal(QPointF(2, 2)), QPoint(), QPoint(0, 120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    const std::pair<std::function<void()>, const char*> steps[] = {
        {[&] { QTest::mouseClick(bar, Qt::LeftButton, {}, centreOf(QStyle::SC_ScrollBarAddLine)); },
         "December 2026"},
        {[&] { QTest::mouseClick(bar, Qt::LeftButton, {}, centreOf(QStyle::SC_ScrollBarSubLine)); },
         "January 2027"},
        {[&] { QApplication::sendEvent(bar, &notch); }, "February 2027"},
        {[&] { QTest::keyClick(bar, Qt::Key_PageDown); }, "January 2027"},
    };
    for (const auto& [step, month] : steps) {
        step();
        EXPECT_EQ(w.main->labDate->text(), QString::fromUtf8(month));
    }
    EXPECT_EQ(w.s.dialogs.shown.size(), 2U);
    EXPECT_TRUE(logged(w.ws, QStringLiteral("Changing the present month to February 2027")));
}

// Each File item reaches its command, and both roads out end the program through the main
// form: File Exit, and the window's close box while the main form is on top.
TEST(MainWindowForm, FileMenuAndTheRoadsOut) {
    MainWindow w;
    withAgents(w.ws, 3);
    w.open();
    w.main->mnuFile->popup(w.main->mapToGlobal(QPoint(0, 0)));
    EXPECT_FALSE(w.main->mnuFSaveAs->isEnabled());
    w.main->mnuFile->hide();
    w.ws.gDirty = 1;
    w.main->mnuFile->popup(w.main->mapToGlobal(QPoint(0, 0)));
    EXPECT_TRUE(w.main->mnuFSaveAs->isEnabled());
    w.main->mnuFile->hide();

    w.s.dialogs.answers = {MsgAnswer::Cancel, MsgAnswer::Cancel};
    w.main->mnuFNew->trigger();
    w.main->mnuFOpen->trigger();
    w.main->mnuFSaveAs->trigger();
    EXPECT_EQ(w.s.dialogs.shown.size(), 2U);
    ASSERT_EQ(w.s.dialogs.filesShown.size(), 1U);
    EXPECT_EQ(w.s.dialogs.filesShown[0].kind, ScriptedDialogs::FileKind::Save);
    EXPECT_FALSE(w.busy());

    QSignalSpy ended(w.main, &frmMain::programEnds);
    w.s.dialogs.answers = {MsgAnswer::Cancel};
    w.window->close();
    EXPECT_EQ(ended.count(), 0);
    EXPECT_TRUE(w.main->isVisible());
    w.s.dialogs.answers = {MsgAnswer::No};
    w.main->mnuFExit->trigger();
    EXPECT_EQ(ended.count(), 1);
    w.ws.gDirty = 0;
    w.window->close();
    EXPECT_EQ(ended.count(), 2);
    EXPECT_TRUE(logged(w.ws, QStringLiteral("Unloading the main form")));
}

// Add, Change, OK, Cancel and Delete by mouse: the edit frame takes the place of the month's
// commands and the window is busy while it is open; OK puts the list in step with the
// workspace, and a screen reader hears the frames' captions as they change. The constraint
// buttons want an agent chosen and say which picker they open.
TEST(MainWindowForm, TheAgentCommands) {
    MainWindow w;
    withAgents(w.ws, 2);
    w.open();
    const auto expectEditor = [&](bool open) {
        EXPECT_EQ(w.main->fraEditAgent->isVisible(), open);
        EXPECT_EQ(w.main->fraGenerate->isVisible(), !open);
        EXPECT_EQ(w.busy(), open);
    };
    QTest::mouseClick(w.main->cmdAdd, Qt::LeftButton);
    EXPECT_EQ(spokenName(w.main->fraEditAgent), QStringLiteral("Add an agent"));
    expectEditor(true);
    QTest::keyClicks(w.main->txtFirstName, QStringLiteral("Zoe"));
    w.main->txtLastName->setFocus();
    QTest::keyClicks(w.main->txtLastName, QStringLiteral("Abbott"));
    QTest::mouseClick(w.main->cmdOK, Qt::LeftButton);
    expectEditor(false);
    EXPECT_EQ(w.main->lstAgents->item(0)->text(), QStringLiteral("Abbott, Zoe"));
    EXPECT_EQ(spokenName(w.main->fraAgents), QStringLiteral("Agent list (3 agents)"));

    w.main->lstAgents->setCurrentRow(0);
    QTest::mouseClick(w.main->cmdChange, Qt::LeftButton);
    EXPECT_EQ(spokenName(w.main->fraEditAgent), QStringLiteral("Edit an agent"));
    EXPECT_EQ(w.main->txtFirstName->text(), QStringLiteral("Zoe"));
    w.main->txtLastName->setText(QStringLiteral("Young"));
    QTest::mouseClick(w.main->cmdOK, Qt::LeftButton);
    EXPECT_EQ(w.main->lstAgents->item(2)->text(), QStringLiteral("Young, Zoe"));

    QTest::mouseClick(w.main->cmdAdd, Qt::LeftButton);
    w.main->txtFirstName->setText(QStringLiteral("Kim"));
    QTest::mouseClick(w.main->cmdCancel, Qt::LeftButton);
    expectEditor(false);
    EXPECT_EQ(w.ws.gAgentCount, 3);
    EXPECT_TRUE(w.main->txtFirstName->text().isEmpty());

    w.main->lstAgents->setCurrentRow(2);
    w.s.dialogs.answers = {MsgAnswer::Yes};
    QTest::mouseClick(w.main->cmdDelete, Qt::LeftButton);
    EXPECT_EQ(w.main->lstAgents->count(), 2);
    EXPECT_EQ(w.main->lstAgents->currentRow(), 1);

    const std::tuple<QPushButton*, int, int, int> buttons[] = {
        {w.main->cmdVacations, 1, 2, -1},
        {w.main->cmdRestrictions, -1, -1, 2},
        {w.main->cmdHolidays, 0, -1, -1},
        {w.main->cmdNotes, 2, -1, -1},
    };
    for (const auto& [button, mode, dayAgent, restrictionAgent] : buttons) {
        w.ws.gDayPickerMode = w.ws.gDayPickerAgent = w.ws.gRestrictionAgent = -1;
        w.main->lstAgents->setCurrentRow(-1);
        QTest::mouseClick(button, Qt::LeftButton);
        EXPECT_EQ(w.s.dialogs.texts().last(),
                  QStringLiteral("Please select an agent from the agent list."));
        w.main->lstAgents->setCurrentRow(1);
        QTest::mouseClick(button, Qt::LeftButton);
        EXPECT_EQ(std::tuple(w.ws.gDayPickerMode, w.ws.gDayPickerAgent, w.ws.gRestrictionAgent),
                  std::tuple(mode, dayAgent, restrictionAgent));
        // The editor takes the main window's place until its Cancel.
        EXPECT_FALSE(w.main->isVisible());
        for (auto* cancel : w.window->findChildren<QPushButton*>(QStringLiteral("cmdCancel"))) {
            if (cancel->isVisible()) {
                QTest::mouseClick(cancel, Qt::LeftButton);
            }
        }
        EXPECT_TRUE(w.main->isVisible());
    }
}

// Every control a user works, and every list and box, has a name a screen reader reads; the
// engine and view/edit lists are read by their frames.
TEST(MainWindowForm, EveryControlHasANameToBeReadAloud) {
    MainWindow w;
    withAgents(w.ws, 3);
    w.ws.cmbGenerateListIndex = 2;
    w.open();
    openEveryEditor(w);
    w.main->review()->show();
    for (QWidget* control : w.window->findChildren<QWidget*>()) {
        if (control->inherits("QAbstractButton") || control->inherits("QComboBox") ||
            control->inherits("QLineEdit") || control->inherits("QListWidget") ||
            control->inherits("QScrollBar") || control->inherits("QGroupBox")) {
            if (control->objectName().isEmpty() || control->objectName().startsWith(u"qt_")) {
                continue;  // the parts Qt builds into its own controls
            }
            QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(control);
            ASSERT_NE(spoken, nullptr);
            EXPECT_FALSE(spoken->text(QAccessible::Name).isEmpty())
                << control->objectName().toStdString();
        }
    }
    EXPECT_EQ(w.main->cmbGenerate->accessibleName(), spokenName(w.main->fraGenerate));
    EXPECT_EQ(w.main->cmbViewEdit->accessibleName(), spokenName(w.main->fraViewEdit));
}

// A start with a schedule file on its command line shows the file's engine and print boxes;
// a second start in the same folder is refused and touches nothing.
TEST(MainWindowForm, TheStartOpensTheCommandLinesFileAndRunsOncePerFolder) {
    MainWindow w;
    QFile::copy(QStringLiteral(DESKO_EXAMPLES_DIR "/office/Desko40.ini"),
                w.home.filePath(QStringLiteral("Desko40.ini")));
    const QString path = w.home.filePath(QStringLiteral("june office.dko"));
    ASSERT_TRUE(QFile::rename(exampleSchedule(w.home.path()), path));
    w.s.ctx.launch.home = w.home.path();
    w.s.ctx.launch.splashMs = 0;
    const DeskoRun run = modProgramStart(w.ws, w.s.ctx, QStringLiteral("desko40"), path);
    ASSERT_NE(run.main, nullptr);
    EXPECT_TRUE(run.main->review()->isVisible());
    EXPECT_EQ(run.main->cmbGenerate->currentIndex(), 3);
    EXPECT_EQ(run.main->chkPrint[3]->checkState(), Qt::Checked);
    EXPECT_EQ(run.main->chkPrint[0]->checkState(), Qt::Unchecked);
    EXPECT_TRUE(run.main->review()->cmbAgents->isVisible());
    EXPECT_EQ(w.ws.gScheduleTag, QStringLiteral(" [June Office.dko]"));

    const QString log = fileText(w.ws.gLogFile);
    TestServices other;
    other.ctx.launch = w.s.ctx.launch;
    Workspace second;
    EXPECT_EQ(modProgramStart(second, other.ctx, QStringLiteral("desko40"), {}).main, nullptr);
    EXPECT_EQ(other.dialogs.texts(),
              other.dialogs.wrapped({QStringLiteral(
                  "You may run only one instance of Desko for Windows rev 4.0 at a time.")}));
    EXPECT_EQ(other.dialogs.shown[0].icon, MsgIcon::Stop);
    EXPECT_EQ(fileText(w.ws.gLogFile), log);
}
