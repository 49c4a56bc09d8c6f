#include "fuzzing.h"

#include "shell/windowplace.h"

#include <algorithm>

// The window's remembered place: a place read from any file has a size, reads back as it was
// kept, and is put wholly on a screen whatever screens the machine has now.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString path = scratchFile(QStringLiteral("window.ini"), inputBytes(data, size));
    const std::optional<WindowPlace> place = readWindowPlace(path);
    if (!place) {
        return 0;
    }
    require(!place->normal.isEmpty(), "a place read has a size");
    require(writeWindowPlace(path, *place) && readWindowPlace(path) == place,
            "a place kept reads back as it was");
    static const QMargins frame(4, 28, 4, 4);
    static const QList<QList<QRect>> machines = {
        {QRect(0, 0, 1280, 1024)},
        {QRect(0, 0, 1920, 1050), QRect(-1280, 200, 1280, 1024)},
        {QRect(0, 0, 800, 600)},
    };
    for (const QList<QRect>& areas : machines) {
        const QRect placed = placeOnScreens(*place, areas, frame).normal;
        require(std::any_of(areas.begin(), areas.end(),
                            [&](const QRect& area) { return (area - frame).contains(placed); }),
                "a place is put wholly on a screen");
    }
    return 0;
}
