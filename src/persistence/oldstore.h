#pragma once

struct Context;
struct Workspace;

// Reads the store in which versions before 4.0.7 kept the workspace, below gRegistryBase,
// into the Workspace, as those versions read it: first the agents, the shifts, the
// restrictions, the fonts and the settings, then the month's days and the titles. Missing
// fonts, copies and display settings get their defaults, written back into the store.
// Whatever cannot be read stays empty.
void readOldStore(Workspace& ws, Context& ctx);
