#pragma once

struct Context;
struct Workspace;

// The month stepper moved to barValue. Only the difference from its last value counts: +1
// is the month before, -1 the month after; any other difference (a drag of the thumb, or a
// step after a refused one) erases the month's data all the same and keeps the month. A
// month with data asks first; false when the user kept it, and the bar's value is then not
// taken, so the next step is out of step.
bool changeMonth(Workspace& ws, Context& ctx, int barValue);
