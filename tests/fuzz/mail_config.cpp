#include "fuzzing.h"

#include "core/services/mailaccounts.h"
#include "core/services/mailpassword.h"
#include "core/services/netrc.h"
#include "core/services/textfile.h"

#include <QFile>
#include <QRegularExpression>

namespace {

// The runs' home folder, and a keyring whose secret-tool prints the keyring file, or fails
// where there is none; the keyring file's name.
QString keyringFile() {
    static const QString file = [] {
        const QString tool =
            scratchFile(QStringLiteral("bin/secret-tool"),
                        "#!/bin/sh\nexec cat \"$(dirname \"$0\")/../keyring\" 2>/dev/null\n");
        QFile::setPermissions(tool, QFile::ReadOwner | QFile::ExeOwner);
        qputenv("HOME", scratchPath(QString()).toUtf8());
        qputenv("PATH", scratchPath(QStringLiteral("bin")).toUtf8() + ':' + qgetenv("PATH"));
        return scratchPath(QStringLiteral("keyring"));
    }();
    return file;
}

// The password of an account with a login and no password line, whose keyring holds the
// secret, if any, and whose ~/.netrc holds an entry for it, then the entries of the netrc
// text, the first of which names its machine in the text's first word: a keyring's secret
// comes first, else the first entry. A password command of the input never runs.
void checkPasswordRoad(MailAccount account, const QString& netrc,
                       const std::optional<QByteArray>& secret) {
    static const QRegularExpression word(QStringLiteral("^[^\\s\"'#]+$"));
    if (!word.match(account.host).hasMatch() || !word.match(account.user).hasMatch()) {
        return;
    }
    const QString entries = QStringLiteral("machine %1 login %2 password first\nmachine ")
                                .arg(account.host, account.user) +
                            netrc;
    require(netrcPassword(entries, account.host, account.user) == QStringLiteral("first"),
            "the first entry for the login holds its password");
    QFile::remove(keyringFile());
    if (secret) {
        scratchFile(QStringLiteral("keyring"), *secret);
    }
    scratchFile(QStringLiteral(".netrc"), entries.toUtf8());
    account.auth = true;
    account.password.clear();
    account.passwordEval.clear();
    const std::optional<QString> found = accountPassword(account).password;
    require(found == (secret.value_or(QByteArray()).isEmpty() ? QStringLiteral("first")
                                                              : QString::fromUtf8(*secret)),
            "the keyring's secret is the password, else the netrc file's");
}

}  // namespace

// The msmtp configuration, then after a null byte the netrc file and after another what the
// keyring holds: the account that the machine's facts name as the mail profile is one that
// the export can open, with a host, and its password is found as msmtp finds it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QList<QByteArray> parts = inputBytes(data, size).split('\0');
    const QByteArray& config = parts.front();
    parseMailConfig(decodeText(config));
    const QString path = scratchFile(QStringLiteral("msmtprc"), config);
    const std::optional<MailAccount> account = defaultMailAccount(path);
    require(!account || !account->host.isEmpty(), "the default account has a host");
    Environment facts;
    readMailFacts(facts, path);
    require(facts.gMapiProfile.isEmpty() == !account, "the mail profile is the default account");
    if (account) {
        const std::optional<MailAccount> named = mailAccountNamed(path, facts.gMapiProfile);
        require(named && named->host == account->host, "the mail profile opens its account");
        checkPasswordRoad(*account, decodeText(parts.value(1)),
                          parts.size() > 2 ? std::optional(parts.mid(2).join('\0')) : std::nullopt);
    }
    return 0;
}
