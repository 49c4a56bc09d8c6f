#include "persistence/workspacefile.h"
#include "core/model/calendar.h"
#include "core/model/monthdata.h"
#include "core/model/workspace.h"
#include "core/services/textfile.h"
#include "fakes.h"
#include "shell/session.h"

#include <QFile>
#include <QTemporaryDir>

#include <functional>

#include <gtest/gtest.h>

namespace {

QString crlf(const char* text) {
    return QString::fromUtf8(text).replace(QStringLiteral("\n"), QStringLiteral("\r\n"));
}

class WorkspaceFileTest : public ::testing::Test {
protected:
    void SetUp() override { ws = freshWorkspace(); }

    Workspace freshWorkspace() const {
        Workspace fresh;
        modInitNameTables(fresh);
        modInitSession(fresh, dir.path());
        return fresh;
    }

    // February 2027 starts on a Monday: two agents, a Monday and a Saturday shift, one of
    // each constraint inside the month and one beyond its end.
    void fillOffice() {
        ws.gCurrentYear = 2027;
        ws.gCurrentMonth = 2;
        modSetupMonth(ws);
        ws.gAgentCount = 2;
        ws.redimAgents(2);
        ws.gAgentLast = {QString(), QStringLiteral("Adams"), QStringLiteral("Baker")};
        ws.gAgentFirst = {QString(), QStringLiteral("Ann"), QStringLiteral("Bo")};
        ws.gAgentEmail = {QString(), QStringLiteral("ann@example.org"), QString()};
        ws.gShiftCount[1] = 1;
        ws.gShiftText[1][1] = QStringLiteral("9am-5pm");
        ws.gShiftAgents[1][1] = 1;
        ws.gShiftCount[6] = 1;
        ws.gShiftText[6][1] = QStringLiteral("10am-2pm");
        ws.gHoliday[15] = 1;
        ws.gHolidayName[15] = QStringLiteral("Presidents Day");
        ws.gHoliday[30] = 1;
        ws.gHolidayName[30] = QStringLiteral("Beyond the month");
        ws.gNoted[3] = 1;
        ws.gNotedText[3] = QStringLiteral("Inventory");
        ws.gVacation[2][10] = 1;
        ws.gVacation[2][30] = 1;
        ws.gRestriction[1][6][1] = 1;
        modDefaultTexts(ws);
        ws.gEmailSubject.clear();
        ws.gEmailBody.clear();
        ws.gOutlookSubject.clear();
        ws.gGridNotes = QStringLiteral("Front desk");
        ws.gCalendarFont = QStringLiteral("Times New Roman");
        ws.gCalendarCopies = QStringLiteral("1");
        ws.gCalendarUseFirstName = QStringLiteral("0");
        ws.gCalendarHideTimeText = QStringLiteral("0");
        ws.gGridFont = QStringLiteral("Arial");
        ws.gGridCopies = QStringLiteral("2");
        ws.gTearsheetFont = QStringLiteral("Times New Roman");
        ws.gTearsheetFontsize = QStringLiteral("12");
        ws.chkPrint = {1, 0, 1, 0, 0, 1};
        ws.gEngine = 2;
        const struct {
            int day;
            int slot;
            const char* cell;
        } cells[] = {{1, 0, "Adams"},  {1, 1, "Baker"},  {6, 0, "Baker"},        {8, 0, "Adams"},
                     {8, 1, "Baker"},  {13, 0, "Adams"}, {20, 0, "Leave empty"}, {22, 0, "Baker"},
                     {22, 1, "Adams"}, {27, 0, "Gone"}};
        for (const auto& cell : cells) {
            ws.schedule(cell.day, 1, cell.slot) = QString::fromUtf8(cell.cell);
        }
    }

    QString path(const char* name) const { return dir.filePath(QString::fromUtf8(name)); }

    void write(const QString& file, const QString& text) const {
        ASSERT_TRUE(writeTextFile(file, text));
    }

    QTemporaryDir dir;
    TestServices s;
    Workspace ws;
};

TEST_F(WorkspaceFileTest, SavesEverySectionByteForByte) {
    fillOffice();
    ASSERT_TRUE(modSaveWorkspace(ws, s.ctx, path("office.dko")));
    EXPECT_EQ(readTextFile(path("office.dko")), golden("office.dko"));
    EXPECT_EQ(ws.gPrinterFormat, QStringLiteral("101001"));
    EXPECT_EQ(s.registry.value(ws.gRegistryBase + QStringLiteral("\\Settings"),
                               QStringLiteral("Version")),
              QStringLiteral("4.0.10"));

    ASSERT_TRUE(modSaveWorkspace(ws, s.ctx, QString()));
    EXPECT_EQ(readTextFile(ws.gConfigFile), golden("office.ini"));
}

TEST_F(WorkspaceFileTest, SaveRecomputesTheSummaryFlags) {
    fillOffice();
    ws.gHoliday[15] = 0;
    ws.gNoted[3] = 0;
    ws.gVacation[2][10] = 0;
    ws.gRestriction[1][6][1] = 0;
    ws.gHasHolidays = ws.gHasNotedDays = ws.gHasVacations = ws.gHasRestrictions = 1;
    modSaveWorkspace(ws, s.ctx, QString());
    // Entries beyond the month's end remain in memory but count as nothing.
    EXPECT_EQ(ws.gHoliday[30], 1);
    EXPECT_EQ(ws.gHasHolidays, 0);
    EXPECT_EQ(ws.gHasNotedDays, 0);
    EXPECT_EQ(ws.gHasVacations, 0);
    EXPECT_EQ(ws.gHasRestrictions, 0);
}

TEST_F(WorkspaceFileTest, ScheduleFileComesBackWholeAndSavesTheSameBytes) {
    write(path("office.dko"), golden("office.dko"));
    modLoadWorkspace(ws, s.ctx, path("office.dko"));

    // The file's month is taken with its calendar; everything else shows in the bytes.
    EXPECT_EQ(ws.gFirstWeekday, 1);
    EXPECT_EQ(ws.gAgentKey[2], QStringLiteral("Baker"));
    EXPECT_EQ(ws.gHasHolidays + ws.gHasNotedDays + ws.gHasVacations + ws.gHasRestrictions, 4);
    EXPECT_EQ(ws.gScheduleGenerated, 1);
    EXPECT_EQ(ws.cmbGenerateListIndex, 2);
    modSaveWorkspace(ws, s.ctx, path("again.dko"));
    EXPECT_EQ(readTextFile(path("again.dko")), golden("office.dko"));
}

TEST_F(WorkspaceFileTest, WorkingFileKeepsTheMonthAndTheScheduleAsTheyAre) {
    fillOffice();
    write(ws.gConfigFile, golden("office.dko"));
    Workspace loaded = freshWorkspace();
    loaded.gCurrentMonth = 7;
    loaded.gCurrentYear = 2030;
    loaded.schedule(1, 1, 0) = QStringLiteral("Earlier");
    modLoadWorkspace(loaded, s.ctx, QString());
    EXPECT_EQ(loaded.gCurrentMonth, 7);
    EXPECT_EQ(loaded.gCurrentYear, 2030);
    EXPECT_EQ(loaded.gSavedMonth, QStringLiteral("2"));
    EXPECT_EQ(loaded.gSavedYear, QStringLiteral("2027"));
    EXPECT_EQ(loaded.schedule(1, 1, 0), QStringLiteral("Earlier"));
    EXPECT_EQ(loaded.gScheduleGenerated, 0);
    EXPECT_EQ(loaded.gAgentCount, 2);
}

TEST_F(WorkspaceFileTest, OnlySchedulesOfThisVersionAreRead) {
    for (const char* version : {"4.0.7", "4.0.", "4.0", "4.1.0", "", "v4.0.10"}) {
        const bool read = QByteArray(version).startsWith("4.0.");
        QString text = golden("office.ini");
        text.replace(QStringLiteral("4.0.10"), QString::fromUtf8(version));
        write(path("other.dko"), text);
        TestServices services;
        Workspace loaded = freshWorkspace();
        modLoadWorkspace(loaded, services.ctx, path("other.dko"));
        EXPECT_EQ(loaded.gAgentCount, read ? 2 : 0) << version;
        ASSERT_EQ(services.dialogs.shown.size(), read ? 0U : 1U) << version;
    }
    // The refusal is wrapped to the box's width and carries the stop icon.
    TestServices services;
    modLoadWorkspace(ws, services.ctx, path("other.dko"));
    const ScriptedDialogs::Shown& box = services.dialogs.shown.at(0);
    EXPECT_EQ(box.text, QStringLiteral("The file you are attempting to open cannot be read\r\n"
                                       "by this version of the program.  Please open this \r\n"
                                       "DKO file using the version of Desko for Windows \r\n"
                                       "with which it was created."));
    EXPECT_EQ(box.icon, MsgIcon::Stop);
    EXPECT_EQ(box.buttons, MsgButtons::OK);
    // The working file's own version is never looked at.
    QString working = golden("office.ini");
    working.replace(QStringLiteral("Version=4.0.10"), QStringLiteral("Version=1.0"));
    write(ws.gConfigFile, working);
    modLoadWorkspace(ws, s.ctx, QString());
    EXPECT_EQ(ws.gAgentCount, 2);
    EXPECT_TRUE(s.dialogs.shown.empty());
}

// Each row is the sections of a schedule file, followed by the settings of a valid version
// where the row has none, and what loading it must leave in the Workspace.
TEST_F(WorkspaceFileTest, ReadsHandEditedFilesAsTheyHaveAlwaysBeenRead) {
    struct Case {
        const char* what;
        const char* sections;
        std::function<void(const Workspace&)> check;
    };
    const Case cases[] = {
        {"a gap in the agent numbers loses the highest row", "[Agents]\n1=A|a|\n2=B|b|\n4=D|d|\n",
         [](const Workspace& w) {
             EXPECT_EQ(w.gAgentCount, 3);
             EXPECT_EQ(w.gAgentLast[2], QStringLiteral("B"));
             EXPECT_TRUE(w.gAgentLast[3].isEmpty());
             EXPECT_TRUE(w.gAgentFirst[3].isEmpty());
         }},
        {"a name of one field leaves both names empty, a fourth field is dropped",
         "[Agents]\n1=Solo\n2=Smith|John|Jr|js@example.org\n3=Lee|Al\n",
         [](const Workspace& w) {
             EXPECT_TRUE(w.gAgentLast[1].isEmpty());
             EXPECT_TRUE(w.gAgentFirst[1].isEmpty());
             EXPECT_EQ(w.gAgentEmail[2], QStringLiteral("Jr"));
             EXPECT_EQ(w.gAgentLast[3], QStringLiteral("Lee"));
             EXPECT_TRUE(w.gAgentEmail[3].isEmpty());
         }},
        {"a field of ***empty*** ends the splitting",
         "[Agents]\n1=Smith|***empty***|John|js@example.org\n",
         [](const Workspace& w) {
             EXPECT_EQ(w.gAgentLast[1], QStringLiteral("Smith"));
             EXPECT_EQ(w.gAgentFirst[1], QStringLiteral("John|js@example.org"));
             EXPECT_TRUE(w.gAgentEmail[1].isEmpty());
         }},
        {"agents per shift become the highest slot, one agent for anything else",
         "[Monday Shifts]\n1=a|0\n2=b|-2\n3=c|abc\n4=d\n5=e|3\n6=f|9\n7=g|2\n",
         [](const Workspace& w) {
             EXPECT_EQ(w.gShiftCount[1], 6);
             EXPECT_EQ(w.gShiftAgents[1], (std::array<int, 7>{0, 0, 0, 0, 0, 2, 4}));
             EXPECT_EQ(w.gShiftText[1][4], QStringLiteral("d"));
         }},
        {"a pipe in a shift text shifts the count", "[Friday Shifts]\n1=9am|5pm|2\n",
         [](const Workspace& w) {
             EXPECT_EQ(w.gShiftText[5][1], QStringLiteral("9am"));
             EXPECT_EQ(w.gShiftAgents[5][1], 0);
         }},
        {"rows of the wrong field count are skipped, holidays and notes go by key name",
         "[Agents]\n1=A|a|\n[Restrictions]\n1=1|2\n2=1|2|3\n3=1|2|3|4\n[Vacations]\n9=1|5\n"
         "x=1|6|7\n[Holidays]\n31=Last\n7=Seventh\n[Noted Days]\n02=Two\n",
         [](const Workspace& w) {
             EXPECT_EQ(w.gRestriction[1][2][3], 1);
             EXPECT_EQ(w.gVacation[1][5], 1);
             EXPECT_EQ(w.gVacation[1][6], 0);
             EXPECT_EQ(w.gHolidayName[31], QStringLiteral("Last"));
             EXPECT_EQ(w.gHoliday[7], 1);
             EXPECT_EQ(w.gNotedText[2], QStringLiteral("Two"));
             EXPECT_EQ(w.gHasRestrictions + w.gHasVacations + w.gHasHolidays + w.gHasNotedDays, 4);
         }},
        {"blanks and quotes around values go, names compare without case",
         "[titles]\nCALENDAR TITLE=  \"  Quoted title \"  \ncalendar notes=   lead\n",
         [](const Workspace& w) {
             EXPECT_EQ(w.gCalendarTitle, QStringLiteral("  Quoted title "));
             EXPECT_EQ(w.gCalendarNotes, QStringLiteral("lead"));
         }},
        {"an engine out of range and a printer format of the wrong length take defaults",
         "[Settings]\nVersion=4.0.10\nPrinter Format=1010\nScheduling Engine=7\n",
         [](const Workspace& w) {
             EXPECT_EQ(w.gEngine, 0);
             EXPECT_EQ(w.gPrinterFormat, QStringLiteral("111000"));
             EXPECT_EQ(w.chkPrint, (std::array<int, 6>{1, 1, 1, 0, 0, 0}));
         }},
        {"an engine is read as the number its text begins with",
         "[Settings]\nVersion=4.0.10\nPrinter Format=01x010\nScheduling Engine=  3 (serial)\n",
         [](const Workspace& w) {
             EXPECT_EQ(w.gEngine, 3);
             EXPECT_EQ(w.cmbGenerateListIndex, 3);
             EXPECT_EQ(w.gPrinterFormat, QStringLiteral("01x010"));
             EXPECT_EQ(w.chkPrint, (std::array<int, 6>{0, 1, 0, 0, 1, 0}));
         }},
        {"a month that is no month leaves the current one",
         "[Settings]\nVersion=4.0.10\nCurrent Month=13\nCurrent Year=next\n",
         [](const Workspace& w) {
             EXPECT_EQ(w.gCurrentMonth, 5);
             EXPECT_EQ(w.gCurrentYear, 2026);
             EXPECT_EQ(w.gSavedMonth, QStringLiteral("13"));
         }},
        {"a schedule without rows still counts as generated, and old cells stay",
         "[Schedule]\n1=2|1|0|New\n2=2|1|0\n3=2|1|9|Beyond\n",
         [](const Workspace& w) {
             EXPECT_EQ(w.gScheduleGenerated, 1);
             EXPECT_EQ(w.schedule(2, 1, 0), QStringLiteral("New"));
             EXPECT_EQ(w.schedule(3, 1, 0), QStringLiteral("Kept"));
         }},
    };
    for (const Case& c : cases) {
        const QString sections = crlf(c.sections);
        write(path("edited.dko"), sections.contains(QStringLiteral("[Settings]"))
                                      ? sections
                                      : sections + crlf("[Settings]\nVersion=4.0.10\n"));
        Workspace loaded = freshWorkspace();
        loaded.gCurrentMonth = 5;
        loaded.gCurrentYear = 2026;
        loaded.schedule(3, 1, 0) = QStringLiteral("Kept");
        SCOPED_TRACE(c.what);
        modLoadWorkspace(loaded, s.ctx, path("edited.dko"));
        c.check(loaded);
    }
}

TEST_F(WorkspaceFileTest, MissingDefaultsAreWrittenBackUnderTheirOwnKeys) {
    const QString before = crlf(
        "[Agents]\n1=A|a|\n\n[Titles]\nCalendar Title=Mine\n"
        "Office Grid Font=\nTearsheet Fontsize=0\n\n[Settings]\nVersion=4.0.10\n");
    write(path("bare.dko"), before);
    QFile::setPermissions(path("bare.dko"), QFile::ReadOwner);
    modLoadWorkspace(ws, s.ctx, path("bare.dko"));

    EXPECT_EQ(ws.gGridFont, QStringLiteral("Times New Roman"));
    EXPECT_EQ(ws.gTearsheetFontsize, QStringLiteral("12"));
    EXPECT_EQ(ws.gCalendarTitle, QStringLiteral("Mine"));
    // A read-only file is made writable first; the grid's defaults land under stray keys.
    EXPECT_EQ(
        readTextFile(path("bare.dko")),
        crlf("[Agents]\n1=A|a|\n\n[Titles]\nCalendar Title=Mine\nOffice Grid Font=\n"
             "Tearsheet Fontsize=12\nCalendar Font=Times New Roman\nGrid Font=Times New Roman\n"
             "Tearsheet Font=Times New Roman\nCalendar Copies=1\nGrid Copies=1\n"
             "Calendar Use First Name=0\nCalendar Hide Time "
             "Text=0\n\n[Settings]\nVersion=4.0.10\n"));

    // The next full save writes the grid's own keys and drops the stray ones.
    modSaveWorkspace(ws, s.ctx, path("bare.dko"));
    const QString saved = readTextFile(path("bare.dko")).value_or(QString());
    EXPECT_TRUE(saved.contains(QStringLiteral("\r\nOffice Grid Font=Times New Roman\r\n")));
    EXPECT_FALSE(saved.contains(QStringLiteral("\r\nGrid Font=")));
}

TEST_F(WorkspaceFileTest, UnwritableTargetsKeepWhatTheyHeld) {
    fillOffice();
    write(path("locked.dko"), QStringLiteral("old contents\r\n"));
    QFile::setPermissions(path("locked.dko"), QFile::ReadOwner);
    EXPECT_FALSE(modSaveWorkspace(ws, s.ctx, path("locked.dko")));
    EXPECT_EQ(readTextFile(path("locked.dko")), QStringLiteral("old contents\r\n"));

    EXPECT_FALSE(modSaveWorkspace(ws, s.ctx, path("missing/office.dko")));
    EXPECT_FALSE(QFile::exists(path("missing")));
    EXPECT_FALSE(modSaveWorkspace(ws, s.ctx, dir.path()));
}

TEST_F(WorkspaceFileTest, ReadsAFileFromAWindowsMachine) {
    QFile file(path("windows.dko"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(
        "[Agents]\r\n1=M\xfcller|J\xf6rg|\r\n\n[Titles]\r\nCalendar Notes=Caf\xe9 \x93open\x94\r\n"
        "[Settings]\r\nVersion=4.0.10\r\n");
    file.close();
    modLoadWorkspace(ws, s.ctx, path("windows.dko"));
    EXPECT_EQ(ws.gAgentKey[1], QStringLiteral("M\u00fcller"));
    EXPECT_EQ(ws.gAgentFirst[1], QStringLiteral("J\u00f6rg"));
    EXPECT_EQ(ws.gCalendarNotes, QStringLiteral("Caf\u00e9 \u201copen\u201d"));
}

}  // namespace
