#pragma once

#include "core/services/environment.h"

#include <QString>

#include <optional>
#include <vector>

// A mail account as the user's msmtp configuration describes it: the plain format that many
// mail tools on Linux share.
struct MailAccount {
    QString name;
    QString host;
    int port = 0;  // 0: the usual port of the TLS mode, 465 for implicit TLS, else 25
    bool tls = false;
    bool starttls = true;  // with tls: STARTTLS on the plain port, else TLS from the start
    bool auth = false;     // "on" or a method name
    QString user;
    QString password;
    QString passwordEval;  // a command whose first line of output is the password
    QString from;
    QString trustFile;  // certificates to trust; empty or "system": the system's
    bool certCheck = true;
    int timeout = 0;  // seconds a server may stay silent; 0: the program's own limit

    int effectivePort() const { return port > 0 ? port : (tls && !starttls ? 465 : 25); }
};

struct MailConfig {
    std::vector<MailAccount> accounts;  // in the order of the file
    // The account that "account default : NAME" names, or the account called "default".
    QString defaultName;
};

// Reads the configuration as msmtp does: "defaults" sets what every later account starts
// from, "account NAME : OTHER, ..." starts an account and copies the settings of the
// accounts named, "account default : NAME" makes NAME the default. Lines it does not know
// are passed over; a value may stand in double quotes.
MailConfig parseMailConfig(const QString& text);

// The default account of the configuration file: the one "account default" names, else the
// first; nothing when the file is missing or unreadable, or when that account has no host.
std::optional<MailAccount> defaultMailAccount(const QString& configPath);

// What the machine's facts say of mail: the default account is the profile the mail goes out
// by, gMapiProfile; meeting requests need its sender's address, gOutlookInstalled. Without a
// usable account both stay empty and false.
void readMailFacts(Environment& env, const QString& configPath);

// The account of that name in the configuration file, if it has a host.
std::optional<MailAccount> mailAccountNamed(const QString& configPath, const QString& name);
