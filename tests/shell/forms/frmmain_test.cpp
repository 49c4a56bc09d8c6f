#include "core/model/leaveempty.h"
#include "core/model/workspace.h"
#include "core/services/textfile.h"
#include "generation/forms/frmWholeCalendar.h"
#include "mainwindow.h"
#include "offices.h"
#include "persistence/workspacefile.h"
#include "shell/forms/monthstepper.h"
#include "shell/forms/programstart.h"
#include "tables.h"

#include <QDir>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLockFile>

#include <gtest/gtest.h>

#include <algorithm>

namespace {

// An item can be chosen when it and every menu above it are enabled.
bool reachable(const QAction* action) {
    const QObjectList holders = action->associatedObjects();
    return action->isEnabled() && std::all_of(holders.begin(), holders.end(), [](const QObject* o) {
               const auto* menu = qobject_cast<const QMenu*>(o);
               return menu == nullptr || reachable(menu->menuAction());
           });
}

// Whether the user can work the control or menu.
bool live(const QObject* control) {
    if (const auto* menu = qobject_cast<const QMenu*>(control)) {
        return reachable(menu->menuAction());
    }
    if (const auto* widget = qobject_cast<const QWidget*>(control)) {
        return widget->isEnabled();
    }
    const auto* action = qobject_cast<const QAction*>(control);
    return action != nullptr && reachable(action);
}

// The names of the live controls and items among those given.
QString liveNames(const QList<QObject*>& controls) {
    QStringList names;
    for (const QObject* control : controls) {
        const QString name = control->objectName();
        if (!name.isEmpty() && !name.startsWith(u"qt_") && live(control)) {
            names.append(name);
        }
    }
    return names.join(QLatin1Char(' '));
}

// The items of a list, the current one marked.
QString items(const QAbstractItemModel* list, int current) {
    QStringList marked;
    for (int row = 0; row < list->rowCount(); ++row) {
        marked.append((row == current ? QStringLiteral("> ") : QString()) +
                      list->index(row, 0).data().toString());
    }
    return marked.join(QStringLiteral("; "));
}

// What the user sees of the window, into the transcript: the faces shown, the caption, the
// month or the status in its place, the agent list and the edit frame as a screen reader
// names them, the two lists, the print boxes, the control with the focus, every control and
// menu item the user can work, and what the workspace holds of the window.
void look(MainWindow& w) {
    const frmMain& m = *w.main;
    QStringList faces;
    for (const Form* face : w.window->findChildren<Form*>()) {
        if (face->isVisible()) {
            faces.append(face->objectName());
        }
    }
    QStringList& lines = w.s.dialogs.said;
    lines.append(
        QStringLiteral("on the screen: %1, \"%2\"%3%4")
            .arg(faces.join(QStringLiteral(", ")), w.window->windowTitle(),
                 w.busy() ? QStringLiteral(", busy") : QString(),
                 QApplication::overrideCursor() ? QStringLiteral(", hourglass") : QString()));
    lines.append(m.fraStatus->isVisible()
                     ? QStringLiteral("status \"%1\" \"%2\", bar %3 at %4 of %5")
                           .arg(m.labStatus->text(), m.labStatusHigh->text(),
                                m.picStatus->isVisible() ? QStringLiteral("shown")
                                                         : QStringLiteral("hidden"))
                           .arg(m.shpStatus->width())
                           .arg(m.picStatus->width() - 2)
                     : QStringLiteral("month \"") + m.labDate->text() + QLatin1Char('"'));
    // The month's face leaves no status behind for the next long command.
    if (!m.fraStatus->isVisible() && !(m.labStatus->text() + m.labStatusHigh->text()).isEmpty()) {
        lines.append(QStringLiteral("status left behind \"%1\" \"%2\"")
                         .arg(m.labStatus->text(), m.labStatusHigh->text()));
    }
    lines.append(spokenName(m.fraAgents) + QStringLiteral(": ") +
                 items(m.lstAgents->model(), m.lstAgents->currentRow()));
    if (m.fraEditAgent->isVisible()) {
        lines.append(
            QStringLiteral("%1: \"%2\" \"%3\" \"%4\"%5")
                .arg(spokenName(m.fraEditAgent), m.txtFirstName->text(), m.txtLastName->text(),
                     m.txtEmail->text(),
                     m.txtEmail->font().underline() ? QStringLiteral(" underlined") : QString()));
    }
    const char* const states[] = {"off", "greyed", "on"};
    QStringList boxes;
    for (const QCheckBox* box : m.chkPrint) {
        boxes.append(QLatin1String(states[box->checkState()]));
    }
    lines.append(QStringLiteral("view/edit: ") +
                 items(m.cmbViewEdit->model(), m.cmbViewEdit->currentIndex()) +
                 QStringLiteral("; engine: ") + m.cmbGenerate->currentText() +
                 QStringLiteral("; boxes ") + boxes.join(QLatin1Char(' ')));
    const QWidget* focus = w.window->focusWidget();
    const QWidget* named = focus;  // a control of no name is told by the one it is in
    while (named != nullptr && named->objectName().isEmpty()) {
        named = named->parentWidget();
    }
    lines.append(QStringLiteral("focus: ") + (named != focus ? QStringLiteral("in ") : QString()) +
                 (named ? named->objectName() : QStringLiteral("none")));
    lines.append(QStringLiteral("live: ") + liveNames(m.findChildren<QObject*>()));
    const Workspace& ws = w.ws;
    QString print;
    for (const int box : ws.chkPrint) {
        print += QString::number(box);
    }
    lines.append(
        QStringLiteral("workspace: %1 agents, agent %2 chosen, engine %3, print %4, "
                       "generated %5, picker %6 for agent %7, restrictions of agent %8")
            .arg(ws.gAgentCount)
            .arg(ws.gSelectedAgent ? QString::number(*ws.gSelectedAgent) : QStringLiteral("none"))
            .arg(ws.cmbGenerateListIndex)
            .arg(print)
            .arg(ws.gScheduleGenerated)
            .arg(ws.gDayPickerMode)
            .arg(ws.gDayPickerAgent)
            .arg(ws.gRestrictionAgent));
}

// The control of that name on the face on top, or else the item of the menus.
QObject* named(MainWindow& w, const QString& name) {
    for (QWidget* control : w.window->findChildren<QWidget*>(name)) {
        if (control->isVisible()) {
            return control;
        }
    }
    return w.window->findChild<QObject*>(name);
}

// The place on the control where a click, press or release lands: a list's row, an arrow of
// the month stepper, a frame's edge, a check box's box.
QPoint spot(QWidget* control, const QString& where) {
    if (auto* list = qobject_cast<QListWidget*>(control)) {
        return list->visualItemRect(list->item(where.toInt())).center();
    }
    if (qobject_cast<MonthStepper*>(control)) {  // its arrows at either end
        return {control->width() / 2, where == u"up" ? 3 : control->height() - 4};
    }
    if (qobject_cast<QGroupBox*>(control)) {
        return {control->width() - 3, control->height() - 3};
    }
    return qobject_cast<QCheckBox*>(control) ? QPoint(8, control->height() / 2)
                                             : control->rect().center();
}

// Carries out one action of a case on the window: the office before the window opens, the
// window's opening, the user's clicks, keys and words on the controls by name, a look at the
// window, and the few things the program does to the window by itself.
void act(MainWindow& w, const QString& verb, const QString& rest) {
    const QString name = rest.section(QLatin1Char(' '), 0, 0);
    QString arg = rest.section(QLatin1Char(' '), 1);
    QObject* target = w.main ? named(w, name) : nullptr;
    auto* control = qobject_cast<QWidget*>(target);
    Workspace& ws = w.ws;
    if (verb == u"agents") {
        setAgents(ws, {{"Brennan", "Patrick"}, {"Chen", "Wei"}, {"Delgado", "Sofia"}});
        ws.gAgentCount = rest.toInt();  // the first of them, in list order
    } else if (verb == u"table") {      // that many shifts of one agent every day
        setTable(ws, rest.toInt(), 1);
    } else if (verb == u"deal") {  // the agents in turn over the month, each shift 9am-5pm
        dealInTurn(ws);
        ws.gShiftText.fill({QString(), QStringLiteral("9am-5pm")});
    } else if (verb == u"leave-empty") {  // the day's first position
        ws.schedule(rest.toInt(), 1, 0) = leaveEmptyText();
    } else if (verb == u"cell") {
        w.s.dialogs.said.append(QStringLiteral("cell: ") + ws.schedule(rest.toInt(), 1, 0));
    } else if (verb == u"generated") {
        ws.gScheduleGenerated = rest.toInt();
    } else if (verb == u"chosen") {
        ws.gSelectedAgent = rest.toInt();
    } else if (verb == u"tag") {
        ws.gScheduleTag = QLatin1Char(' ') + rest;
    } else if (verb == u"print") {
        std::transform(rest.begin(), rest.end(), ws.chkPrint.begin(),
                       [](QChar digit) { return digit.digitValue(); });
    } else if (verb == u"engine") {
        ws.cmbGenerateListIndex = rest.toInt();
    } else if (verb == u"restriction") {
        ws.gHasRestrictions = ws.gRestriction[1][1][1] = 1;
    } else if (verb == u"holiday") {
        ws.gHoliday[rest.toInt()] = ws.gHasHolidays = 1;
    } else if (verb == u"dirty") {
        ws.gDirty = rest == u"unset" ? std::nullopt : std::optional<int>(rest.toInt());
    } else if (verb == u"answer") {  // the boxes' answers in turn
        w.s.dialogs.answers = answersNamed(rest);
    } else if (verb == u"input") {  // the next input box's answer
        w.s.dialogs.inputAnswers = {rest};
    } else if (verb == u"file") {  // the next file dialog's answer, in the program directory
        w.s.dialogs.fileAnswers.push_back(w.home.filePath(rest));
    } else if (verb == u"book") {
        w.s.ctx.launch.addressBook = QStringLiteral(DESKO_TESTS_DIR "/shell/golden/book");
    } else if (verb == u"write") {
        writeTextFile(w.home.filePath(name),
                      arg.replace(QStringLiteral("\\n"), QStringLiteral("\r\n")));
    } else if (verb == u"open") {  // the working file holds the office, as after a start
        modSaveWorkspace(ws, w.s.ctx, QString());
        w.open(rest.isEmpty() ? QStringLiteral("desko40") : rest);
        QObject::connect(w.main, &frmMain::programEnds,
                         [&w] { w.s.dialogs.said.append(QStringLiteral("the program ends")); });
        // A box asked while the status stands in the month's place says so.
        w.s.dialogs.whileShown = [&w] {
            if (w.main->fraStatus->isVisible()) {
                w.s.dialogs.said.append(QStringLiteral("  (over the status)"));
            }
        };
    } else if (verb == u"click" && qobject_cast<QAction*>(target)) {
        static_cast<QAction*>(target)->trigger();
    } else if (verb == u"click" || verb == u"press" || verb == u"release" ||
               verb == u"double-click") {
        QWidget* on = qobject_cast<QListWidget*>(control)
                          ? static_cast<QListWidget*>(control)->viewport()
                          : control;
        const QPoint at = spot(control, arg.section(QLatin1Char(' '), 0, 0));
        const Qt::MouseButton button = arg.endsWith(u"right") ? Qt::RightButton : Qt::LeftButton;
        if (verb == u"click") {
            QTest::mouseClick(on, button, {}, at);
        } else if (verb == u"double-click") {
            for (const QEvent::Type type :
                 {QEvent::MouseButtonPress, QEvent::MouseButtonRelease, QEvent::MouseButtonDblClick,
                  QEvent::MouseButtonRelease}) {
                mouse(on, type, at);
            }
        } else {
            mouse(on, verb == u"press" ? QEvent::MouseButtonPress : QEvent::MouseButtonRelease, at,
                  button);
        }
    } else if (verb == u"wheel") {
        QWheelEvent notch(QPointF(2, 2), control->mapToGlobal(QPointF(2, 2)), QPoint(),
                          QPoint(0, 120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(control, &notch);
    } else if (verb == u"activate") {  // the window comes to the front, as the user's own
        w.window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(w.window.get()));
    } else if (verb == u"focus") {
        control->setFocus();
    } else if (verb == u"tab-to") {
        for (int tab = 0; tab < 20 && !control->hasFocus(); ++tab) {
            act(w, QStringLiteral("key"), QStringLiteral("Tab"));
        }
    } else if (verb == u"key") {  // where the focus is, as a keyboard gives it; "held" repeats
        QWidget* focus =
            QApplication::focusWidget() ? QApplication::focusWidget() : w.window->focusWidget();
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent key(type, QKeySequence::fromString(name)[0].key(), Qt::NoModifier, QString(),
                          arg == u"held");
            QApplication::sendEvent(focus, &key);
        }
    } else if (verb == u"type") {
        static_cast<QLineEdit*>(control)->clear();
        QTest::keyClicks(control, arg);
    } else if (verb == u"select") {
        if (auto* list = qobject_cast<QListWidget*>(control)) {
            list->setCurrentRow(arg.toInt());
        } else {
            static_cast<QComboBox*>(control)->setCurrentIndex(arg.toInt());
        }
    } else if (verb == u"look") {
        look(w);
    } else if (verb == u"busy") {
        w.main->modEnterBusyState();
    } else if (verb == u"normal") {
        w.main->modLeaveBusyState();
    } else if (verb == u"status") {
        w.main->beginLongCommand(rest.section(QLatin1Char('|'), 0, 0));
        w.main->labStatusHigh->setText(rest.section(QLatin1Char('|'), 1));
    } else if (verb == u"cursor-on-add") {
        ws.gFocusAddButton = 1;
    } else if (verb == u"close") {
        w.window->close();
    } else if (verb == u"popup") {
        auto* menu = w.window->findChild<QMenu*>(name);
        menu->popup(w.main->mapToGlobal(QPoint()));
        QList<QObject*> items = menu->findChildren<QObject*>();
        for (QAction* item : menu->actions()) {
            items.append(item);
        }
        w.s.dialogs.said.append(QStringLiteral("live: ") + liveNames(items));
        menu->hide();
    } else if (verb == u"unnamed") {
        QStringList unnamed;
        for (QWidget* widget : w.window->findChildren<QWidget*>()) {
            const QString widgetName = widget->objectName();
            if ((widget->inherits("QAbstractButton") || widget->inherits("QComboBox") ||
                 widget->inherits("QLineEdit") || widget->inherits("QListWidget") ||
                 widget->inherits("QScrollBar") || widget->inherits("QGroupBox")) &&
                !widgetName.isEmpty() && !widgetName.startsWith(u"qt_") &&
                spokenName(widget).isEmpty()) {
                unnamed.append(widgetName);
            }
        }
        w.s.dialogs.said.append(QStringLiteral("read aloud without a name: ") + unnamed.join(u' '));
    } else {
        ADD_FAILURE() << "no action " << verb.toStdString();
    }
}

}  // namespace

// Each command of the main window, driven as a user does, and each face it shows: each case
// of the table is a script of actions on the window and its controls by name. Its
// transcript holds each action, the boxes and dialogs it brought in turn and the window as the
// user saw it where the case looks, then the window at its end, the log and the files written.
TEST(MainWindowForm, EachCommandAsTheUserMeetsIt) {
    for (const QStringList& c : tableRows("shell/golden/frmmain.tsv")) {
        SCOPED_TRACE(c[0].toStdString());
        MainWindow w;
        for (const QString& action : c[1].split(QStringLiteral("; "))) {
            w.s.dialogs.said.append(QStringLiteral("> ") + action);
            act(w, action.section(QLatin1Char(' '), 0, 0), action.section(QLatin1Char(' '), 1));
        }
        look(w);
        QStringList& lines = w.s.dialogs.said;
        lines += logLines(w.ws);
        for (const QString& file : QDir(w.home.path()).entryList(QDir::Files)) {
            if (!file.startsWith(u"Desko40.")) {
                lines.append(QStringLiteral("file ") + file + QStringLiteral(": ") +
                             textLines(fileText(w.home.filePath(file))).value(0));
            }
        }
        expectTranscript(lines, "shell/golden/frmmain.txt", c[0], w.home.path());
    }
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
    expectTranscript(other.dialogs.said, "shell/golden/frmmain.txt",
                     QStringLiteral("A second start in the same folder"));
    EXPECT_EQ(fileText(w.ws.gLogFile), log);
}
