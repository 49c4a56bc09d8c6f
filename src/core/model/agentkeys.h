#pragma once

#include <QString>

struct Workspace;

// Rebuilds gAgentKey (last name, with a suffix from the first name where last names are
// shared) and gAgentFirstKey (the same built from the first name) for every agent.
void modBuildAgentKeys(Workspace& ws);

// The label a schedule cell prints as: the cell itself, or, when first names are printed,
// the first-name key of the first agent whose key the cell holds (empty when none does).
QString modGetDesiredName(const Workspace& ws, const QString& cell);
