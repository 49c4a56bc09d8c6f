#pragma once

struct Context;
struct Workspace;

// The sections of a file that grow with the office: they are read by running numbers, whose
// key names pass through the reader's buffer, so none may hold more than kMostRows rows. The
// program never writes a file that it could not read back whole.
enum class RowSection { Agents, Vacations, Restrictions };

// The rows the section of the workspace's files holds.
int sectionRows(const Workspace& ws, RowSection section);

// Whether a file of the workspace would be read back whole.
bool readsBackWhole(const Workspace& ws);

// Whether the section may hold that many rows. When it may not, the user is told the limit
// and what to do about it.
bool roomForRows(Context& ctx, RowSection section, int rows);
