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
#include "tables.h"

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
    for (const QStringList& row : tableRows("environment/golden/figures.tsv")) {
        SCOPED_TRACE(row.join(u' ').toStdString());
        EXPECT_EQ(row[0] == u"memory" ? memoryMegabytes(row[1].toLongLong())
                                      : diskMegabytes(row[1].toLongLong(), row[2].toLongLong()),
                  row.last().toLongLong());
    }
}

// The check writes, reads back and removes two values in the settings store and a file in
// the program directory, and leaves both as they were. Of a store and a folder that cannot
// be written, only the store is told. A settings file that cannot be read whole is not
// written over.
TEST(RightsCheck, WarnsOfWhatCannotBeWritten) {
    for (const QStringList& row : tableRows("environment/golden/rights.tsv")) {
        SCOPED_TRACE(row.mid(0, 3).join(u' ').toStdString());
        const QStringList shown = row.value(3).isEmpty() ? QStringList() : QStringList{row[3]};
        QTemporaryDir home;
        QTemporaryDir storeDir;
        const QString storeFile = storeDir.filePath(QStringLiteral("store.conf"));
        ASSERT_TRUE(writeTextFile(storeFile, row[0]));
        const auto readOnly = QFile::ReadOwner | QFile::ExeOwner;
        QFile::setPermissions(storeFile, row[1] == u"1" ? readOnly : QFile::permissions(storeFile));
        QFile::setPermissions(home.path(),
                              row[2] == u"1" ? readOnly : QFile::permissions(home.path()));
        SettingsRegistryStore store(storeFile, kRegistryBase);
        TestServices s;
        Context ctx{s.clock, s.dialogs, store, {}, {}, {}};
        Workspace ws;
        modInitSession(ws, home.path());

        EXPECT_EQ(modCheckRights(ws, ctx), shown.isEmpty());

        QFile::setPermissions(home.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        EXPECT_EQ(s.dialogs.texts(), shown);
        EXPECT_TRUE(s.dialogs.shown.empty() || s.dialogs.shown[0].icon == MsgIcon::Stop);
        EXPECT_EQ(QDir(home.path()).entryList(QDir::Files), QStringList());
        EXPECT_EQ(fileText(storeFile), row[0]);
    }
}
