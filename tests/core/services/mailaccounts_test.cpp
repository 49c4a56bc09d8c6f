#include "core/services/mailaccounts.h"
#include "core/services/mailpassword.h"
#include "core/services/netrc.h"

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

// A netrc file as msmtp reads it, and the order in which an account's password is looked for.
TEST(MailAccounts, FindsThePasswordWhereMsmtpLooks) {
    const struct {
        const char* netrc;
        const char* found;  // for login desk at smtp.example.org; nullptr: none
    } files[] = {
        {"machine smtp.example.org login desk password s3cret\n", "s3cret"},
        // Quotes hold blanks; a value may stand on the next line; a comment ends a line.
        {"machine smtp.example.org\n  user 'desk' # the office\n  passwd \"two words\"\n",
         "two words"},
        // The login must match exactly; an entry without one counts for nothing.
        {"machine smtp.example.org login Desk password no\nmachine smtp.example.org password no\n"
         "machine smtp.example.org login desk password yes\n",
         "yes"},
        // default names no machine; a macro's lines up to an empty line are passed over.
        {"default login desk password no\nmacdef init\nmachine smtp.example.org login desk "
         "password no\n\nmachine smtp.example.org login desk password after\n",
         "after"},
        {"machine other.example.org login desk password no\n", nullptr},
    };
    for (const auto& f : files) {
        SCOPED_TRACE(f.netrc);
        const std::optional<QString> password = netrcPassword(
            QString::fromUtf8(f.netrc), QStringLiteral("smtp.example.org"), QStringLiteral("desk"));
        EXPECT_EQ(password.has_value(), f.found != nullptr);
        EXPECT_EQ(password.value_or(QString()), QString::fromUtf8(f.found));
    }

    QTemporaryDir dir;
    const PasswordPlaces places{false, dir.filePath(QStringLiteral("user")),
                                dir.filePath(QStringLiteral("system"))};
    writeTextFile(places.systemNetrc, QStringLiteral("machine h login desk password system\n"
                                                     "machine h login other password other\n"));
    writeTextFile(places.userNetrc, QStringLiteral("machine h login desk password user\n"));
    const struct {
        const char* account;
        const char* password;  // nullptr: none, with the reason
    } accounts[] = {
        {"auth on\nuser desk\npassword line\npasswordeval echo eval\n", "line"},
        {"auth on\nuser desk\npasswordeval echo eval; echo more\n", "eval"},
        {"auth on\nuser desk\n", "user"},
        {"auth on\nuser other\n", "other"},
        {"auth off\nuser desk\npasswordeval exit 1\n", ""},
        {"auth on\nuser desk\npasswordeval exit 1\n", nullptr},
        {"auth on\nuser nobody\n", nullptr},
    };
    for (const auto& a : accounts) {
        SCOPED_TRACE(a.account);
        const MailConfig config = parseMailConfig(QStringLiteral("account office\nhost h\n") +
                                                  QString::fromUtf8(a.account));
        const AccountPassword found = accountPassword(config.accounts.front(), places);
        EXPECT_EQ(found.password.value_or(QStringLiteral("(none)")),
                  a.password != nullptr ? QString::fromUtf8(a.password) : QStringLiteral("(none)"));
        EXPECT_EQ(found.missing.contains(u"\"office\""), a.password == nullptr);
    }
}
