#include "core/model/calendar.h"
#include "core/model/session.h"
#include "core/model/workspace.h"
#include "core/services/registrystore.h"
#include "core/services/textfile.h"
#include "fakes.h"
#include "persistence/storecheck.h"
#include "tables.h"

#include <QFile>
#include <QMap>
#include <QTemporaryDir>

#include <gtest/gtest.h>

// An earlier version's store goes into the working file once and is removed. A store that
// cannot be written stays, and is read only where there is no working file yet, so that a
// later start cannot read it again over the user's work; so does one whose office could not
// be written into a working file. A store of this version, with its one key and maybe the key
// of a rights check that never ended, is left alone, and so is a file that cannot be a store.
TEST(OldStore, MovesIntoTheWorkingFileOnce) {
    const QString version = QStringLiteral("[Settings]\nVersion=4.0.10\n");
    const QMap<QString, QString> stores = {
        {QStringLiteral("old"), golden("oldstore.conf")},
        {QStringLiteral("old, long"), golden("oldstore.conf") + QString(1 << 20, u';')},
        {QStringLiteral("old, null"), golden("oldstore.conf") + QChar(0)},
        {QStringLiteral("this"), version},
        {QStringLiteral("this, test"), version + QStringLiteral("[Test]\nTest=Test\n")}};
    for (const QStringList& row : tableRows("persistence/golden/oldstores.tsv")) {
        SCOPED_TRACE(row.join(u' ').toStdString());
        const QString storeText = stores.value(row[0]);
        const bool readOnly = row[1] == u"1";
        const bool workingFile = row[2] == u"1";
        const bool moved = row[3] == u"1";
        const bool unreadable = row[5] == u"1";
        QTemporaryDir home;
        QTemporaryDir settings;
        const QString storeFile = settings.filePath(QStringLiteral("store.conf"));
        ASSERT_TRUE(writeTextFile(storeFile, storeText));
        if (readOnly) {
            QFile::setPermissions(storeFile, QFile::ReadOwner);
        }
        SettingsRegistryStore store(storeFile, kRegistryBase);
        TestServices s;
        Context ctx{s.clock, s.dialogs, store, {}, {}, {}};
        Workspace ws;
        modInitSession(ws, row[4] == u"1" ? home.filePath(QStringLiteral("gone")) : home.path());
        modInitNameTables(ws);
        const QString before = golden("office.ini");
        if (workingFile) {
            ASSERT_TRUE(writeTextFile(ws.gConfigFile, before));
        }

        modMigrateOrCheckStore(ws, ctx);

        EXPECT_EQ(logged(ws, QStringLiteral("Found version of software predating 4.0.7")), moved);
        EXPECT_EQ(logged(ws, QStringLiteral("Erasing previous configuration data in registry")),
                  moved);
        EXPECT_EQ(fileText(ws.gConfigFile),
                  moved ? golden("migrated.ini") : (workingFile ? before : QString()));
        EXPECT_EQ(s.dialogs.shown.size(), moved || workingFile ? 0U : 1U);
        EXPECT_EQ(SettingsRegistryStore(storeFile, kRegistryBase).keyNames(kRegistryBase).size(),
                  row[6].toLongLong());
        EXPECT_EQ(logged(ws, QStringLiteral("Settings store at ") + storeFile +
                                 QStringLiteral(" cannot be read--leaving it untouched")),
                  unreadable);
        if (unreadable) {
            EXPECT_EQ(fileText(storeFile), storeText);
        }
        if (!moved) {
            continue;
        }
        // What the working file cannot show: the day tables of a month it was not saved for,
        // and a count of agents below one, which stays as it was read.
        EXPECT_EQ(ws.gShiftAgents[1], (ShiftTable::value_type{0, 0, 0, -2, 0, 0, 0}));
        EXPECT_EQ(ws.gVacation[2][4] + ws.gVacation[2][5], 2);
        EXPECT_EQ(ws.gNotedText[8], QStringLiteral("Staff meeting, room 2"));
        // The holidays' list ends at the name that marks the end of a list, which sorts
        // first.
        EXPECT_EQ(ws.gHoliday[1] + ws.gHoliday[25], 0);
        EXPECT_EQ(ws.gSavedMonth, QStringLiteral("6"));
    }
}
