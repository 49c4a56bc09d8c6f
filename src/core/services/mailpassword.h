#pragma once

#include "core/services/mailaccounts.h"

#include <QString>

#include <optional>

// Where msmtp looks for the password of an account that logs in and has no password line,
// in its order: the desktop's keyring through the Secret Service, then the user's netrc file,
// then the system's.
struct PasswordPlaces {
    bool keyring = true;
    QString userNetrc;
    QString systemNetrc;
};

// The places of this machine: the keyring, ~/.netrc and /etc/netrc.
PasswordPlaces passwordPlacesOfThisMachine();

// The password of an account, or why there is none; the reason never holds a password.
struct AccountPassword {
    std::optional<QString> password;
    QString missing;
};

// The account's password as msmtp finds it. Without a login it needs none. Else the password
// line, else the first line that the passwordeval command prints (a command that fails or
// prints nothing gives no password, and the places are not asked), else what the keyring holds
// under msmtp's attributes (host, service "smtp" and user; then under those of the older
// GNOME network passwords), else the netrc files. The command runs each time this is asked:
// ask once and keep the answer.
AccountPassword accountPassword(const MailAccount& account, const PasswordPlaces& places);
