#pragma once

#include <QString>

struct Workspace;

// The body of an agent's schedule mail: an empty first line, the month's mail text, an empty
// line, then one line for each shift the agent works, by date and shift:
// "     January 5   (Tuesday)    8am-12pm". Day and weekday are padded so that the shift
// texts stand in one column in a fixed-pitch font. A shift is listed once even where the
// agent fills two of its slots; an agent without shifts gets the text alone.
QString agentMailBody(const Workspace& ws, int agent);
