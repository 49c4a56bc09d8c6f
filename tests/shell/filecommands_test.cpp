#include "shell/filecommands.h"

#include "core/model/session.h"
#include "core/model/textrules.h"
#include "core/model/workspace.h"
#include "core/services/msgbox.h"
#include "core/services/textfile.h"
#include "fakes.h"
#include "persistence/workspacefile.h"
#include "recordingview.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

using Kind = ScriptedDialogs::FileKind;

const QString kOpening = QStringLiteral("busy: Opening a desko schedule . . .");
const QString kSaving = QStringLiteral("busy: Saving the desko schedule . . .");

// The office of the expected files, opened from its schedule file before, in a program
// directory of its own.
struct Office {
    Office() {
        openMonth(ws, 2027, 2, home.path());
        modLoadWorkspace(ws, s.ctx, QStringLiteral(DESKO_GOLDEN_DIR "/office.dko"));
        ws.gScheduleTag = QStringLiteral(" [Earlier.dko]");
    }

    QString path(const QString& name) const { return home.filePath(name); }

    // The working file left behind holds no schedule, and the next start reads it with the
    // same agents, without a word.
    void expectValidWorkingFile() const {
        EXPECT_FALSE(fileText(ws.gConfigFile).contains(QStringLiteral("[Schedule]")));
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
    RecordingView view;
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

}  // namespace

// The one file written under the name as typed, measured without its folder, and the caption
// that names it; a cancel saves nothing and says so. The working file is left alone.
TEST(FileCommands, SaveAsWritesTheScheduleUnderTheNameTyped) {
    const struct {
        const char* typed;    // null: the dialog is cancelled
        const char* written;  // the file on disk
        const char* tag;
    } cases[] = {
        {"MAY OFFICE", "MAY OFFICE.dko", " [May Office]"},
        {"june.DKO", "june.DKO", " [June.dko]"},
        {"plan.txt", "plan.txt.dko", " [Plan.txt]"},
        {"front_desk-rota", "front_desk-rota.dko", " [Front_Desk-Rota]"},
        {"abc", "abc", " [Abc]"},  // too short to hold an extension
        {"abcd", "abcd.dko", " [Abcd]"},
        {nullptr, nullptr, " [Earlier.dko]"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.typed ? c.typed : "cancelled");
        Office office;
        office.ws.gDirty = 1;
        office.ws.gSaveDone = 0;
        if (c.typed) {
            office.s.dialogs.fileAnswers.push_back(office.path(QString::fromUtf8(c.typed)));
        }

        saveScheduleAs(office.ws, office.s.ctx, office.view);

        ASSERT_EQ(office.s.dialogs.filesShown.size(), 1U);
        expectDialog(office.s.dialogs.filesShown[0], Kind::Save, "Save desko schedule as...",
                     office.ws, "2027 February.dko");
        QStringList files = QDir(office.home.path()).entryList(QDir::Files);
        files.removeOne(QStringLiteral("Desko40.log"));
        EXPECT_EQ(files, c.typed ? QStringList{QString::fromUtf8(c.written)} : QStringList());
        if (c.typed) {
            EXPECT_EQ(fileText(office.path(files.value(0))), golden("office.dko"));
            EXPECT_TRUE(logged(office.ws, QStringLiteral("Saving desko schedule ") +
                                              modProperCase(office.path(files.value(0)))));
        }
        EXPECT_EQ(office.ws.gScheduleTag, QString::fromUtf8(c.tag));
        EXPECT_EQ(office.ws.gDirty, c.typed ? 0 : 1);
        EXPECT_EQ(office.ws.gSaveDone, c.typed ? 1 : 0);
        const QStringList asked = c.typed ? QStringList{kSaving, QStringLiteral("normal")}
                                          : QStringList{QStringLiteral("normal")};
        EXPECT_EQ(office.view.asked, asked);
    }
}

// New and Open ask first when the workspace changed; Yes runs Save As, and whatever became of
// it the command goes on; Cancel stops it. New erases the month but keeps the agents, the
// weekly table, the fonts and the month, and the caption goes on naming the last file saved.
// The open dialog here is cancelled, which leaves the workspace as it was.
TEST(FileCommands, NewAndOpenOfferToSaveFirst) {
    const QString newQuestion = QStringLiteral(
        "Creating a new schedule will erase all shift constraints.  Do you want to save the "
        "current configuration before creating a new schedule?");
    const QString openQuestion = QStringLiteral(
        "Do you want to save the current configuration before opening a desko schedule?");
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

        (c.isNew ? newSchedule : openScheduleFile)(ws, office.s.ctx, office.view);

        const bool erased = c.isNew && c.answer != MsgAnswer::Cancel;
        EXPECT_EQ(office.s.dialogs.texts(),
                  c.answer ? office.s.dialogs.wrapped({c.isNew ? newQuestion : openQuestion})
                           : QStringList());
        if (c.answer) {
            EXPECT_EQ(office.s.dialogs.shown[0].icon,
                      c.isNew ? MsgIcon::Exclamation : MsgIcon::Question);
            EXPECT_EQ(office.s.dialogs.shown[0].buttons, MsgButtons::YesNoCancel);
        }
        std::vector<Kind> kinds;
        for (const auto& shown : office.s.dialogs.filesShown) {
            kinds.push_back(shown.kind);
        }
        EXPECT_EQ(kinds, c.dialogs);
        // What was saved is the schedule before the erasing.
        EXPECT_EQ(fileText(office.path(QStringLiteral("saved first.dko")))
                      .contains(QStringLiteral("\r\n[Schedule]\r\n1=1|1|0|Adams\r\n")),
                  c.saveCompletes);
        EXPECT_EQ(logged(ws, QStringLiteral("Erasing existing schedule")),
                  erased && c.answer != MsgAnswer::No);
        EXPECT_EQ(ws.schedule(1, 1, 0).isEmpty() && ws.gCalendarNotes.isEmpty() &&
                      ws.gOutlookBody.isEmpty() && ws.gScheduleGenerated == 0 &&
                      ws.gHasScheduleFile == 0 &&
                      ws.gHasHolidays + ws.gHasNotedDays + ws.gHasVacations == 0,
                  erased);
        EXPECT_EQ(ws.gDirty, erased ? std::nullopt : std::optional<int>(c.saveCompletes ? 0 : 1));
        EXPECT_EQ(fileText(ws.gConfigFile), erased ? erasedFile : QString());
        EXPECT_EQ(ws.gScheduleTag, c.saveCompletes ? QStringLiteral(" [Saved First]")
                                                   : QStringLiteral(" [Earlier.dko]"));
        EXPECT_EQ(office.view.asked.value(office.view.asked.size() - 1),
                  c.answer == MsgAnswer::Cancel ? QString() : QStringLiteral("normal"));
    }
}

// Open reads the chosen file into the workspace and the working file, without its schedule.
// Whatever the file holds, or if it is no file at all, the program goes on, the caption names
// the file and the working file left is one the next start can read. A refused file leaves
// the workspace as it was, which then counts as saved. The review takes over when the
// workspace ends with a schedule.
TEST(FileCommands, OpenSurvivesWhateverItIsGiven) {
    enum class Make { Example, Bytes, OtherVersion, Folder, Nothing };
    struct Case {
        const char* what;
        Make make;
        QByteArray bytes;
        bool refused;
        int generatedBefore;
    };
    const QByteArray damaged =
        "[Settings]\r\nVersion=4.0.1\r\nCurrent Month=99\r\nCurrent Year=x\r\n"
        "Printer Format=9z\r\nScheduling Engine=-7\r\n[Agents]\r\n1=\xff\xfe|\r\n3=A|B|C|D\r\n"
        "[Monday Shifts]\r\n1=|-40\r\n9=x|999999999999\r\n[Vacations]\r\n1=999|1\r\n"
        "2=1|-5\r\n[Restrictions]\r\n1=1|9|9\r\n[Schedule]\r\n1=40|9|9|x\r\n2=1|1|1\r\n";
    const Case cases[] = {
        {"the example office", Make::Example, {}, false, 0},
        {"a damaged file", Make::Bytes, damaged, false, 0},
        {"bytes that are no profile", Make::Bytes, QByteArray(4096, '\x97'), true, 0},
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
            exampleSchedule(office.home.path(), c.make == Make::Example ? "4.0.10" : "3.5.2");
        } else if (c.make == Make::Bytes) {
            QFile file(name);
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
            file.write(c.bytes);
        }
        office.s.dialogs.answers.push_back(MsgAnswer::No);
        office.s.dialogs.fileAnswers.push_back(name);

        openScheduleFile(office.ws, office.s.ctx, office.view);

        ASSERT_EQ(office.s.dialogs.filesShown.size(), 1U);
        expectDialog(office.s.dialogs.filesShown[0], Kind::Open, "Open desko schedule...",
                     office.ws, "*.dko");
        ASSERT_EQ(office.s.dialogs.shown.size(), c.refused ? 2U : 1U);
        if (c.make == Make::Example) {
            EXPECT_EQ(office.ws.gAgentCount, 12);
            EXPECT_EQ(office.ws.chkPrint, (std::array<int, 6>{0, 0, 0, 1, 1, 1}));
            EXPECT_EQ(office.ws.cmbGenerateListIndex, 3);
            EXPECT_TRUE(
                logged(office.ws, QStringLiteral("Opening desko schedule ") + modProperCase(name)));
            EXPECT_TRUE(fileText(office.ws.gConfigFile)
                            .contains(QStringLiteral("\r\nPrinter Format=000111\r\n")));
        }
        if (c.refused) {
            EXPECT_EQ(office.s.dialogs.shown[1].text,
                      modWrapMessage(QStringLiteral("The file you are attempting to open cannot "
                                                    "be read by this version of the program.  "
                                                    "Please open this DKO file using the version "
                                                    "of Desko for Windows with which it was "
                                                    "created."),
                                     office.s.dialogs));
            EXPECT_EQ(fileText(office.ws.gConfigFile), golden("office.ini"));
        }
        EXPECT_EQ(office.ws.gScheduleTag, QStringLiteral(" [Chosen.dko]"));
        EXPECT_EQ(office.ws.gDirty, 0);
        EXPECT_EQ(office.view.asked,
                  (QStringList{kOpening, QStringLiteral("opened"),
                               office.ws.gScheduleGenerated == 1 ? QStringLiteral("review")
                                                                 : QStringLiteral("normal")}));
        office.expectValidWorkingFile();
    }
}

// Every road in reads the file the same way: the engine and the print boxes it holds come
// along, and the window is told to show them. The command line always goes on to the review;
// a hidden file passes the start's search but is not opened here, and leaves the window busy.
TEST(FileCommands, EveryRoadInOpensTheSameWay) {
    enum class Road { FileOpen, CommandLine, HiddenFile, MissingFile };
    const struct {
        Road road;
        bool opens;
        QStringList asked;
    } cases[] = {
        {Road::FileOpen, true, {kOpening, QStringLiteral("opened"), QStringLiteral("review")}},
        {Road::CommandLine, true, {kOpening, QStringLiteral("opened"), QStringLiteral("review")}},
        {Road::HiddenFile, false, {kOpening}},
        {Road::MissingFile, false, {kOpening}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(static_cast<int>(c.road));
        Office office;
        QString path = exampleSchedule(office.home.path());
        if (c.road == Road::HiddenFile) {
            QFile::rename(path, office.path(QStringLiteral(".hidden.dko")));
            path = office.path(QStringLiteral(".hidden.dko"));
        } else if (c.road == Road::MissingFile) {
            path = office.path(QStringLiteral("absent.dko"));
        }
        const QString given = path;
        if (c.road == Road::FileOpen) {
            office.s.dialogs.fileAnswers.push_back(path);
            openScheduleFile(office.ws, office.s.ctx, office.view);
        } else {
            modOpenFromCommandLine(office.ws, office.s.ctx, office.view, path);
        }
        EXPECT_EQ(office.view.asked, c.asked);
        EXPECT_EQ(office.ws.cmbGenerateListIndex, c.opens ? 3 : 2);
        EXPECT_EQ(office.ws.chkPrint[3], c.opens ? 1 : 0);
        EXPECT_EQ(fileText(office.ws.gConfigFile).contains(QStringLiteral("Printer Format=000111")),
                  c.opens);
        EXPECT_EQ(office.ws.gDirty, c.opens ? std::optional<int>(0) : std::nullopt);
        EXPECT_EQ(logged(office.ws, QStringLiteral("Program started with command switch")),
                  c.opens && c.road == Road::CommandLine);
        EXPECT_EQ(path, c.opens && c.road == Road::CommandLine ? QStringLiteral("0") : given);
    }
}
