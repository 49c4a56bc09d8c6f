#pragma once

class Surface;
struct Context;
struct Workspace;

// The wall chart of the month on one landscape page: the title, the weekday heads, a cell a
// day with its shifts, times and agents, and the notes. A weekly table that needs more lines
// than a cell holds prints smaller: the font and the spacing of the cells follow from the
// busiest weekday. One copy, ended by its EndDoc.
void printFullCalendarCopy(const Workspace& ws, const Context& ctx, Surface& printer);

// The layout of the cells chosen from the weekly table: -1 large, time hidden; 0 normal; 1
// normal size, tight lines; 2 small, two agents a line.
int calendarFontMode(const Workspace& ws);
