#pragma once

#include <QString>

struct Workspace;

// What a day's cell of the month's calendar says, its lines broken by "\n": a holiday's name
// on the sixth line; otherwise the keys of each shift two to a line, joined by a slash (a
// shift of one agent has a line to itself), and a noted day's text on the sixth line, or
// right after the names when they reach it.
QString dayCaption(const Workspace& ws, int day);

// The day as a screen reader says it: "Friday, January 8".
QString spokenDate(const Workspace& ws, int day);

// A day's cell of the month's calendar as a screen reader says it: the date, then what the
// cell shows, its lines of names joined by commas and a note or a holiday's name after a
// semicolon: "Friday, January 8: Nakamura/Kowalski, Delgado/Hoffman; Staff meeting at 9am".
QString daySpokenText(const Workspace& ws, int day);
