#include "shell/windowplace.h"

#include "core/services/textfile.h"
#include "persistence/profilefile.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <cstdlib>

namespace {

const QString kSection = QStringLiteral("Window");

// No window reaches further than Qt's largest window size from the desktop's origin; the
// edges of a place within it are whole numbers.
constexpr int kFarthest = 16777215;

// A whole number the file gives for the key; nothing for a missing or garbled one, or one
// that no screen has.
std::optional<int> number(const ProfileFile& file, const QString& key) {
    bool ok = false;
    const int value = file.value(kSection, key).toInt(&ok);
    return ok && std::abs(value) <= kFarthest ? std::optional<int>(value) : std::nullopt;
}

// The rectangle moved and shrunk as little as it takes to lie inside the area.
QRect inside(const QRect& rect, const QRect& area) {
    const QSize size = rect.size().boundedTo(area.size());
    const int left = std::clamp(rect.left(), area.left(), area.right() - size.width() + 1);
    const int top = std::clamp(rect.top(), area.top(), area.bottom() - size.height() + 1);
    return {QPoint(left, top), size};
}

}  // namespace

std::optional<WindowPlace> readWindowPlace(const QString& path) {
    const std::optional<QString> text = readTextFile(path);
    if (!text) {
        return std::nullopt;
    }
    const ProfileFile file(*text, path);
    const auto left = number(file, QStringLiteral("Left"));
    const auto top = number(file, QStringLiteral("Top"));
    const auto width = number(file, QStringLiteral("Width"));
    const auto height = number(file, QStringLiteral("Height"));
    const auto maximised = number(file, QStringLiteral("Maximized"));
    if (!left || !top || !width || !height || *width <= 0 || *height <= 0) {
        return std::nullopt;
    }
    return WindowPlace{QRect(*left, *top, *width, *height), maximised.value_or(0) == 1};
}

bool writeWindowPlace(const QString& path, const WindowPlace& place) {
    if (path.isEmpty()) {
        return false;
    }
    QDir().mkpath(QFileInfo(path).absolutePath());
    const QRect& normal = place.normal;
    return writeTextFile(
        path,
        QStringLiteral("[%1]\r\nLeft=%2\r\nTop=%3\r\nWidth=%4\r\nHeight=%5\r\nMaximized=%6\r\n")
            .arg(kSection)
            .arg(normal.left())
            .arg(normal.top())
            .arg(normal.width())
            .arg(normal.height())
            .arg(place.maximised ? 1 : 0));
}

WindowPlace placeOnScreens(const WindowPlace& saved, const QList<QRect>& areas,
                           const QMargins& frame, const QSize& least) {
    if (areas.isEmpty()) {
        return saved;
    }
    const QPoint middle = saved.normal.center();
    const auto on = std::find_if(areas.cbegin(), areas.cend(),
                                 [&](const QRect& area) { return area.contains(middle); });
    // The window's inside may use what the area leaves it within the frame.
    const QRect room = (on != areas.cend() ? *on : areas.front()) - frame;
    // A window kept smaller than its faces need now, by an earlier version or at another
    // scale, opens at the size they need, and is placed at that size.
    QRect normal(saved.normal.topLeft(), saved.normal.size().expandedTo(least));
    if (on == areas.cend()) {
        normal.setSize(normal.size().boundedTo(room.size()));
        normal.moveCenter(room.center());
    }
    return {inside(normal, room), saved.maximised};
}
