#include "core/services/log.h"

#include "core/model/workspace.h"
#include "fakes.h"
#include "tables.h"

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
    env.gPhysicalMemoryMB = 16384;  // no mail account: the header says so

    modLogOpen(ws, s.ctx, QStringLiteral("/home/ANN/june.dko"));
    s.clock.time = QDateTime(QDate(2000, 3, 22), QTime(17, 2, 45));
    modLogClose(ws, s.ctx);

    // The log did not exist before: the first line created it.
    EXPECT_EQ(fileBytes(ws.gLogFile), golden("runheader.log").toStdString());
}

TEST_F(LogTest, StatusCutsOneFinalPointInTheCallersText) {
    int n = 0;
    for (const QStringList& row : tableRows("core/services/golden/statuslines.tsv")) {
        SCOPED_TRACE(row[0].toStdString());
        ws.gLogFile = dir.filePath(QString::number(++n) + QStringLiteral(".log"));
        QString text = row[0];

        modStatus(ws, s.ctx, text);

        EXPECT_EQ(text, row.value(1));
        EXPECT_EQ(fileBytes(ws.gLogFile), "[09:14:03]     " + row.value(1).toStdString() + "\r\n");
    }
}

// Lines append in UTF-8, each with its own time, even when the clock passes midnight. A log
// that cannot be written loses the line and nothing else happens; a read-only log stays as it
// was for every user.
TEST_F(LogTest, StatusAppendsLinesToWhatIsThere) {
    QFile file(ws.gLogFile);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("[08:00:00]     Earlier run\r\n");
    file.close();
    s.clock.time = QDateTime(QDate(2000, 3, 31), QTime(23, 59, 58));
    modStatus(ws, s.ctx, QStringLiteral("Saving vacations for Zo\u00eb."));
    s.clock.time = QDateTime(QDate(2000, 4, 1), QTime(0, 0, 1));
    modStatus(ws, s.ctx, QStringLiteral("Reviewing the schedule for April"));

    EXPECT_EQ(fileBytes(ws.gLogFile),
              "[08:00:00]     Earlier run\r\n"
              "[23:59:58]     Saving vacations for Zo\xc3\xab\r\n"
              "[00:00:01]     Reviewing the schedule for April\r\n");

    const std::string before = fileBytes(ws.gLogFile);
    ASSERT_TRUE(QFile::setPermissions(ws.gLogFile, QFileDevice::ReadOwner));
    modStatus(ws, s.ctx, QStringLiteral("Exporting the schedule for March"));
    EXPECT_EQ(fileBytes(ws.gLogFile), before);

    ws.gLogFile = dir.filePath(QStringLiteral("gone/Desko40.log"));
    modStatus(ws, s.ctx, QStringLiteral("Printing the full calendar"));
    EXPECT_FALSE(QDir(dir.filePath(QStringLiteral("gone"))).exists());
}

}  // namespace
