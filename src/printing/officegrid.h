#pragma once

class Surface;
struct Workspace;

// The office's month at a glance on one landscape page: a row an agent, a column a day, and
// a grey square where the agent is on duty. One copy, ended by its EndDoc.
void printOfficeGridCopy(const Workspace& ws, Surface& printer);

// The font size of the names and day numbers for that many agents.
double gridFontSize(int agentCount);
