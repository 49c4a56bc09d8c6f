#pragma once

#include <functional>

struct Context;
struct Workspace;

// The four engines fill the month's positions of gSchedule with agent keys. Each is a
// function of the Workspace and the context's random sequence alone; the screen only
// watches through the progress callbacks. Each writes its own lines to the log.

// What the SmartRandom engine reports while it runs, so that a window can follow it.
struct SmartRandomProgress {
    // After each position of the sweep: the agent chosen and the share of positions done.
    std::function<void(int agent, double done)> placed;
    // Once, before the weekend repair pass begins.
    std::function<void()> repairing;
    // After each round of the repair pass: the last high agent looked at, or 0.
    std::function<void(int agent)> exchanged;
};

// Engine 0: scores every agent for each position and takes the lowest, then evens out
// weekend duty. Expects gSchedule erased; leaves gSelectedAgent at 0. Events run after each
// position, and the engine stops there once the program is ending.
void modGenerateSmartRandom(Workspace& ws, Context& ctx, const SmartRandomProgress& progress = {});

// Engine 1: deals the agents like a shuffled deck. Erases gSchedule itself. drawCounter is
// the running count of draws, which the engine changes.
void modGenerateShuffled(Workspace& ws, Context& ctx, int& drawCounter);

// Engines 2 and 3: the rota. cursor is the agent last placed (the next one takes the first
// position, if free); on return it is the agent placed last. They write every position and
// erase nothing. Horizontal goes day by day; Mixed serves Sundays, then Saturdays backward,
// then the other days.
void modGenerateSerialHorizontal(Workspace& ws, Context& ctx, int& cursor);
void modGenerateSerialMixed(Workspace& ws, Context& ctx, int& cursor);
