#include "persistence/configdump.h"

#include "core/services/log.h"
#include "core/services/textfile.h"
#include "fakes.h"
#include "persistence/workspacefile.h"
#include "tables.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

using Kind = ScriptedDialogs::FileKind;

QString crlf(const char* text) {
    return QString::fromUtf8(text).replace(QStringLiteral("\n"), QStringLiteral("\r\n"));
}

// What the user has, what the dump holds, and what opening it brings back, byte for byte.
TEST(ConfigurationDump, TakesTheWorkingFileUpToTheFirstSeparatorAndTheLogAfterIt) {
    EXPECT_EQ(dumpText(crlf("[Agents]\n1=A|B|\n"), crlf("[09:00:00]     one\n")),
              crlf("[Agents]\n1=A|B|\n\n<SNIP>\n\n[09:00:00]     one\n"));
    // A file without a line still gives one.
    EXPECT_EQ(dumpText(QString(), QString()), crlf("\n\n<SNIP>\n\n\n"));

    for (const QStringList& row : tableRows("persistence/golden/restoreddump.tsv")) {
        SCOPED_TRACE(row[0].toStdString());
        const RestoredFiles files = restoredFiles(row[0]);
        EXPECT_EQ(files.workingFile, row[1]);
        EXPECT_EQ(files.log, row[2]);
    }
}

// A dump made and opened again on another machine puts that user's office and log in
// place of this one's; Cancel in either dialog leaves both files alone.
TEST(ConfigurationDump, OpenedAgainGivesBackTheWorkspaceAndTheLog) {
    QTemporaryDir home;
    TestServices s;
    s.ctx.env.gDesktopDir = home.filePath(QStringLiteral("Desktop"));
    Workspace ws;
    openMonth(ws, 2027, 2, home.path());
    ASSERT_TRUE(writeTextFile(ws.gConfigFile, golden("office.ini")));
    modStatus(ws, s.ctx, QStringLiteral("Reading the office"));
    const QString workingFile = fileText(ws.gConfigFile);
    const QString log = fileText(ws.gLogFile);

    EXPECT_FALSE(createConfigurationDump(ws, s.ctx));
    EXPECT_FALSE(openConfigurationDump(ws, s.ctx));
    EXPECT_EQ(fileText(ws.gConfigFile), workingFile);
    EXPECT_EQ(fileText(ws.gLogFile), log);

    const QString dump = home.filePath(QStringLiteral("Support.dmp"));
    s.dialogs.fileAnswers = {dump};
    EXPECT_TRUE(createConfigurationDump(ws, s.ctx));
    ASSERT_TRUE(writeTextFile(ws.gConfigFile, QString()));
    modStatus(ws, s.ctx, QStringLiteral("Something else"));
    ASSERT_TRUE(modLoadWorkspace(ws, s.ctx, QString()));
    ASSERT_EQ(ws.gAgentCount, 0);

    s.dialogs.fileAnswers = {dump};
    EXPECT_TRUE(openConfigurationDump(ws, s.ctx));
    EXPECT_EQ(ws.gAgentCount, 2);
    EXPECT_EQ(ws.gAgentLast[2], QStringLiteral("Baker"));
    EXPECT_EQ(fileText(ws.gLogFile), QStringLiteral("\r\n") + log);
    // The separator left in the working file is gone at the next save.
    modSaveWorkspace(ws, s.ctx, QString());
    EXPECT_EQ(fileText(ws.gConfigFile), workingFile);

    QStringList titles;
    for (const auto& [kind, request] : s.dialogs.filesShown) {
        titles.append(request.title);
        EXPECT_EQ(request.filter,
                  QStringLiteral("Configuration dump files (*.dmp)|*.dmp|All files (*.*)|*.*"));
        EXPECT_EQ(request.filterIndex, 1);
        EXPECT_EQ(request.initialDir, s.ctx.env.gDesktopDir);
        EXPECT_EQ(request.fileName, QStringLiteral("Desko40.dmp"));
        EXPECT_TRUE(request.promptOverwrite);
    }
    const QString create = QStringLiteral("Create a configuration dump file...");
    const QString open = QStringLiteral("Open a configuration dump file...");
    EXPECT_EQ(titles, QStringList({create, open, create, open}));
    EXPECT_EQ(s.dialogs.filesShown[0].kind, Kind::Save);
    EXPECT_EQ(s.dialogs.filesShown[1].kind, Kind::Open);
}

}  // namespace
