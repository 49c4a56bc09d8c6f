#pragma once

struct Workspace;

// Prepares the day editors after a schedule was read or generated: an empty calendar or
// grid title becomes the month's title.
void modFillDayEditorCombos(Workspace& ws);
