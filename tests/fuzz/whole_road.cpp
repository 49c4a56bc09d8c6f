#include "fuzzing.h"

// The whole road of a schedule file: open, look over, print and export, then every engine.
// It reaches every index that comes from a file or from the calendar's arithmetic.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    travelWholeRoad(scratchFile(QStringLiteral("road.dko"), inputBytes(data, size)));
    return 0;
}
