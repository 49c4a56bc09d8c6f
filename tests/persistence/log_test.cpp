#include "persistence/log.h"

#include "fakes.h"
#include "workspace/workspace.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <string>

namespace {

// The file's bytes as they are on disk; a failed comparison prints them readably.
std::string fileBytes(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
}

class LogTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(dir.isValid());
        ws.gLogFile = dir.filePath(QStringLiteral("Desko40.log"));
    }

    QTemporaryDir dir;
    Workspace ws;
    TestServices s;
};

TEST_F(LogTest, RunHeaderAndClosingLineByteForByte) {
    ws.gVersionMajor = 4;
    ws.gVersionMinor = 0;
    ws.gVersionRevision = 10;
    ws.gAppPath = QStringLiteral("/opt/DESKO/bin");
    ws.gRegistryBase = QStringLiteral("Software\\Tavrel Software\\Desko for Windows rev 4.0");

    Environment& env = s.ctx.env;
    env.gWindowsName = QStringLiteral("Linux");  // no service pack: the blank stays
    env.gWindowsMajor = QStringLiteral("6");
    env.gWindowsMinor = QStringLiteral("1");  // no build: the line ends in a point, cut
    env.gWindowsDrive = QStringLiteral("/");
    env.gWindowsDir = QStringLiteral("/usr/SHARE");
    env.gDesktopDir = QStringLiteral("/home/ann/DESKTOP");
    env.gMachineName = QStringLiteral("frontdesk");
    env.gAccountName = QStringLiteral("ann");
    env.gAccountRightsOk = false;
    env.gDiskTotalMB = 51200;
    env.gPhysicalMemoryMB = 16384;
    env.gMapiProfile = QStringLiteral("Office");
    env.gOutlookInstalled = true;

    modLogOpen(ws, s.ctx, QStringLiteral("/home/ANN/june.dko"));
    s.clock.time = QDateTime(QDate(2000, 3, 22), QTime(17, 2, 45));
    modLogClose(ws, s.ctx);

    const std::string expected =
        "[09:14:03]     ____________________________________________\r\n"
        "[09:14:03]                                                 \r\n"
        "[09:14:03]     Desko for Windows rev 4.0\r\n"
        "[09:14:03]     Copyright (C) 2026 the Desko developers\r\n"
        "[09:14:03]     ____________________________________________\r\n"
        "[09:14:03]                                                 \r\n"
        "[09:14:03]     Opening Desko40.log on 03/21/2000\r\n"
        "[09:14:03]     Windows version is Linux \r\n"
        "[09:14:03]     Windows build is 6.1\r\n"
        "[09:14:03]     Windows drive is /\r\n"
        "[09:14:03]     Windows directory is /usr/SHARE\r\n"
        "[09:14:03]     System directory is \r\n"
        "[09:14:03]     Desktop directory is /Home/Ann/Desktop\r\n"
        "[09:14:03]     Start Menu directory is \r\n"
        "[09:14:03]     Machine name is frontdesk\r\n"
        "[09:14:03]     IP address is not found\r\n"
        "[09:14:03]     Account is ann\r\n"
        "[09:14:03]     Account does not have administrative rights\r\n"
        "[09:14:03]     Total disk space on C: is 51200MB\r\n"
        "[09:14:03]     Free disk space on C: is MB\r\n"
        "[09:14:03]     Physical memory is 16384MB\r\n"
        "[09:14:03]     Default MAPI profile is Office\r\n"
        "[09:14:03]     Outlook is installed\r\n"
        "[09:14:03]     Software build is 4.0.10\r\n"
        "[09:14:03]     Software path is /Opt/Desko/Bin\r\n"
        "[09:14:03]     Software base registry key is HKLM\\Software\\Tavrel Software\\Desko "
        "for Windows rev 4.0\r\n"
        "[09:14:03]     Software startup switch is /Home/Ann/June.dko\r\n"
        "[17:02:45]     Closing Desko40.log on 03/22/2000\r\n";
    // The log did not exist before: the first line created it.
    EXPECT_EQ(fileBytes(ws.gLogFile), expected);
}

TEST_F(LogTest, RunHeaderOtherWordings) {
    Environment& env = s.ctx.env;
    env.gIpAddress = QStringLiteral("192.168.1.20");
    env.gAccountRightsOk = true;
    env.gOutlookInstalled = false;

    modLogOpen(ws, s.ctx, QString());

    const QList<QByteArray> lines = QByteArray::fromStdString(fileBytes(ws.gLogFile)).split('\n');
    ASSERT_EQ(lines.size(), 28);  // 27 lines and the empty rest after the last line end
    EXPECT_EQ(lines[15].toStdString(), "[09:14:03]     IP address is 192.168.1.20\r");
    EXPECT_EQ(lines[17].toStdString(), "[09:14:03]     Account has administrative rights\r");
    EXPECT_EQ(lines[21].toStdString(), "[09:14:03]     Default MAPI profile is not found\r");
    EXPECT_EQ(lines[22].toStdString(), "[09:14:03]     Outlook is not installed\r");
    EXPECT_EQ(lines[26].toStdString(), "[09:14:03]     Software startup switch not present\r");
}

TEST_F(LogTest, StatusCutsOneFinalPointInTheCallersText) {
    struct Case {
        const char* given;
        const char* kept;
    };
    const Case cases[] = {
        {".", ""}, {"", ""}, {"a.", "a"}, {"a..", "a."}, {"no point", "no point"},
    };
    int n = 0;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.given);
        ws.gLogFile = dir.filePath(QString::number(++n) + QStringLiteral(".log"));
        QString text = QString::fromLatin1(c.given);

        modStatus(ws, s.ctx, text);

        EXPECT_EQ(text.toStdString(), c.kept);
        EXPECT_EQ(fileBytes(ws.gLogFile), std::string("[09:14:03]     ") + c.kept + "\r\n");
    }
}

TEST_F(LogTest, StatusAppendsToExistingContentInUtf8) {
    {
        QFile file(ws.gLogFile);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("[08:00:00]     Earlier run\r\n");
    }

    modStatus(ws, s.ctx, QStringLiteral("Saving vacations for Zoë."));

    EXPECT_EQ(fileBytes(ws.gLogFile),
              "[08:00:00]     Earlier run\r\n"
              "[09:14:03]     Saving vacations for Zo\xc3\xab\r\n");
}

TEST_F(LogTest, LogInMissingDirectoryLosesTheLine) {
    ws.gLogFile = dir.filePath(QStringLiteral("gone/Desko40.log"));
    QString text = QStringLiteral("Printing the full calendar.");

    modStatus(ws, s.ctx, text);

    EXPECT_EQ(text.toStdString(), "Printing the full calendar");
    EXPECT_FALSE(QFile::exists(ws.gLogFile));
    EXPECT_FALSE(QDir(dir.filePath(QStringLiteral("gone"))).exists());
}

TEST_F(LogTest, ReadOnlyLogLosesTheLine) {
    {
        QFile file(ws.gLogFile);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("[08:00:00]     Earlier run\r\n");
    }
    ASSERT_TRUE(QFile::setPermissions(ws.gLogFile, QFileDevice::ReadOwner));

    modStatus(ws, s.ctx, QStringLiteral("Exporting the schedule for March"));

    EXPECT_EQ(fileBytes(ws.gLogFile), "[08:00:00]     Earlier run\r\n");
}

TEST_F(LogTest, RunOverMidnightShowsTimesGoingBackWithoutADateLine) {
    s.clock.time = QDateTime(QDate(2000, 3, 31), QTime(23, 59, 58));
    modStatus(ws, s.ctx, QStringLiteral("Generating the schedule for April"));
    s.clock.time = QDateTime(QDate(2000, 4, 1), QTime(0, 0, 1));
    modStatus(ws, s.ctx, QStringLiteral("Reviewing the schedule for April"));

    EXPECT_EQ(fileBytes(ws.gLogFile),
              "[23:59:58]     Generating the schedule for April\r\n"
              "[00:00:01]     Reviewing the schedule for April\r\n");
}

}  // namespace
