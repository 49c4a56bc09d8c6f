#pragma once

struct Context;
struct Workspace;

// Proves by experiment that the user can write what the program writes: two values in the
// settings store, one in a key of its own, and a file Test.txt in the program directory,
// each read back and removed again. When the store fails the user is warned about it; when
// only the file fails, about the program directory. True when both held.
bool modCheckRights(const Workspace& ws, Context& ctx);
