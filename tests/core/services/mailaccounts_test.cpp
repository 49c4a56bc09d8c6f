#include "core/services/mailaccounts.h"

#include "core/services/textfile.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

// The default account of a configuration: its name, host, port, TLS modes and sender.
TEST(MailAccounts, FindsTheDefaultAccountAsMsmtpReadsIt) {
    struct Case {
        const char* config;
        const char* name;  // nullptr: no usable account
        const char* host;
        int port;
        bool tls;
        bool starttls;
        const char* from;
    };
    const Case cases[] = {
        // The first account stands in for a missing default; defaults reach every account.
        {"defaults\ntls on\nport 587\n\naccount work\nhost smtp.example.org\nfrom a@b.org\n"
         "account home\nhost mail.example.net\n",
         "work", "smtp.example.org", 587, true, true, "a@b.org"},
        // "account default : NAME" names the default; an account copies the one it names.
        {"account base\nhost h1\nfrom x@y\ntls on\ntls_starttls off\n"
         "account second : base\nfrom \"Second <s@y>\"\n# a comment\naccount default : second\n",
         "second", "h1", 465, true, false, "Second <s@y>"},
        // An account literally called default wins over the first.
        {"account a\nhost ha\naccount default\nhost hd\n", "default", "hd", 25, false, true, ""},
        // CR LF lines and blanks around the keywords, as a Windows editor leaves them.
        {"  account  x \r\n  host  127.0.0.1 \r\n  port 2525\r\n  tls off\r\n", "x", "127.0.0.1",
         2525, false, true, ""},
        // An account without a host is of no use; nor is a file without accounts.
        {"account nohost\nfrom a@b\n", nullptr, "", 0, false, false, ""},
        {"host lonely\nfrom a@b\n", nullptr, "", 0, false, false, ""},
    };
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("config"));
    for (const Case& c : cases) {
        SCOPED_TRACE(c.config);
        ASSERT_TRUE(writeTextFile(path, QString::fromUtf8(c.config)));
        const std::optional<MailAccount> account = defaultMailAccount(path);
        if (c.name == nullptr) {
            EXPECT_FALSE(account.has_value());
            continue;
        }
        ASSERT_TRUE(account.has_value());
        EXPECT_EQ(account->name, QString::fromUtf8(c.name));
        EXPECT_EQ(account->host, QString::fromUtf8(c.host));
        EXPECT_EQ(account->effectivePort(), c.port);
        EXPECT_EQ(account->tls, c.tls);
        EXPECT_EQ(account->starttls, c.starttls);
        EXPECT_EQ(account->from, QString::fromUtf8(c.from));
    }
    EXPECT_FALSE(defaultMailAccount(dir.filePath(QStringLiteral("missing"))).has_value());
    EXPECT_FALSE(defaultMailAccount(QString()).has_value());
}
