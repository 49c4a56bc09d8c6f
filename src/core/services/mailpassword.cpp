#include "core/services/mailpassword.h"

#include "core/services/netrc.h"
#include "core/services/textfile.h"

#include <QDir>
#include <QProcess>

namespace {

// A password command or the keyring gets this long, time enough to ask for a key's passphrase
// or to unlock the keyring.
constexpr int kAskMs = 60000;

// What the program prints on standard output, when it runs to a normal end with status 0.
std::optional<QByteArray> outputOf(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(program, arguments);
    process.closeWriteChannel();
    if (!process.waitForFinished(kAskMs)) {
        process.kill();
        process.waitForFinished();
        return std::nullopt;
    }
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        return std::nullopt;
    }
    return process.readAllStandardOutput();
}

std::optional<QString> evaluatedPassword(const QString& command) {
    const std::optional<QByteArray> output =
        outputOf(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), command});
    if (!output) {
        return std::nullopt;
    }
    QString line = QString::fromUtf8(*output).section(QLatin1Char('\n'), 0, 0);
    if (line.endsWith(QLatin1Char('\r'))) {
        line.chop(1);
    }
    if (line.isEmpty()) {
        return std::nullopt;
    }
    return line;
}

// secret-tool prints the secret as it is stored, without a line break.
std::optional<QString> keyringPassword(const MailAccount& account) {
    const QStringList lookups[] = {
        {QStringLiteral("host"), account.host, QStringLiteral("service"), QStringLiteral("smtp"),
         QStringLiteral("user"), account.user},
        {QStringLiteral("xdg:schema"), QStringLiteral("org.gnome.keyring.NetworkPassword"),
         QStringLiteral("user"), account.user, QStringLiteral("protocol"), QStringLiteral("smtp"),
         QStringLiteral("server"), account.host},
    };
    for (const QStringList& attributes : lookups) {
        const std::optional<QByteArray> secret = outputOf(
            QStringLiteral("secret-tool"), QStringList{QStringLiteral("lookup")} + attributes);
        if (secret && !secret->isEmpty()) {
            return QString::fromUtf8(*secret);
        }
    }
    return std::nullopt;
}

std::optional<QString> netrcFilePassword(const QString& path, const MailAccount& account) {
    const std::optional<QString> text = readTextFile(path);
    return text ? netrcPassword(*text, account.host, account.user) : std::nullopt;
}

}  // namespace

AccountPassword accountPassword(const MailAccount& account) {
    if (!account.auth || !account.password.isEmpty()) {
        return {account.password, {}};
    }
    const QString quoted = QLatin1Char('"') + account.name + QLatin1Char('"');
    if (!account.passwordEval.isEmpty()) {
        if (std::optional<QString> password = evaluatedPassword(account.passwordEval)) {
            return {password, {}};
        }
        return {std::nullopt, QStringLiteral("The password command of the mail account ") + quoted +
                                  QStringLiteral(" failed")};
    }
    std::optional<QString> password = keyringPassword(account);
    if (!password) {
        password = netrcFilePassword(QDir::homePath() + QStringLiteral("/.netrc"), account);
    }
    if (!password) {
        password = netrcFilePassword(QStringLiteral("/etc/netrc"), account);
    }
    if (password) {
        return {password, {}};
    }
    return {std::nullopt, QStringLiteral("No password for the mail account ") + quoted +
                              QStringLiteral(" was found in the keyring or a netrc file")};
}
