#include "core/services/launch.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

// An installed program keeps the user's files in the user's folder, a built one beside
// itself, help and all: only the installation's layout, bin/ beside share/desko40/, counts
// as installed.
TEST(Launch, KnowsAnInstalledProgramByTheDataFolderBesideIt) {
    QTemporaryDir prefix;
    ASSERT_TRUE(QDir(prefix.path()).mkpath(QStringLiteral("bin")));
    ASSERT_TRUE(QDir(prefix.path()).mkpath(QStringLiteral("src/help")));
    EXPECT_EQ(installedDataFolder(prefix.filePath(QStringLiteral("bin"))), QString());
    EXPECT_EQ(installedDataFolder(prefix.filePath(QStringLiteral("src"))), QString());

    ASSERT_TRUE(QDir(prefix.path()).mkpath(QStringLiteral("share/desko40/help")));
    EXPECT_EQ(installedDataFolder(prefix.filePath(QStringLiteral("bin"))),
              prefix.filePath(QStringLiteral("share/desko40")));
}
