#include "shell/programstart.h"

#include "core/model/workspace.h"
#include "core/services/msgbox.h"
#include "fakes.h"

#include <QFile>
#include <QLockFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

// The start takes the coming month. The example office was saved in January 2027: its
// holidays and titles stay only when the coming month is that month, and its standing
// restrictions always. Without a working file the start says so, with the message's log line
// before the run's header, and goes on.
TEST(Startup, TheStartTakesTheComingMonth) {
    const struct {
        QDate today;
        bool example;
        int month, year;
        bool reset;
    } cases[] = {
        {QDate(2026, 12, 1), true, 1, 2027, false},  // December schedules the next January
        {QDate(2027, 1, 31), true, 2, 2027, true},
        {QDate(2025, 12, 31), true, 1, 2026, true},  // same month, another year
        {QDate(2026, 12, 15), false, 1, 2027, true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.today.toString().toStdString());
        QTemporaryDir home;
        TestServices s;
        Workspace ws;
        s.ctx.launch.home = home.path();
        const QString ini = home.filePath(QStringLiteral("Desko40.ini"));
        if (c.example) {
            ASSERT_TRUE(QFile::copy(QStringLiteral(DESKO_EXAMPLES_DIR "/office/Desko40.ini"), ini));
            QFile::setPermissions(ini, QFile::ReadOwner | QFile::WriteOwner);
        }
        s.clock.time = QDateTime(c.today, QTime(9, 30));
        prepareWorkspace(ws, s.ctx, QString());

        const QString log = fileText(ws.gLogFile);
        EXPECT_EQ(s.dialogs.texts(),
                  c.example ? QStringList()
                            : s.dialogs.wrapped({QStringLiteral(
                                  "The Desko for Windows configuration file, Desko40.ini, could "
                                  "not be found in the program directory.  The program will "
                                  "still run, but some configuration data may be lost.")}));
        if (!c.example) {
            EXPECT_EQ(s.dialogs.shown[0].icon, MsgIcon::Stop);
            EXPECT_TRUE(log.startsWith(QStringLiteral("[09:30:00]     INI file not found at ") +
                                       ini + QStringLiteral("\r\n[09:30:00]     ____")));
        }
        EXPECT_EQ(ws.gCurrentMonth, c.month);
        EXPECT_EQ(ws.gCurrentYear, c.year);
        EXPECT_EQ(ws.gAgentCount, c.example ? 12 : 0);
        if (c.example) {
            EXPECT_EQ(ws.gAgentKey[5], QStringLiteral("Garcia (M.)"));
        }
        EXPECT_EQ(ws.gHoliday[1], c.reset ? 0 : 1);
        EXPECT_EQ(ws.gCalendarTitle.isEmpty(), c.reset);
        EXPECT_EQ(ws.gHasRestrictions, c.example ? 1 : 0);
        EXPECT_EQ(logged(ws, QStringLiteral("Saved month is January 2027")), c.example);
        EXPECT_EQ(logged(ws, QStringLiteral("Month number has changed since program was last "
                                            "used--resetting month-specific data")),
                  c.reset);
    }
}

// One run per program directory: the claim of a run that crashed lapses, a live run's claim
// refuses a second one, and a folder where no claim can be written stops nobody.
TEST(Startup, OneRunPerProgramDirectory) {
    QTemporaryDir home;
    QFile stale(home.filePath(QStringLiteral("Desko40.lock")));
    ASSERT_TRUE(stale.open(QIODevice::WriteOnly));
    stale.write("2147483000\ndesko40\n" + QSysInfo::machineHostName().toUtf8() + "\n");
    stale.close();
    bool otherRunning = true;
    const auto first = claimProgramDirectory(home.path(), otherRunning);
    EXPECT_FALSE(otherRunning);
    EXPECT_TRUE(first->isLocked());
    const auto second = claimProgramDirectory(home.path(), otherRunning);
    EXPECT_TRUE(otherRunning);
    claimProgramDirectory(home.filePath(QStringLiteral("missing")), otherRunning);
    EXPECT_FALSE(otherRunning);
}
