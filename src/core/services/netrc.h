#pragma once

#include <QString>

#include <optional>

// The password that a netrc file (~/.netrc, /etc/netrc) holds for a login at a machine, read
// as msmtp reads it: words separated by blanks, each may stand in single or double quotes; "#"
// at a word's start ends the line; "machine NAME" begins an entry, "login" or "user" names its
// login, "password" or "passwd" its password; "default" begins an entry that names no machine,
// "macdef" skips every line up to the next empty one, "account" takes a word that counts for
// nothing. An entry without a login counts for nothing. The first entry whose machine and login
// are exactly those asked for holds the password; nothing when none does or it has no password.
std::optional<QString> netrcPassword(const QString& text, const QString& machine,
                                     const QString& login);
