#include "core/services/surface.h"

#include <QtGlobal>

#include <limits>

void modSetOrientation(Surface& printer, int value) {
    if (value >= std::numeric_limits<qint16>::min() &&
        value <= std::numeric_limits<qint16>::max()) {
        printer.setOrientation(value);
    }
}
