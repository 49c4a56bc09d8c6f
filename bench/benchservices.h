#pragma once

#include "core/services/clock.h"
#include "core/services/context.h"
#include "core/services/dialogs.h"
#include "core/services/registrystore.h"

// Message boxes are answered OK at once and measure nothing: the work timed shows none, so
// these only keep the services complete.
class SilentDialogs final : public Dialogs {
public:
    MsgAnswer messageBox(const QString&, MsgIcon, MsgButtons, int) override {
        return MsgAnswer::OK;
    }
    double textWidth(const QString&) const override { return 0.0; }
};

struct Services {
    SystemClock clock;
    SilentDialogs dialogs;
    MemoryRegistryStore registry;
    Context ctx{clock, dialogs, registry, {}};
};
