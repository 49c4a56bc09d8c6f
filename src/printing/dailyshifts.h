#pragma once

class Surface;
struct Context;
struct Workspace;

// The weekly shift table on one portrait page: the seven weekdays in two rows of columns,
// each shift's time with the number of its agents when more than one, in a box under a
// title box. Only the Wednesday column decides the box's width. The printer's orientation
// is put back afterwards.
void printDailyShifts(const Workspace& ws, const Context& ctx, Surface& printer);
