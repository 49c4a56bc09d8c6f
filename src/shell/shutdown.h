#pragma once

class MainView;
struct Context;
struct Workspace;

// The two roads out of a run. They differ on purpose: closing the window writes the working
// file before it asks, offers Cancel, ends even when the save was cancelled and closes the
// log; File Exit asks without Cancel, writes the working file after, stays open when the
// save was cancelled and leaves the log without its closing line. Each is true when the
// program is to end.

bool closeMainWindow(Workspace& ws, Context& ctx, MainView& view);
bool exitProgram(Workspace& ws, Context& ctx, MainView& view);
