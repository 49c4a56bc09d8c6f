#pragma once

#include "core/services/mailaccounts.h"

#include <QString>

#include <optional>

// The password of an account, or why there is none; the reason never holds a password.
struct AccountPassword {
    std::optional<QString> password;
    QString missing;
};

// The account's password as msmtp finds it. Without a login it needs none. Else the password
// line, else the first line that the passwordeval command prints (a command that fails or
// prints nothing gives no password, and nothing else is asked), else what the keyring holds
// under msmtp's attributes (host, service "smtp" and user; then under those of the older
// GNOME network passwords), else ~/.netrc, else /etc/netrc. The command runs each time this
// is asked: ask once and keep the answer.
AccountPassword accountPassword(const MailAccount& account);
