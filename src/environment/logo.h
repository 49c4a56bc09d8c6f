#pragma once

#include <QColor>
#include <QIcon>
#include <QImage>

// Desko's logo: a calendar page whose header band carries two rings and whose days are a
// grid of duty slots, two of its diagonals taken in turn, the way a rota goes round.

// The logo in its own colours, on a transparent square of the given side in pixels.
QImage drawLogo(int side);

// The same shape pressed into a surface of the given colour: no colours of its own, only
// the light and the shadow of its edges, as if embossed in the surface.
QImage drawEmbossedLogo(int side, const QColor& surface);

// The logo as the program's icon, drawn for each size a desktop shows it at.
QIcon logoIcon();
