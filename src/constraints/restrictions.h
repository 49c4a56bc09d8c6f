#pragma once

#include <QString>

#include <array>

struct Context;
struct Workspace;

// The rules of the shift restrictions editor, which shows one agent's standing restrictions
// at a time: a box for each shift each weekday has. The workspace takes the boxes on OK and
// when the editor turns to another agent.

// The boxes by weekday, box i standing for shift i + 1.
using RestrictionBoxes = std::array<std::array<bool, 6>, 7>;

// The log line naming the agent on show.
QString restrictionsLine(const Workspace& ws);

// The boxes of the agent on show, for the shifts each weekday has.
RestrictionBoxes restrictionBoxes(const Workspace& ws);

// The editor turns to the agent of the list index, storing the boxes for the one on show
// without asking. False when it is the agent on show, or when the file could not keep the
// boxes, which the user has been told.
bool switchRestrictionAgent(Workspace& ws, Context& ctx, int listIndex,
                            const RestrictionBoxes& boxes);

// OK: the boxes are stored for the agent on show and the working file is written. False, with
// nothing changed, when the file could not keep that many restrictions; the user has been
// told.
bool saveRestrictions(Workspace& ws, Context& ctx, const RestrictionBoxes& boxes);
