#pragma once

struct Context;
struct Workspace;

// Checks at start that the working file is there, and tells the user when it is not: the
// program still runs, on an empty workspace with the defaults.
void modMigrateOrCheckStore(Workspace& ws, Context& ctx);
