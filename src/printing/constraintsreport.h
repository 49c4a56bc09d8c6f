#pragma once

#include <QStringList>

#include <array>

class Surface;
struct Context;
struct Workspace;

// The lines of the four lists of the month's constraints, as the view of all constraints
// shows them: vacation days, shift restrictions, holidays, noted days.
using ConstraintLists = std::array<QStringList, 4>;

// The four lists on one portrait page under a title box with the month and the year, each
// list that has lines under its heading, the font lowered until all fits the page. False
// when every list is empty: then nothing is printed, no document is ended and the printer
// keeps its portrait orientation; the caller leaves its own state as it is too.
bool printConstraints(const Workspace& ws, const Context& ctx, Surface& printer,
                      const ConstraintLists& lists);
