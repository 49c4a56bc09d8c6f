#include "shell/forms/windowkeeper.h"

#include "core/forms/facewindow.h"
#include "shell/windowplace.h"

#include <QGuiApplication>
#include <QScreen>

void showWindowAsLeft(FaceWindow& window, const QString& placeFile) {
    if (const std::optional<WindowPlace> kept = readWindowPlace(placeFile)) {
        QList<QRect> areas;
        const QScreen* primary = QGuiApplication::primaryScreen();
        if (primary != nullptr) {
            areas.append(primary->availableGeometry());
        }
        for (const QScreen* display : QGuiApplication::screens()) {
            if (display != primary) {
                areas.append(display->availableGeometry());
            }
        }
        const WindowPlace place =
            placeOnScreens(*kept, areas, window.frameMargins(), window.minimumSize());
        window.setGeometry(place.normal);
        if (place.maximised) {
            window.showMaximized();
            return;
        }
    }
    window.show();
}

void keepWindowPlace(const FaceWindow& window, const QString& placeFile) {
    const bool maximised = window.isMaximized();
    writeWindowPlace(placeFile,
                     {maximised ? window.normalGeometry() : window.geometry(), maximised});
}
