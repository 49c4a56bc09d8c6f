#pragma once

#include <QString>

// Looks a name or an address up in the mail system's address book and returns the address
// it resolves to, or the empty text when it resolves to none.
QString modResolveName(const QString& name);
