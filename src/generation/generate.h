#pragma once

#include "generation/engines.h"

#include <optional>

struct Context;
struct Workspace;

// The engines by their list index in the engine list.
inline constexpr int kEngineSmartRandom = 0;
inline constexpr int kEngineShuffled = 1;
inline constexpr int kEngineHorizontal = 2;
inline constexpr int kEngineMixed = 3;

// The positions of the busiest weekday of the weekly table: the most agents any one
// weekday needs.
int busiestWeekdayPositions(const Workspace& ws);

// The generate command up to the engine: asks whether to replace a schedule and whether to
// go on where the table needs more agents than the rules allow, logs the warnings, marks
// the workspace changed, rewrites the month's texts and chooses the engine by listIndex
// (nothing chosen, -1, is SmartRandom). False when the user stopped; the schedule is then
// untouched.
bool prepareGenerate(Workspace& ws, Context& ctx, int listIndex);

// Erases the schedule and runs the engine of gEngine. A serial engine starts after the
// agent drawn at random, or after serialCursor when one is given. An engine that stops
// because the program is ending leaves the schedule as it was before.
void runEngine(Workspace& ws, Context& ctx, const SmartRandomProgress& progress = {},
               std::optional<int> serialCursor = std::nullopt);
