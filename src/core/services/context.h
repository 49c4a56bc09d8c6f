#pragma once

#include "core/services/environment.h"
#include "core/services/events.h"
#include "core/services/launch.h"
#include "core/services/randomsequence.h"

class Clock;
class Dialogs;
class Machine;
class Printers;
class RegistryStore;

// The services every part of the program uses, passed in beside the Workspace.
struct Context {
    Clock& clock;
    Dialogs& dialogs;
    RegistryStore& registry;
    Environment env;
    RandomSequence random{};
    Launch launch{};
    // The printers of the run; none where nothing can be printed.
    Printers* printers = nullptr;
    // The machine the start-up asks for its facts; none where nothing is to be asked.
    const Machine* machine = nullptr;
    // The long commands' yields, and the end of the program that may come during one.
    Events events{};
};
