#pragma once

struct Context;
struct Workspace;

// Moves the workspace of a store left by a version before 4.0.7 into the working file, once,
// and removes that store; then checks that the working file is there, and tells the user
// when it is not: the program still runs, on an empty workspace with the defaults. Runs
// before the log's header, so its lines stand above it.
void modMigrateOrCheckStore(Workspace& ws, Context& ctx);
