#include "core/services/mailaccounts.h"

#include "core/services/textfile.h"
#include "tables.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

TEST(MailAccounts, FindsTheDefaultAccountAsMsmtpReadsIt) {
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("config"));
    const auto onOff = [](bool on) { return on ? QStringLiteral("on") : QStringLiteral("off"); };
    for (const QStringList& row : tableRows("core/services/golden/mailaccounts.tsv")) {
        SCOPED_TRACE(row[0].toStdString());
        ASSERT_TRUE(writeTextFile(path, row[0]));
        const std::optional<MailAccount> account = defaultMailAccount(path);
        ASSERT_EQ(account.has_value(), !row.value(1).isEmpty());
        if (account) {
            EXPECT_EQ(QStringList({account->name, account->host,
                                   QString::number(account->effectivePort()), onOff(account->tls),
                                   onOff(account->starttls), account->from}),
                      row.mid(1, 6) + QStringList(7 - row.size(), QString()));
        }
    }
    EXPECT_FALSE(defaultMailAccount(dir.filePath(QStringLiteral("missing"))).has_value());
    EXPECT_FALSE(defaultMailAccount(QString()).has_value());
}
