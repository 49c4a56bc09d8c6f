#include "persistence/workspacefile.h"
#include "core/model/calendar.h"
#include "core/model/monthdata.h"
#include "core/model/session.h"
#include "core/model/workspace.h"
#include "core/services/textfile.h"
#include "fakes.h"

#include <QFile>
#include <QTemporaryDir>

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

// What a file leaves in memory beside what a save writes again: a month that is no month
// leaves the current one, and a schedule section, rows or none, leaves the cells it does not
// name as they were and counts as a generated schedule.
TEST_F(WorkspaceFileTest, ReadingLeavesWhatTheFileDoesNotName) {
    write(path("edited.dko"),
          crlf("[Settings]\nVersion=4.0.10\nCurrent Month=13\nCurrent Year=next\n"
               "[Schedule]\n1=2|1|0|New\n2=2|1|0\n3=2|1|9|Beyond\n"));
    ws.gCurrentMonth = 5;
    ws.gCurrentYear = 2026;
    ws.schedule(3, 1, 0) = QStringLiteral("Kept");
    EXPECT_TRUE(modLoadWorkspace(ws, s.ctx, path("edited.dko")));
    EXPECT_EQ(ws.gCurrentMonth, 5);
    EXPECT_EQ(ws.gCurrentYear, 2026);
    EXPECT_EQ(ws.gSavedMonth, QStringLiteral("13"));
    EXPECT_EQ(ws.gScheduleGenerated, 1);
    EXPECT_EQ(ws.schedule(2, 1, 0), QStringLiteral("New"));
    EXPECT_EQ(ws.schedule(3, 1, 0), QStringLiteral("Kept"));
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

}  // namespace
