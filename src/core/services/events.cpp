#include "core/services/events.h"

bool Events::doEvents() {
    if (!ending_ && run) {
        run();
    }
    return !ending_;
}

bool Events::runCommand(const std::function<void()>& command) {
    if (!ending_) {
        ++commands_;
        command();
        --commands_;
    }
    if (commands_ > 0 || !ending_) {
        return false;
    }
    ending_ = false;
    return true;
}

bool Events::putOffClose() {
    if (commands_ > 0) {
        ending_ = true;
    }
    return ending_;
}
