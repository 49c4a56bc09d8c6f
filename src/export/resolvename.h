#pragma once

#include <QString>

struct Context;
struct Workspace;

// Looks a name or an address up in the user's address book (the vCard files of its folder)
// and returns the address it stands for. Where several addresses match, the user chooses one;
// a Cancel there, and a text that matches none, give the empty text.
QString modResolveName(const Workspace& ws, Context& ctx, const QString& name);
