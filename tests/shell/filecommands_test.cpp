#include "core/model/textrules.h"
#include "core/model/workspace.h"
#include "core/services/msgbox.h"
#include "core/services/textfile.h"
#include "fakes.h"
#include "persistence/workspacefile.h"
#include "shell/forms/frmMain.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <vector>

namespace {

const QString kCaption = QStringLiteral("Desko for Windows rev 4.0 ");

using Kind = ScriptedDialogs::FileKind;

// The office of the expected files, opened from its schedule file before, in a program
// directory of its own; the window is up.
struct Office {
    Office() {
        openMonth(ws, 2027, 2, home.path());
        modLoadWorkspace(ws, s.ctx, QStringLiteral(DESKO_GOLDEN_DIR "/office.dko"));
        ws.gScheduleTag = QStringLiteral(" [Earlier.dko]");
        window = std::make_unique<frmMain>(ws, s.ctx, QStringLiteral("desko40"));
        window->show();
    }

    QString path(const QString& name) const { return home.filePath(name); }
    QString text(const QString& file) const { return readTextFile(file).value_or(QString()); }
    QString log() const { return text(ws.gLogFile); }
    bool busy() const { return !window->mnuFile->isEnabled() && !window->cmdAdd->isEnabled(); }

    void expectBox(std::size_t index, const char* message, MsgIcon icon, MsgButtons buttons) {
        ASSERT_LT(index, s.dialogs.shown.size());
        EXPECT_EQ(s.dialogs.shown[index].text,
                  modWrapMessage(QString::fromUtf8(message), s.dialogs));
        EXPECT_EQ(s.dialogs.shown[index].icon, icon);
        EXPECT_EQ(s.dialogs.shown[index].buttons, buttons);
    }

    // The example office's schedule file, with print boxes and an engine of its own.
    QString exampleSchedule(const char* version = "4.0.10") const {
        QString example = text(QStringLiteral(DESKO_EXAMPLES_DIR "/office/Example Office.dko"));
        example.replace(QStringLiteral("Printer Format=111000"),
                        QStringLiteral("Printer Format=010201"));
        example.replace(QStringLiteral("Scheduling Engine=0"),
                        QStringLiteral("Scheduling Engine=2"));
        example.replace(QStringLiteral("Version=4.0.10"),
                        QStringLiteral("Version=") + QString::fromUtf8(version));
        writeTextFile(path(QStringLiteral("chosen.dko")), example);
        return path(QStringLiteral("chosen.dko"));
    }

    // The working file left behind holds no schedule and is one the next start reads, with
    // the same agents, without a word.
    void expectValidWorkingFile() const {
        EXPECT_FALSE(text(ws.gConfigFile).contains(QStringLiteral("[Schedule]")));
        Workspace reread;
        TestServices services;
        openMonth(reread, 2027, 1, home.path());
        modLoadWorkspace(reread, services.ctx, QString());
        EXPECT_EQ(reread.gAgentCount, ws.gAgentCount);
        EXPECT_TRUE(services.dialogs.shown.empty());
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
    EXPECT_EQ(shown.request.filter,
              QStringLiteral("Desko schedules (*.dko)|*.dko|All files (*.*)|*.*"));
    EXPECT_EQ(shown.request.filterIndex, 1);
    EXPECT_EQ(shown.request.initialDir, ws.gAppPath);
    EXPECT_EQ(shown.request.fileName, QString::fromUtf8(fileName));
    EXPECT_EQ(shown.request.promptOverwrite, kind == Kind::Save);
}

// Opening the File menu offers Save As once the workspace holds a file or a change.
TEST(FileCommands, SaveAsIsOfferedOnceTheWorkspaceHoldsAFileOrAChange) {
    Office office;
    for (const std::optional<int> dirty : {std::optional<int>(), std::optional<int>(0),
                                           std::optional<int>(1), std::optional<int>()}) {
        office.ws.gDirty = dirty;
        office.window->mnuFile->popup(office.window->mapToGlobal(QPoint(0, 0)));
        EXPECT_EQ(office.window->mnuFSaveAs->isEnabled(), dirty.has_value()) << dirty.value_or(-1);
        office.window->mnuFile->hide();
    }
}

// The name given, the one file written under it, and the caption that names it; a cancel
// saves nothing and says so. The working file is left alone.
TEST(FileCommands, SaveAsWritesTheScheduleUnderTheNameGiven) {
    struct Case {
        const char* given;    // null: the dialog is cancelled
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
        {nullptr, nullptr, " [Earlier.dko]", false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.given ? c.given : "cancelled");
        Office office;
        const QString given = QString::fromUtf8(c.given);
        const QString cwd = QDir::currentPath();
        QDir::setCurrent(office.home.path());
        office.ws.gDirty = 1;
        office.ws.gSaveDone = 0;
        if (c.given) {
            office.s.dialogs.fileAnswers.push_back(c.relative ? given : office.path(given));
        }

        office.window->mnuFSaveAs->trigger();
        QDir::setCurrent(cwd);

        ASSERT_EQ(office.s.dialogs.filesShown.size(), 1U);
        expectDialog(office.s.dialogs.filesShown[0], Kind::Save, "Save desko schedule as...",
                     office.ws, "2027 February.dko");
        QStringList files = QDir(office.home.path()).entryList(QDir::Files);
        files.removeOne(QStringLiteral("Desko40.log"));
        EXPECT_EQ(files, c.given ? QStringList{QString::fromUtf8(c.written)} : QStringList());
        if (c.given) {
            EXPECT_EQ(office.text(office.path(files.value(0))), golden("office.dko"));
        }
        EXPECT_EQ(office.window->windowTitle(), kCaption + QString::fromUtf8(c.tag));
        EXPECT_EQ(office.ws.gDirty, c.given ? 0 : 1);
        EXPECT_EQ(office.ws.gSaveDone, c.given ? 1 : 0);
        EXPECT_EQ(office.log().contains(QStringLiteral("]     Saving desko schedule ")),
                  c.given != nullptr);
        EXPECT_FALSE(office.busy());
    }
}

// New and Open ask first when the workspace changed; Yes runs Save As, and whatever became of
// it the command goes on; Cancel stops it. New erases the month but keeps the agents, the
// weekly table, the fonts and the month, and the caption goes on naming the last file saved.
// The open dialog here is cancelled, which leaves the workspace as it was.
TEST(FileCommands, NewAndOpenOfferToSaveFirst) {
    struct Case {
        bool isNew;
        std::optional<int> dirty;
        std::optional<MsgAnswer> answer;  // none: no question is asked
        bool saveCompletes;
        std::vector<Kind> dialogs;
    };
    const Case cases[] = {
        {true, std::nullopt, std::nullopt, false, {}},
        {true, 0, std::nullopt, false, {}},
        {true, 1, MsgAnswer::Yes, true, {Kind::Save}},
        {true, 1, MsgAnswer::Yes, false, {Kind::Save}},
        {true, 1, MsgAnswer::No, false, {}},
        {true, 1, MsgAnswer::Cancel, false, {}},
        {false, 1, MsgAnswer::Yes, true, {Kind::Save, Kind::Open}},
        {false, 1, MsgAnswer::Yes, false, {Kind::Save, Kind::Open}},
        {false, 1, MsgAnswer::No, false, {Kind::Open}},
        {false, 1, MsgAnswer::Cancel, false, {}},
    };
    QString erasedFile = golden("office.ini");
    for (const char* gone : {"15=Presidents Day\r\n", "3=Inventory\r\n", "1=2|10\r\n",
                             "1=1|6|1\r\n", "February 2027 Desko Schedule", "Front desk"}) {
        erasedFile.remove(QString::fromUtf8(gone));
    }
    for (const Case& c : cases) {
        SCOPED_TRACE(&c - cases);
        Office office;
        Workspace& ws = office.ws;
        ws.gDirty = c.dirty;
        ws.gCalendarNotes = ws.gOutlookBody = QStringLiteral("notes");
        ws.gHasScheduleFile = 1;
        if (c.answer) {
            office.s.dialogs.answers.push_back(*c.answer);
        }
        office.s.dialogs.fileAnswers.push_back(
            c.saveCompletes ? std::optional<QString>(office.path(QStringLiteral("saved first")))
                            : std::nullopt);

        (c.isNew ? office.window->mnuFNew : office.window->mnuFOpen)->trigger();

        const bool erased = c.isNew && c.answer != MsgAnswer::Cancel;
        ASSERT_EQ(office.s.dialogs.shown.size(), c.answer ? 1U : 0U);
        if (c.answer && c.isNew) {
            office.expectBox(0,
                             "Creating a new schedule will erase all shift constraints.  Do you "
                             "want to save the current configuration before creating a new "
                             "schedule?",
                             MsgIcon::Exclamation, MsgButtons::YesNoCancel);
        } else if (c.answer) {
            office.expectBox(
                0, "Do you want to save the current configuration before opening a desko schedule?",
                MsgIcon::Question, MsgButtons::YesNoCancel);
        }
        std::vector<Kind> kinds;
        for (const auto& shown : office.s.dialogs.filesShown) {
            kinds.push_back(shown.kind);
        }
        EXPECT_EQ(kinds, c.dialogs);
        // What was saved is the schedule before the erasing.
        EXPECT_EQ(office.text(office.path(QStringLiteral("saved first.dko")))
                      .contains(QStringLiteral("\r\n[Schedule]\r\n1=1|1|0|Adams\r\n")),
                  c.saveCompletes);
        EXPECT_EQ(office.log().contains(QStringLiteral("]     Erasing existing schedule\r\n")),
                  erased && c.answer != MsgAnswer::No);
        EXPECT_EQ(ws.schedule(1, 1, 0).isEmpty() && ws.gCalendarNotes.isEmpty() &&
                      ws.gOutlookBody.isEmpty() && ws.gScheduleGenerated == 0 &&
                      ws.gHasScheduleFile == 0 &&
                      ws.gHasHolidays + ws.gHasNotedDays + ws.gHasVacations == 0,
                  erased);
        EXPECT_EQ(ws.gDirty, erased ? std::nullopt : std::optional<int>(c.saveCompletes ? 0 : 1));
        EXPECT_EQ(office.text(ws.gConfigFile), erased ? erasedFile : QString());
        EXPECT_EQ(office.window->windowTitle(),
                  kCaption + (c.saveCompletes ? QStringLiteral(" [Saved First]")
                                              : QStringLiteral(" [Earlier.dko]")));
        EXPECT_FALSE(office.busy());
    }
}

// Open reads the chosen file into the window and the working file, without its schedule.
// Whatever the file holds, or if it is no file at all, the program goes on, the caption names
// the file and the working file left is one the next start can read. A refused file leaves the
// workspace as it was, which then counts as saved. The review takes over, with the window
// busy, when the workspace ends with a schedule.
TEST(FileCommands, OpenSurvivesWhateverItIsGiven) {
    enum class Make { Example, Bytes, OtherVersion, Folder, Nothing };
    struct Case {
        const char* what;
        Make make;
        QByteArray bytes;
        bool refused;
        int generatedBefore;
    };
    QByteArray huge = "[Settings]\r\nVersion=4.0.10\r\nCurrent Month=1\r\n\r\n[Agents]\r\n";
    for (int i = 1; huge.size() < 4 * 1024 * 1024; ++i) {
        const QByteArray n = QByteArray::number(i);
        huge += n + "=Last" + n + "|First" + n + "|\r\n";
    }
    QByteArray garbage(64 * 1024, '\0');
    for (qsizetype i = 0; i < garbage.size(); ++i) {
        garbage[i] = static_cast<char>((i * 7919 + 13) % 256);
    }
    const QByteArray damaged =
        "[Settings]\r\nVersion=4.0.1\r\nCurrent Month=99\r\nCurrent Year=x\r\n"
        "Printer Format=9z\r\nScheduling Engine=-7\r\n[Agents]\r\n1=\xff\xfe|\r\n3=A|B|C|D\r\n"
        "[Monday Shifts]\r\n1=|-40\r\n9=x|999999999999\r\n[Vacations]\r\n1=999|1\r\n"
        "2=1|-5\r\n[Restrictions]\r\n1=1|9|9\r\n[Schedule]\r\n1=40|9|9|x\r\n2=1|1|1\r\n";
    const Case cases[] = {
        {"the example office", Make::Example, {}, false, 0},
        {"a damaged file", Make::Bytes, damaged, false, 0},
        {"a huge file", Make::Bytes, huge, false, 0},
        {"bytes that are no profile", Make::Bytes, garbage, true, 0},
        {"another version", Make::OtherVersion, {}, true, 0},
        {"another version over a schedule", Make::OtherVersion, {}, true, 1},
        {"a folder", Make::Folder, {}, true, 0},
        {"a file that is not there", Make::Nothing, {}, true, 0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        Office office;
        office.ws.gDirty = 1;
        office.ws.gScheduleGenerated = c.generatedBefore;
        const QString name = office.path(QStringLiteral("chosen.dko"));
        if (c.make == Make::Folder) {
            ASSERT_TRUE(QDir(office.home.path()).mkdir(QStringLiteral("chosen.dko")));
        } else if (c.make == Make::Example || c.make == Make::OtherVersion) {
            office.exampleSchedule(c.make == Make::Example ? "4.0.10" : "3.5.2");
        } else if (c.make == Make::Bytes) {
            QFile file(name);
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
            file.write(c.bytes);
        }
        office.s.dialogs.answers.push_back(MsgAnswer::No);
        office.s.dialogs.fileAnswers.push_back(name);

        office.window->mnuFOpen->trigger();

        ASSERT_EQ(office.s.dialogs.filesShown.size(), 1U);
        expectDialog(office.s.dialogs.filesShown[0], Kind::Open, "Open desko schedule...",
                     office.ws, "*.dko");
        ASSERT_EQ(office.s.dialogs.shown.size(), c.refused ? 2U : 1U);
        if (c.make == Make::Example) {
            EXPECT_EQ(office.ws.gAgentCount, 12);
            EXPECT_TRUE(office.busy());
            std::vector<Qt::CheckState> boxes;
            for (const QCheckBox* box : office.window->chkPrint) {
                boxes.push_back(box->checkState());
            }
            EXPECT_EQ(boxes, (std::vector<Qt::CheckState>{Qt::Unchecked, Qt::Checked, Qt::Unchecked,
                                                          Qt::PartiallyChecked, Qt::Unchecked,
                                                          Qt::Checked}));
            EXPECT_EQ(office.window->cmbGenerate->currentIndex(), 2);
            EXPECT_EQ(office.window->labStatus->text(),
                      QStringLiteral("Opening a desko schedule . . ."));
            EXPECT_TRUE(office.log().contains(QStringLiteral("]     Opening desko schedule ") +
                                              modProperCase(name) + QStringLiteral("\r\n")));
            EXPECT_TRUE(office.text(office.ws.gConfigFile)
                            .contains(QStringLiteral("\r\nPrinter Format=010201\r\n")));
        }
        if (c.refused) {
            office.expectBox(1,
                             "The file you are attempting to open cannot be read by this version "
                             "of the program.  Please open this DKO file using the version of "
                             "Desko for Windows with which it was created.",
                             MsgIcon::Stop, MsgButtons::OK);
            EXPECT_EQ(office.text(office.ws.gConfigFile), golden("office.ini"));
        }
        EXPECT_EQ(office.ws.gScheduleTag, QStringLiteral(" [Chosen.dko]"));
        EXPECT_EQ(office.ws.gDirty, 0);
        EXPECT_EQ(office.window->lstAgents->count(), office.ws.gAgentCount);
        EXPECT_EQ(office.busy(), office.ws.gScheduleGenerated == 1);
        if (!office.busy()) {
            EXPECT_EQ(office.window->windowTitle(), kCaption + QStringLiteral(" [Chosen.dko]"));
        }
        office.expectValidWorkingFile();
    }
}

}  // namespace
