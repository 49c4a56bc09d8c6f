#pragma once

struct Context;
struct Workspace;

// Chooses the month to schedule at start: always the month after today's. When the working
// file was saved for another month, that month's data are dropped; the weekly table, the
// agents and their restrictions stay.
void modStartMonth(Workspace& ws, Context& ctx);
