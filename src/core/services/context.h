#pragma once

#include "core/services/environment.h"
#include "core/services/randomsequence.h"

#include <QString>

#include <cstdint>
#include <optional>

class Clock;
class Dialogs;
class RegistryStore;

// What a run was started with, read from its environment by the program's entry point.
struct Launch {
    // The program directory: the working file and the log live there.
    QString home;
    // The random sequence's first state, when the run is to repeat another draw for draw.
    std::optional<std::uint32_t> seed;
    // How long the splash stands, in milliseconds; 0 for none.
    int splashMs = 7500;
};

// The services every part of the program uses, passed in beside the Workspace.
struct Context {
    Clock& clock;
    Dialogs& dialogs;
    RegistryStore& registry;
    Environment env;
    RandomSequence random{};
    Launch launch{};
};
