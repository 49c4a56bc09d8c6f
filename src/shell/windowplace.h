#pragma once

#include <QList>
#include <QMargins>
#include <QRect>
#include <QString>

#include <optional>

// Where the program's window stood when a run ended, so that the next run shows it there
// again. It is kept in a file of its own, apart from the working file and the settings
// store:
//
//   [Window]
//   Left=120
//   Top=80
//   Width=1100
//   Height=760
//   Maximized=0
//
// Left, Top, Width and Height are the window's inside, without the frame the desktop puts
// around it, as it stands when it is not maximised.
struct WindowPlace {
    QRect normal;
    bool maximised = false;

    bool operator==(const WindowPlace&) const = default;
};

// The place kept in the file; nothing when the file is missing or does not give a whole
// place of a size above zero, or gives a number further than any screen reaches (beyond
// 16777215 either way).
std::optional<WindowPlace> readWindowPlace(const QString& path);

// Keeps the place in the file, making its folder if it is missing; false when the file
// cannot be written, which leaves the file as it was.
bool writeWindowPlace(const QString& path, const WindowPlace& place);

// The place the window takes among the screens' available areas, the primary screen's
// first, where its frame adds the given margins and it is at least of the given size: a
// place whose middle lies on an area stays on that area, moved and shrunk as far as the
// window with its frame needs to lie inside it; a place that lies on no area any more goes
// to the middle of the primary screen's area.
WindowPlace placeOnScreens(const WindowPlace& saved, const QList<QRect>& areas,
                           const QMargins& frame, const QSize& least = QSize());
