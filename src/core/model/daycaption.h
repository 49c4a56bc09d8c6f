#pragma once

#include <QString>

struct Workspace;

// What a day's cell of the month's calendar says, its lines broken by "\n": a holiday's name
// on the sixth line; otherwise the keys of each shift two to a line, joined by a slash (a
// shift of one agent has a line to itself), and a noted day's text on the sixth line, or
// right after the names when they reach it.
QString dayCaption(const Workspace& ws, int day);
