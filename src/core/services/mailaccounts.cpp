#include "core/services/mailaccounts.h"

#include "core/services/textfile.h"

#include <QDir>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

namespace {

// The argument of a line: the rest after the keyword, without blanks around it, and without
// the double quotes that may enclose it.
QString argumentOf(const QString& rest) {
    const QString value = rest.trimmed();
    if (value.size() < 2 || !value.startsWith(QLatin1Char('"')) ||
        !value.endsWith(QLatin1Char('"'))) {
        return value;
    }
    QString unquoted;
    for (qsizetype i = 1; i + 1 < value.size(); ++i) {
        if (value[i] == QLatin1Char('\\') && i + 2 < value.size()) {
            ++i;
        }
        unquoted += value[i];
    }
    return unquoted;
}

// "on" and an empty argument are on; "off" is off.
bool switchOf(const QString& argument) {
    return argument.compare(QStringLiteral("off"), Qt::CaseInsensitive) != 0;
}

void apply(MailAccount& account, const QString& keyword, const QString& argument) {
    if (keyword == QStringLiteral("host")) {
        account.host = argument;
    } else if (keyword == QStringLiteral("port")) {
        account.port = std::max(0, argument.toInt());
    } else if (keyword == QStringLiteral("tls")) {
        account.tls = switchOf(argument);
    } else if (keyword == QStringLiteral("tls_starttls")) {
        account.starttls = switchOf(argument);
    } else if (keyword == QStringLiteral("auth")) {
        account.auth = switchOf(argument);
    } else if (keyword == QStringLiteral("user")) {
        account.user = argument;
    } else if (keyword == QStringLiteral("password")) {
        account.password = argument;
    } else if (keyword == QStringLiteral("passwordeval")) {
        account.passwordEval = argument;
    } else if (keyword == QStringLiteral("from")) {
        account.from = argument;
    } else if (keyword == QStringLiteral("tls_trust_file")) {
        // A leading ~/ stands for the home folder, as in msmtp's file names.
        account.trustFile = argument.startsWith(QStringLiteral("~/"))
                                ? QDir::homePath() + argument.mid(1)
                                : argument;
    } else if (keyword == QStringLiteral("tls_certcheck")) {
        account.certCheck = switchOf(argument);
    } else if (keyword == QStringLiteral("timeout")) {
        account.timeout = std::max(0, argument.toInt());
    }
}

const MailAccount* accountNamed(const std::vector<MailAccount>& accounts, const QString& name) {
    const auto it = std::find_if(accounts.begin(), accounts.end(),
                                 [&](const MailAccount& a) { return a.name == name; });
    return it == accounts.end() ? nullptr : &*it;
}

}  // namespace

MailConfig parseMailConfig(const QString& text) {
    static const QRegularExpression lineBreak(QStringLiteral("\r\n|\r|\n"));
    MailConfig config;
    MailAccount defaults;
    MailAccount discarded;  // what stands under a line that opens no account
    MailAccount* current = &defaults;
    for (const QString& raw : text.split(lineBreak)) {
        const QString line = raw.trimmed();
        if (line.isEmpty() || line.startsWith(QLatin1Char('#'))) {
            continue;
        }
        const qsizetype blank = line.indexOf(QRegularExpression(QStringLiteral("\\s")));
        const QString keyword = blank < 0 ? line : line.left(blank);
        const QString rest = blank < 0 ? QString() : line.mid(blank + 1);
        if (keyword == QStringLiteral("defaults")) {
            current = &defaults;
            continue;
        }
        if (keyword != QStringLiteral("account")) {
            apply(*current, keyword, argumentOf(rest));
            continue;
        }
        const QString name = rest.section(QLatin1Char(':'), 0, 0).trimmed();
        const QStringList parents =
            rest.section(QLatin1Char(':'), 1).split(QLatin1Char(','), Qt::SkipEmptyParts);
        if (name.isEmpty()) {
            current = &discarded;
            continue;
        }
        if (name == QStringLiteral("default") && parents.size() == 1) {
            // Names the default account; the lines under it change nothing.
            config.defaultName = parents.front().trimmed();
            current = &discarded;
            continue;
        }
        MailAccount account = defaults;
        for (const QString& parent : parents) {
            if (const MailAccount* from = accountNamed(config.accounts, parent.trimmed())) {
                account = *from;
            }
        }
        account.name = name;
        config.accounts.push_back(account);
        current = &config.accounts.back();
    }
    return config;
}

namespace {

std::optional<MailConfig> readMailConfig(const QString& configPath) {
    if (configPath.isEmpty()) {
        return std::nullopt;
    }
    const std::optional<QString> text = readTextFile(configPath);
    if (!text) {
        return std::nullopt;
    }
    return parseMailConfig(*text);
}

std::optional<MailAccount> usable(const MailAccount* account) {
    if (account == nullptr || account->host.isEmpty()) {
        return std::nullopt;
    }
    return *account;
}

}  // namespace

std::optional<MailAccount> defaultMailAccount(const QString& configPath) {
    const std::optional<MailConfig> config = readMailConfig(configPath);
    if (!config || config->accounts.empty()) {
        return std::nullopt;
    }
    const MailAccount* account = accountNamed(config->accounts, config->defaultName);
    if (account == nullptr) {
        account = accountNamed(config->accounts, QStringLiteral("default"));
    }
    return usable(account != nullptr ? account : &config->accounts.front());
}

std::optional<MailAccount> mailAccountNamed(const QString& configPath, const QString& name) {
    const std::optional<MailConfig> config = readMailConfig(configPath);
    return config ? usable(accountNamed(config->accounts, name)) : std::nullopt;
}

void readMailFacts(Environment& env, const QString& configPath) {
    if (const std::optional<MailAccount> account = defaultMailAccount(configPath)) {
        env.gMapiProfile = account->name;
        env.gOutlookInstalled = !account->from.isEmpty();
    }
}
