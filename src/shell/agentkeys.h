#pragma once

struct Workspace;

// Rebuilds gAgentKey (last name, with a suffix from the first name where last names are
// shared) and gAgentFirstKey (the same built from the first name) for every agent.
void modBuildAgentKeys(Workspace& ws);
