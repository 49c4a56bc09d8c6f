#include "core/model/session.h"
#include "core/model/textrules.h"
#include "core/model/workspace.h"
#include "core/services/log.h"
#include "core/services/machine.h"
#include "core/services/registrystore.h"
#include "core/services/textfile.h"
#include "environment/probe.h"
#include "environment/rights.h"
#include "fakes.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

// An office's machine, whatever machine runs the test.
class FakeMachine final : public Machine {
public:
    QString userName() const override { return QStringLiteral("ann"); }
    QString hostName() const override { return QStringLiteral("FRONT-DESK"); }
    SystemVersion systemVersion() const override {
        return {QStringLiteral("Debian GNU/Linux 12 (bookworm)"), QStringLiteral("6"),
                QStringLiteral("1"), QStringLiteral("0")};
    }
    QString systemDataDir() const override { return QStringLiteral("/usr/share"); }
    QString systemLibraryDir() const override { return QStringLiteral("/usr/lib"); }
    std::optional<Volume> volume(const QString&) const override {
        return Volume{QStringLiteral("/srv"), 26214400, 13107200, 4096};
    }
    std::optional<qint64> physicalMemoryBytes() const override { return 17179213824; }
    QString ipAddress() const override { return QStringLiteral("192.168.1.20"); }
    QString desktopDir() const override { return QStringLiteral("/home/ann/Desktop"); }
    QString applicationsDir() const override { return QStringLiteral("/usr/share/applications"); }
};

}  // namespace

// The machine's facts reach the log's header tidied, and the default mail account stands for
// the mail profile; an account with a sender can send meeting requests.
TEST(EnvironmentProbe, TheRunHeaderTellsTheMachinesStory) {
    QTemporaryDir home;
    const FakeMachine machine;
    TestServices s;
    s.ctx.machine = &machine;
    s.ctx.launch.mailConfig = home.filePath(QStringLiteral("msmtprc"));
    ASSERT_TRUE(writeTextFile(s.ctx.launch.mailConfig,
                              QStringLiteral("account office\nhost smtp.example.org\n"
                                             "from desk@example.org\n")));
    Workspace ws;
    modInitSession(ws, home.path());

    modProbeEnvironment(ws, s.ctx);
    modLogOpen(ws, s.ctx, QString());

    EXPECT_EQ(fileText(ws.gLogFile).replace(modProperCase(home.path()), QStringLiteral("<home>")),
              golden("probedheader.log"));
    EXPECT_TRUE(s.dialogs.shown.empty());
}

// Memory counts in the 640 kilobytes the system keeps, and rounds; the disk's clusters are
// divided first, and a product beyond 32 bits gives 0.
TEST(EnvironmentProbe, FiguresAsTheyWereAlwaysReckoned) {
    const struct {
        qint64 bytes;
        long long megabytes;
    } memory[] = {
        {133562368, 128},                         // 128 MB less 640 KB
        {1048576LL * 99 - 655360 + 524288, 100},  // 99.5 MB rounds up
        {1048576LL * 99 - 655360 + 524287, 99},
    };
    for (const auto& c : memory) {
        EXPECT_EQ(memoryMegabytes(c.bytes), c.megabytes) << c.bytes;
    }
    const struct {
        qint64 clusters;
        qint64 bytesPerCluster;
        long long megabytes;
    } disks[] = {
        {1023, 4096, 0},
        {1024 * 2047, 1 << 20, 2096128},
        {1024 * 2048, 1 << 20, 0},  // 2 GB per 1024 clusters overflows
    };
    for (const auto& c : disks) {
        EXPECT_EQ(diskMegabytes(c.clusters, c.bytesPerCluster), c.megabytes) << c.clusters;
    }
}

// The check writes, reads back and removes two values in the settings store and a file in
// the program directory, and leaves both as they were. Of a store and a folder that cannot
// be written, only the store is told. A settings file that cannot be read whole is not
// written over.
TEST(RightsCheck, WarnsOfWhatCannotBeWritten) {
    const QString first = QStringLiteral(
        "Your current user account does not appear to have\r\nthe rights "
        "necessary to run Desko for Windows.  \r\nSpecifically, you may not be "
        "able to read or write \r\n");
    const QString last = QStringLiteral(
        "\r\n\r\nPlease log in as the Administrator, or add your\r\ncurrent user account to "
        "the Local Administrators \r\ngroup.");
    const QString registry =
        first +
        QStringLiteral(
            "from the registry.\r\n\r\nDesko for Windows will continue to load, but "
            "you\r\nmay not be able save agent information or program \r\nsettings.") +
        last;
    const QString folder =
        first +
        QStringLiteral(
            "to the program directory.\r\n\r\nDesko for Windows will continue to "
            "load, but you\r\nmay not be able save program settings or log \r\nfiles.") +
        last;
    const QString settings = QStringLiteral("[Settings]\nVersion=4.0.10\n");
    const QString damaged = QStringLiteral("[Settings\nVersion=4.0.10\n");
    const struct {
        QString store;
        bool storeReadOnly;
        bool folderReadOnly;
        QStringList shown;
    } cases[] = {
        {settings, false, false, {}},        {settings, true, false, {registry}},
        {settings, false, true, {folder}},   {settings, true, true, {registry}},
        {damaged, false, false, {registry}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message()
                     << c.store.toStdString() << c.storeReadOnly << c.folderReadOnly);
        QTemporaryDir home;
        QTemporaryDir storeDir;
        const QString storeFile = storeDir.filePath(QStringLiteral("store.conf"));
        ASSERT_TRUE(writeTextFile(storeFile, c.store));
        const auto readOnly = QFile::ReadOwner | QFile::ExeOwner;
        QFile::setPermissions(storeFile,
                              c.storeReadOnly ? readOnly : QFile::permissions(storeFile));
        QFile::setPermissions(home.path(),
                              c.folderReadOnly ? readOnly : QFile::permissions(home.path()));
        SettingsRegistryStore store(storeFile, kRegistryBase);
        TestServices s;
        Context ctx{s.clock, s.dialogs, store, {}, {}, {}};
        Workspace ws;
        modInitSession(ws, home.path());

        EXPECT_EQ(modCheckRights(ws, ctx), c.shown.isEmpty());

        QFile::setPermissions(home.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        EXPECT_EQ(s.dialogs.texts(), c.shown);
        EXPECT_TRUE(s.dialogs.shown.empty() || s.dialogs.shown[0].icon == MsgIcon::Stop);
        EXPECT_EQ(QDir(home.path()).entryList(QDir::Files), QStringList());
        EXPECT_EQ(fileText(storeFile), c.store);
    }
}
