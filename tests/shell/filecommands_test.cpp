#include "fakes.h"
#include "persistence/textfile.h"
#include "persistence/workspacefile.h"
#include "shell/frmMain.h"
#include "shell/session.h"
#include "shell/textrules.h"
#include "workspace/workspace.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <vector>

namespace {

const QString kFilter = QStringLiteral("Desko schedules (*.dko)|*.dko|All files (*.*)|*.*");
const QString kNewQuestion = QStringLiteral(
    "Creating a new schedule will erase all shift constraints.  Do you want to save the current "
    "configuration before creating a new schedule?");
const QString kOpenQuestion = QStringLiteral(
    "Do you want to save the current configuration before opening a desko "
    "schedule?");
const QString kRefused = QStringLiteral(
    "The file you are attempting to open cannot be read by this version of the program.  Please "
    "open this DKO file using the version of Desko for Windows with which it was created.");
const QString kCaption = QStringLiteral("Desko for Windows rev 4.0 ");

using Kind = ScriptedDialogs::FileKind;

// One run of the main window in a program directory of its own, in January 2027, over a
// small office with a constraint of every kind.
struct Office {
    Office() {
        openMonth(ws, 2027, 1, home.path());
        ws.gAgentCount = 2;
        ws.redimAgents(2);
        ws.gAgentLast[1] = QStringLiteral("Brennan");
        ws.gAgentFirst[1] = QStringLiteral("Patrick");
        ws.gAgentLast[2] = QStringLiteral("Chen");
        ws.gAgentFirst[2] = QStringLiteral("Wei");
        ws.gShiftCount[1] = 1;
        ws.gShiftText[1][1] = QStringLiteral("8a-5p");
        ws.gShiftAgents[1][1] = 1;
        ws.gHoliday[5] = 1;
        ws.gHolidayName[5] = QStringLiteral("Founders' Day");
        ws.gNoted[7] = 1;
        ws.gNotedText[7] = QStringLiteral("Audit");
        ws.gVacation[2][12] = 1;
        ws.gRestriction[1][1][1] = 1;
        ws.gHasHolidays = ws.gHasNotedDays = ws.gHasVacations = ws.gHasRestrictions = 1;
        ws.gCalendarNotes = QStringLiteral("Calendar notes");
        ws.gGridNotes = QStringLiteral("Grid notes");
        ws.gOutlookBody = QStringLiteral("Outlook body");
        ws.gCalendarFont = QStringLiteral("Arial");
        ws.schedule(4, 1, 0) = QStringLiteral("Chen");
        ws.gScheduleTag = QStringLiteral(" [Earlier.dko]");
        window = std::make_unique<frmMain>(ws, s.ctx, QStringLiteral("desko40"));
        window->show();
    }

    QString path(const QString& name) const { return home.filePath(name); }
    QString text(const QString& file) const { return readTextFile(file).value_or(QString()); }
    QString log() const { return text(ws.gLogFile); }
    QString working() const { return text(ws.gConfigFile); }
    bool busy() const { return !window->mnuFile->isEnabled() && !window->cmdAdd->isEnabled(); }
    QString wrapped(const QString& message) const { return modWrapMessage(message, s.dialogs); }

    // A copy of the example office's schedule file under the given name, with its own print
    // boxes and engine.
    QString exampleSchedule(const QString& name) const {
        QString example = text(QStringLiteral(DESKO_EXAMPLES_DIR "/office/Example Office.dko"));
        example.replace(QStringLiteral("Printer Format=111000"),
                        QStringLiteral("Printer Format=010201"));
        example.replace(QStringLiteral("Scheduling Engine=0"),
                        QStringLiteral("Scheduling Engine=2"));
        writeTextFile(path(name), example);
        return path(name);
    }

    QTemporaryDir home;
    TestServices s;
    Workspace ws;
    std::unique_ptr<frmMain> window;
};

void expectDialog(const ScriptedDialogs::FileShown& shown, Kind kind, const char* title,
                  const Workspace& ws, const char* fileName) {
    EXPECT_EQ(shown.kind, kind);
    EXPECT_EQ(shown.request.title, QString::fromUtf8(title));
    EXPECT_EQ(shown.request.filter, kFilter);
    EXPECT_EQ(shown.request.filterIndex, 1);
    EXPECT_EQ(shown.request.initialDir, ws.gAppPath);
    EXPECT_EQ(shown.request.fileName, QString::fromUtf8(fileName));
    EXPECT_EQ(shown.request.promptOverwrite, kind == Kind::Save);
}

// The working file left behind reads back as a whole workspace of the same agents.
void expectValidWorkingFile(const Office& office) {
    const QString text = office.working();
    EXPECT_TRUE(text.startsWith(QStringLiteral("[Agents]\r\n")));
    EXPECT_TRUE(text.contains(QStringLiteral("\r\n[Settings]\r\nVersion=") +
                              office.ws.versionText() + QStringLiteral("\r\n")));
    EXPECT_FALSE(text.contains(QStringLiteral("[Schedule]")));
    Workspace reread;
    modInitNameTables(reread);
    modInitSession(reread, office.home.path());
    TestServices services;
    modLoadWorkspace(reread, services.ctx, QString());
    EXPECT_EQ(reread.gAgentCount, office.ws.gAgentCount);
    EXPECT_TRUE(services.dialogs.shown.empty());
}

TEST(FileCommands, SaveAsIsOfferedOnceTheWorkspaceHoldsAFileOrAChange) {
    const std::optional<int> states[] = {std::nullopt, 0, 1};
    Office office;
    for (const std::optional<int>& dirty : states) {
        SCOPED_TRACE(dirty.value_or(-1));
        office.ws.gDirty = dirty;
        office.window->mnuFile_Click();
        EXPECT_EQ(office.window->mnuFSaveAs->isEnabled(), dirty.has_value());
    }
    // Opening the menu asks again.
    office.ws.gDirty.reset();
    office.window->mnuFile->popup(office.window->mapToGlobal(QPoint(0, 0)));
    EXPECT_FALSE(office.window->mnuFSaveAs->isEnabled());
    office.window->mnuFile->hide();
    office.ws.gDirty = 1;
    office.window->mnuFile->popup(office.window->mapToGlobal(QPoint(0, 0)));
    EXPECT_TRUE(office.window->mnuFSaveAs->isEnabled());
    office.window->mnuFile->hide();
}

// The name given, the file written under it and the caption that names it.
TEST(FileCommands, SaveAsWritesTheScheduleUnderTheNameGiven) {
    struct Case {
        const char* given;
        const char* written;  // the file on disk
        const char* tag;
        bool relative;  // a bare name, as a dialog may hand back
    };
    const Case cases[] = {
        {"MAY OFFICE", "MAY OFFICE.dko", " [May Office]", false},
        {"june.DKO", "june.DKO", " [June.dko]", false},
        {"plan.txt", "plan.txt.dko", " [Plan.txt]", false},
        {"front_desk-rota", "front_desk-rota.dko", " [Front_Desk-Rota]", false},
        {"abc", "abc", " [Abc]", true},  // too short to hold an extension
        {"abcd", "abcd.dko", " [Abcd]", true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.given);
        Office office;
        const QString cwd = QDir::currentPath();
        QDir::setCurrent(office.home.path());
        const QString given =
            c.relative ? QString::fromUtf8(c.given) : office.path(QString::fromUtf8(c.given));
        QFile::remove(office.ws.gConfigFile);
        office.ws.gDirty = 1;
        office.s.dialogs.fileAnswers.push_back(given);

        office.window->mnuFSaveAs->trigger();
        QDir::setCurrent(cwd);

        ASSERT_EQ(office.s.dialogs.filesShown.size(), 1U);
        expectDialog(office.s.dialogs.filesShown[0], Kind::Save, "Save desko schedule as...",
                     office.ws, "2027 January.dko");
        const QString written = office.text(office.path(QString::fromUtf8(c.written)));
        EXPECT_TRUE(written.contains(QStringLiteral("\r\n[Schedule]\r\n1=4|1|0|Chen\r\n")));
        EXPECT_TRUE(written.contains(QStringLiteral("\r\n5=Founders' Day\r\n")));
        if (QString::fromUtf8(c.written) != QString::fromUtf8(c.given)) {
            EXPECT_FALSE(QFile::exists(office.path(QString::fromUtf8(c.given))));
        }
        EXPECT_EQ(office.ws.gScheduleTag, QString::fromUtf8(c.tag));
        EXPECT_EQ(office.window->windowTitle(), kCaption + QString::fromUtf8(c.tag));
        EXPECT_EQ(office.ws.gDirty, 0);
        EXPECT_EQ(office.ws.gSaveDone, 1);
        EXPECT_EQ(office.ws.gHasScheduleFile, 1);
        EXPECT_FALSE(office.busy());
        EXPECT_FALSE(office.window->fraStatus->isVisible());
        EXPECT_TRUE(office.log().contains(QStringLiteral("]     Saving desko schedule ")));
        // Save As leaves the working file alone.
        EXPECT_FALSE(QFile::exists(office.ws.gConfigFile));
        EXPECT_TRUE(office.s.dialogs.shown.empty());
    }
}

TEST(FileCommands, CancelledSaveAsSavesNothingAndSaysSo) {
    Office office;
    office.ws.gDirty = 1;
    office.ws.gSaveDone = 0;
    office.window->mnuFSaveAs->trigger();
    ASSERT_EQ(office.s.dialogs.filesShown.size(), 1U);
    EXPECT_EQ(office.ws.gDirty, 1);
    EXPECT_EQ(office.ws.gSaveDone, 0);
    EXPECT_EQ(office.ws.gScheduleTag, QStringLiteral(" [Earlier.dko]"));
    EXPECT_EQ(QDir(office.home.path()).entryList(QDir::Files), QStringList());
    EXPECT_FALSE(office.busy());
}

// New, with each state of the change flag and each answer, and the Save As that Yes runs.
TEST(FileCommands, NewErasesTheMonthButKeepsTheOffice) {
    struct Case {
        const char* what;
        std::optional<int> dirty;
        std::optional<MsgAnswer> answer;  // none: no question is asked
        bool saveCompletes;
        bool erased;
        bool logged;  // "Erasing existing schedule"
    };
    const Case cases[] = {
        {"nothing to save", std::nullopt, std::nullopt, false, true, true},
        {"saved", 0, std::nullopt, false, true, true},
        {"yes, saved", 1, MsgAnswer::Yes, true, true, true},
        {"yes, save cancelled", 1, MsgAnswer::Yes, false, true, true},
        {"no", 1, MsgAnswer::No, false, true, false},
        {"cancel", 1, MsgAnswer::Cancel, false, false, false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        Office office;
        Workspace& ws = office.ws;
        ws.gDirty = c.dirty;
        ws.gScheduleGenerated = 1;
        ws.gHasScheduleFile = 1;
        if (c.answer) {
            office.s.dialogs.answers.push_back(*c.answer);
        }
        if (c.saveCompletes) {
            office.s.dialogs.fileAnswers.push_back(office.path(QStringLiteral("before new")));
        }

        office.window->mnuFNew->trigger();

        ASSERT_EQ(office.s.dialogs.shown.size(), c.answer ? 1U : 0U);
        if (c.answer) {
            EXPECT_EQ(office.s.dialogs.shown[0].text, office.wrapped(kNewQuestion));
            EXPECT_EQ(office.s.dialogs.shown[0].icon, MsgIcon::Exclamation);
            EXPECT_EQ(office.s.dialogs.shown[0].buttons, MsgButtons::YesNoCancel);
        }
        EXPECT_EQ(office.s.dialogs.filesShown.size(), c.answer == MsgAnswer::Yes ? 1U : 0U);
        if (c.saveCompletes) {
            // What was saved is the schedule before the erasing.
            EXPECT_TRUE(office.text(office.path(QStringLiteral("before new.dko")))
                            .contains(QStringLiteral("\r\n1=4|1|0|Chen\r\n")));
        }
        EXPECT_EQ(office.log().contains(QStringLiteral("]     Erasing existing schedule\r\n")),
                  c.logged);
        EXPECT_EQ(ws.gHoliday[5] == 0 && ws.gNoted[7] == 0 && ws.gVacation[2][12] == 0 &&
                      ws.gRestriction[1][1][1] == 0 && ws.schedule(4, 1, 0).isEmpty() &&
                      ws.gCalendarNotes.isEmpty() && ws.gGridNotes.isEmpty() &&
                      ws.gOutlookBody.isEmpty() && ws.gScheduleGenerated == 0 &&
                      ws.gHasScheduleFile == 0,
                  c.erased);
        if (!c.erased) {
            EXPECT_EQ(ws.gDirty, 1);
            EXPECT_FALSE(QFile::exists(ws.gConfigFile));
            continue;
        }
        EXPECT_FALSE(ws.gDirty.has_value());
        EXPECT_EQ(ws.gHasHolidays + ws.gHasNotedDays + ws.gHasVacations + ws.gHasRestrictions, 0);
        // The agents, the weekly table, the fonts and the month stay.
        EXPECT_EQ(ws.gAgentCount, 2);
        EXPECT_EQ(ws.gShiftText[1][1], QStringLiteral("8a-5p"));
        EXPECT_EQ(ws.gCalendarFont, QStringLiteral("Arial"));
        EXPECT_EQ(ws.gCurrentMonth, 1);
        // The caption goes on naming the last file opened or saved.
        const QString tag =
            c.saveCompletes ? QStringLiteral(" [Before New]") : QStringLiteral(" [Earlier.dko]");
        EXPECT_EQ(office.window->windowTitle(), kCaption + tag);
        EXPECT_FALSE(office.busy());
        EXPECT_FALSE(office.window->fraPrint->isEnabled());
        const QString working = office.working();
        EXPECT_TRUE(
            working.contains(QStringLiteral("[Holidays]\r\n\r\n[Noted Days]\r\n\r\n"
                                            "[Vacations]\r\n\r\n[Restrictions]\r\n\r\n")));
        EXPECT_TRUE(working.contains(QStringLiteral("\r\n1=Brennan|Patrick|\r\n")));
        office.window->mnuFile_Click();
        EXPECT_FALSE(office.window->mnuFSaveAs->isEnabled());
    }
}

TEST(FileCommands, OpenLoadsTheFileAndLeavesTheWindowToTheScheduleReview) {
    Office office;
    Workspace& ws = office.ws;
    const QString file = office.exampleSchedule(QStringLiteral("JUNE office.dko"));
    office.s.dialogs.fileAnswers.push_back(file);

    office.window->mnuFOpen->trigger();

    ASSERT_EQ(office.s.dialogs.filesShown.size(), 1U);
    expectDialog(office.s.dialogs.filesShown[0], Kind::Open, "Open desko schedule...", ws, "*.dko");
    EXPECT_TRUE(office.s.dialogs.shown.empty());
    EXPECT_EQ(ws.gAgentCount, 12);
    EXPECT_EQ(office.window->lstAgents->count(), 12);
    EXPECT_EQ(ws.gScheduleTag, QStringLiteral(" [June Office.dko]"));
    EXPECT_EQ(ws.gHasScheduleFile, 1);
    EXPECT_EQ(ws.gDirty, 0);
    EXPECT_EQ(ws.gScheduleGenerated, 1);
    EXPECT_EQ(ws.gCalendarTitle, QStringLiteral("January 2027 Desko Schedule"));
    // The print boxes and the engine list show the file's settings.
    const Qt::CheckState boxes[] = {Qt::Unchecked,        Qt::Checked,   Qt::Unchecked,
                                    Qt::PartiallyChecked, Qt::Unchecked, Qt::Checked};
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(office.window->chkPrint[i]->checkState(), boxes[i]) << i;
    }
    EXPECT_EQ(office.window->cmbGenerate->currentIndex(), 2);
    // Until the review of the schedule is closed, the window stays busy with the status shown.
    EXPECT_TRUE(office.busy());
    EXPECT_EQ(office.window->labStatus->text(), QStringLiteral("Opening a desko schedule . . ."));
    EXPECT_TRUE(office.log().contains(QStringLiteral("]     Opening desko schedule ") +
                                      modProperCase(file) + QStringLiteral("\r\n")));
    // The working file follows the opened file, without its schedule.
    expectValidWorkingFile(office);
    EXPECT_TRUE(office.working().contains(QStringLiteral("\r\nPrinter Format=010201\r\n")));
}

// Open with a changed workspace: the question, the Save As that Yes runs, and the open
// dialog that follows whatever became of the save.
TEST(FileCommands, OpenOffersToSaveFirst) {
    struct Case {
        MsgAnswer answer;
        bool saveCompletes;
        std::vector<Kind> dialogs;
        std::optional<int> dirtyAfter;
    };
    const Case cases[] = {
        {MsgAnswer::Yes, true, {Kind::Save, Kind::Open}, 0},
        {MsgAnswer::Yes, false, {Kind::Save, Kind::Open}, 1},
        {MsgAnswer::No, false, {Kind::Open}, 1},
        {MsgAnswer::Cancel, false, {}, 1},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(static_cast<int>(c.answer) * 10 + (c.saveCompletes ? 1 : 0));
        Office office;
        office.ws.gDirty = 1;
        office.s.dialogs.answers.push_back(c.answer);
        office.s.dialogs.fileAnswers.push_back(
            c.saveCompletes ? std::optional<QString>(office.path(QStringLiteral("first.dko")))
                            : std::nullopt);
        office.s.dialogs.fileAnswers.push_back(std::nullopt);  // the open is cancelled

        office.window->mnuFOpen->trigger();

        ASSERT_EQ(office.s.dialogs.shown.size(), 1U);
        EXPECT_EQ(office.s.dialogs.shown[0].text, office.wrapped(kOpenQuestion));
        EXPECT_EQ(office.s.dialogs.shown[0].icon, MsgIcon::Question);
        EXPECT_EQ(office.s.dialogs.shown[0].buttons, MsgButtons::YesNoCancel);
        std::vector<Kind> kinds;
        for (const auto& shown : office.s.dialogs.filesShown) {
            kinds.push_back(shown.kind);
        }
        EXPECT_EQ(kinds, c.dialogs);
        EXPECT_EQ(office.ws.gDirty, c.dirtyAfter);
        EXPECT_EQ(QFile::exists(office.path(QStringLiteral("first.dko"))), c.saveCompletes);
        // Nothing was opened: the workspace is the same and the window is back to normal.
        EXPECT_EQ(office.ws.gAgentCount, 2);
        EXPECT_EQ(office.ws.gHoliday[5], 1);
        EXPECT_FALSE(office.busy());
        EXPECT_FALSE(office.window->fraStatus->isVisible());
    }
}

// A file of another version is refused while it is read, and the command goes on as if it
// had been read: the caption names it, and the old workspace counts as saved. Only without
// an earlier schedule does the window come back at once.
TEST(FileCommands, OpenOfAnotherVersionKeepsTheWorkspaceButNamesTheFile) {
    for (const bool generatedBefore : {false, true}) {
        SCOPED_TRACE(generatedBefore);
        Office office;
        Workspace& ws = office.ws;
        ws.gDirty = 1;
        ws.gScheduleGenerated = generatedBefore ? 1 : 0;
        QString text = office.text(office.exampleSchedule(QStringLiteral("old version.dko")));
        text.replace(QStringLiteral("Version=4.0.10"), QStringLiteral("Version=3.5.2"));
        writeTextFile(office.path(QStringLiteral("old version.dko")), text);
        office.s.dialogs.answers.push_back(MsgAnswer::No);
        office.s.dialogs.fileAnswers.push_back(office.path(QStringLiteral("old version.dko")));

        office.window->mnuFOpen->trigger();

        ASSERT_EQ(office.s.dialogs.shown.size(), 2U);
        EXPECT_EQ(office.s.dialogs.shown[1].text, office.wrapped(kRefused));
        EXPECT_EQ(office.s.dialogs.shown[1].icon, MsgIcon::Stop);
        EXPECT_EQ(office.s.dialogs.shown[1].buttons, MsgButtons::OK);
        EXPECT_EQ(ws.gAgentCount, 2);
        EXPECT_EQ(ws.gAgentLast[2], QStringLiteral("Chen"));
        EXPECT_EQ(ws.gHoliday[5], 1);
        EXPECT_EQ(ws.schedule(4, 1, 0), QStringLiteral("Chen"));
        EXPECT_EQ(ws.gScheduleTag, QStringLiteral(" [Old Version.dko]"));
        EXPECT_EQ(ws.gDirty, 0);
        EXPECT_EQ(ws.gHasScheduleFile, 1);
        EXPECT_EQ(office.busy(), generatedBefore);
        if (!generatedBefore) {
            EXPECT_EQ(office.window->windowTitle(),
                      kCaption + QStringLiteral(" [Old Version.dko]"));
        }
        expectValidWorkingFile(office);
    }
}

// Whatever the chosen file holds, or if it is no file at all, the program goes on and the
// working file it leaves is one the next start can read.
TEST(FileCommands, OpenSurvivesWhateverItIsGiven) {
    struct Case {
        const char* what;
        QByteArray bytes;  // written under the name unless the case makes a folder or nothing
        bool folder;
        bool refused;
    };
    QByteArray huge =
        "[Settings]\r\nVersion=4.0.10\r\nCurrent Month=1\r\nCurrent Year=2027\r\n"
        "\r\n[Agents]\r\n";
    for (int i = 1; huge.size() < 4 * 1024 * 1024; ++i) {
        huge += QByteArray::number(i) + "=Last" + QByteArray::number(i) + "|First" +
                QByteArray::number(i) + "|\r\n";
    }
    QByteArray garbage(64 * 1024, '\0');
    for (qsizetype i = 0; i < garbage.size(); ++i) {
        garbage[i] = static_cast<char>((i * 7919 + 13) % 256);
    }
    const QByteArray damaged =
        "[Settings]\r\nVersion=4.0.1\r\nCurrent Month=99\r\nCurrent Year=x\r\n"
        "Printer Format=9z\r\nScheduling Engine=-7\r\n[Agents]\r\n1=\xff\xfe|\r\n3=A|B|C|D\r\n"
        "[Monday Shifts]\r\n1=|-40\r\n9=x|999999999999\r\n[Vacations]\r\n1=999|1\r\n"
        "2=1|-5\r\n[Restrictions]\r\n1=1|9|9\r\n[Schedule]\r\n1=40|9|9|x\r\n2=1|1|1\r\n" +
        garbage;
    const Case cases[] = {
        {"a damaged file", damaged, false, false},           {"a huge file", huge, false, false},
        {"bytes that are no profile", garbage, false, true}, {"a folder", {}, true, true},
        {"a file that is not there", {}, false, true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        Office office;
        const QString name = office.path(QStringLiteral("chosen.dko"));
        if (c.folder) {
            ASSERT_TRUE(QDir(office.home.path()).mkdir(QStringLiteral("chosen.dko")));
        } else if (!c.bytes.isEmpty()) {
            QFile file(name);
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
            file.write(c.bytes);
        }
        office.s.dialogs.fileAnswers.push_back(name);

        office.window->mnuFOpen->trigger();

        EXPECT_EQ(office.s.dialogs.shown.size(), c.refused ? 1U : 0U);
        if (c.refused) {
            EXPECT_EQ(office.ws.gAgentCount, 2);
        }
        EXPECT_EQ(office.ws.gScheduleTag, QStringLiteral(" [Chosen.dko]"));
        EXPECT_EQ(office.ws.gDirty, 0);
        EXPECT_EQ(office.window->lstAgents->count(), office.ws.gAgentCount);
        expectValidWorkingFile(office);
    }
}

// A Yes to the question on the way out whose Save As completes: both roads end, and the
// schedule is in the file.
TEST(FileCommands, TheRoadsOutSaveOnYes) {
    for (const bool viaClose : {true, false}) {
        SCOPED_TRACE(viaClose ? "close" : "exit");
        Office office;
        office.ws.gDirty = 1;
        office.s.dialogs.answers.push_back(MsgAnswer::Yes);
        office.s.dialogs.fileAnswers.push_back(office.path(QStringLiteral("last words")));
        QSignalSpy ended(office.window.get(), &frmMain::programEnds);

        if (viaClose) {
            office.window->close();
        } else {
            office.window->mnuFExit->trigger();
        }

        EXPECT_EQ(ended.count(), 1);
        EXPECT_EQ(office.ws.gSaveDone, 1);
        EXPECT_TRUE(office.text(office.path(QStringLiteral("last words.dko")))
                        .contains(QStringLiteral("\r\n1=4|1|0|Chen\r\n")));
        ASSERT_EQ(office.s.dialogs.filesShown.size(), 1U);
        EXPECT_EQ(office.s.dialogs.filesShown[0].kind, Kind::Save);
        expectValidWorkingFile(office);
    }
}

}  // namespace
