#include "persistence/workspacefile.h"
#include "core/model/calendar.h"
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

    QString path(const char* name) const { return dir.filePath(QString::fromUtf8(name)); }

    void write(const QString& file, const QString& text) const {
        ASSERT_TRUE(writeTextFile(file, text));
    }

    // The office of the expected files, February 2027, read from its schedule file.
    void readOffice() {
        write(path("office.dko"), golden("office.dko"));
        ASSERT_TRUE(modLoadWorkspace(ws, s.ctx, path("office.dko")));
    }

    QTemporaryDir dir;
    TestServices s;
    Workspace ws;
};

// A schedule file comes back whole, in its own month, and saves the same bytes; the working
// file holds the same without the schedule. Entries for days past the month's end stay in
// memory and reach no file, and the summary flags count only what the file got. Every save
// notes the program's version in the registry.
TEST_F(WorkspaceFileTest, SavesWhatItReadsByteForByte) {
    readOffice();
    EXPECT_EQ(ws.gFirstWeekday, 1);
    EXPECT_EQ(ws.gHasHolidays + ws.gHasNotedDays + ws.gHasVacations + ws.gHasRestrictions, 4);
    EXPECT_EQ(ws.gScheduleGenerated, 1);
    EXPECT_EQ(ws.cmbGenerateListIndex, 2);
    ws.gHoliday[30] = ws.gVacation[2][30] = ws.gNoted[29] = 1;
    ASSERT_TRUE(modSaveWorkspace(ws, s.ctx, path("again.dko")));
    EXPECT_EQ(readTextFile(path("again.dko")), golden("office.dko"));
    EXPECT_EQ(ws.gPrinterFormat, QStringLiteral("101001"));
    EXPECT_EQ(s.registry.value(ws.gRegistryBase + QStringLiteral("\\Settings"),
                               QStringLiteral("Version")),
              QStringLiteral("4.0.10"));
    ASSERT_TRUE(modSaveWorkspace(ws, s.ctx, QString()));
    EXPECT_EQ(readTextFile(ws.gConfigFile), golden("office.ini"));

    ws.gHoliday[15] = ws.gNoted[3] = ws.gVacation[2][10] = ws.gRestriction[1][6][1] = 0;
    modSaveWorkspace(ws, s.ctx, QString());
    EXPECT_EQ(ws.gHoliday[30], 1);
    EXPECT_EQ(ws.gHasHolidays + ws.gHasNotedDays + ws.gHasVacations + ws.gHasRestrictions, 0);
}

TEST_F(WorkspaceFileTest, WorkingFileKeepsTheMonthAndTheScheduleAsTheyAre) {
    write(ws.gConfigFile, golden("office.dko"));
    ws.gCurrentMonth = 7;
    ws.gCurrentYear = 2030;
    ws.schedule(1, 1, 0) = QStringLiteral("Earlier");
    modLoadWorkspace(ws, s.ctx, QString());
    EXPECT_EQ(ws.gCurrentMonth, 7);
    EXPECT_EQ(ws.gCurrentYear, 2030);
    EXPECT_EQ(ws.gSavedMonth, QStringLiteral("2"));
    EXPECT_EQ(ws.gSavedYear, QStringLiteral("2027"));
    EXPECT_EQ(ws.schedule(1, 1, 0), QStringLiteral("Earlier"));
    EXPECT_EQ(ws.gScheduleGenerated, 0);
    EXPECT_EQ(ws.gAgentCount, 2);
}

// Only a schedule file whose version begins with 4.0. is read; the refusal is wrapped to the
// box's width and carries the stop icon. The working file's own version is never looked at.
TEST_F(WorkspaceFileTest, OnlySchedulesOfThisVersionAreRead) {
    for (const char* version : {"4.0.7", "4.0.", "4.0", "4.1.0", "", "v4.0.10"}) {
        const bool read = QByteArray(version).startsWith("4.0.");
        QString text = golden("office.ini");
        text.replace(QStringLiteral("4.0.10"), QString::fromUtf8(version));
        write(path("other.dko"), text);
        TestServices services;
        Workspace loaded = freshWorkspace();
        EXPECT_EQ(modLoadWorkspace(loaded, services.ctx, path("other.dko")), read) << version;
        EXPECT_EQ(loaded.gAgentCount, read ? 2 : 0) << version;
        EXPECT_EQ(services.dialogs.texts(),
                  read ? QStringList() : QStringList{golden("refusal.err")})
            << version;
        EXPECT_TRUE(read || services.dialogs.shown[0].icon == MsgIcon::Stop);
    }
    QString working = golden("office.ini");
    working.replace(QStringLiteral("Version=4.0.10"), QStringLiteral("Version=1.0"));
    write(ws.gConfigFile, working);
    EXPECT_TRUE(modLoadWorkspace(ws, s.ctx, QString()));
    EXPECT_EQ(ws.gAgentCount, 2);
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
    write(path("bare.dko"), golden("bare.dko"));
    QFile::setPermissions(path("bare.dko"), QFile::ReadOwner);
    modLoadWorkspace(ws, s.ctx, path("bare.dko"));

    EXPECT_EQ(ws.gGridFont, QStringLiteral("Times New Roman"));
    EXPECT_EQ(ws.gTearsheetFontsize, QStringLiteral("12"));
    EXPECT_EQ(ws.gCalendarTitle, QStringLiteral("Mine"));
    // A read-only file is made writable first; the grid's defaults land under stray keys.
    EXPECT_EQ(readTextFile(path("bare.dko")), golden("bare-defaults.dko"));

    // The next full save writes the grid's own keys and drops the stray ones.
    modSaveWorkspace(ws, s.ctx, path("bare.dko"));
    const QString saved = readTextFile(path("bare.dko")).value_or(QString());
    EXPECT_TRUE(saved.contains(QStringLiteral("\r\nOffice Grid Font=Times New Roman\r\n")));
    EXPECT_FALSE(saved.contains(QStringLiteral("\r\nGrid Font=")));
}

TEST_F(WorkspaceFileTest, UnwritableTargetsKeepWhatTheyHeld) {
    readOffice();
    write(path("locked.dko"), QStringLiteral("old contents\r\n"));
    QFile::setPermissions(path("locked.dko"), QFile::ReadOwner);
    EXPECT_FALSE(modSaveWorkspace(ws, s.ctx, path("locked.dko")));
    EXPECT_EQ(readTextFile(path("locked.dko")), QStringLiteral("old contents\r\n"));

    EXPECT_FALSE(modSaveWorkspace(ws, s.ctx, path("missing/office.dko")));
    EXPECT_FALSE(QFile::exists(path("missing")));
    EXPECT_FALSE(modSaveWorkspace(ws, s.ctx, dir.path()));
}

}  // namespace
