#pragma once

#include "environment/environment.h"
#include "generation/randomsequence.h"

class Clock;
class Dialogs;
class RegistryStore;

// The services every part of the program uses, passed in beside the Workspace.
struct Context {
    Clock& clock;
    Dialogs& dialogs;
    RegistryStore& registry;
    Environment env;
    RandomSequence random{};
};
