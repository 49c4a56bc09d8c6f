#include "environment/logo.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

#include <algorithm>
#include <cmath>

namespace {

// The drawing is laid out on a square of 256 units.
constexpr qreal kUnits = 256;

const QColor kInk(0x2e, 0x3a, 0x46);
const QColor kPaper(0xfb, 0xfa, 0xf6);
const QColor kHeader(0x1d, 0x7c, 0x83);
const QColor kFreeSlot(0xd9, 0xdd, 0xe0);
const QColor kFirstTurn(0xf0, 0xa0, 0x30);
const QColor kSecondTurn(0x6f, 0xb8, 0xbd);

constexpr int kRows = 3;
constexpr int kColumns = 4;

// The slot's colour: one rota runs down the main diagonal, the other two columns further.
QColor slotColour(int row, int column) {
    if (column == row) {
        return kFirstTurn;
    }
    if (column == (row + 2) % kColumns) {
        return kSecondTurn;
    }
    return kFreeSlot;
}

void paintLogo(QPainter& painter) {
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF page(28, 44, 200, 188);
    QPainterPath sheet;
    sheet.addRoundedRect(page, 24, 24);

    painter.fillPath(sheet, kPaper);
    painter.save();
    painter.setClipPath(sheet);
    painter.fillRect(QRectF(page.left(), page.top(), page.width(), 52), kHeader);
    painter.restore();
    painter.setPen(QPen(kInk, 8));
    painter.drawPath(sheet);

    // The rings that hold the page, standing over its top edge.
    painter.setPen(Qt::NoPen);
    painter.setBrush(kInk);
    for (const qreal x : {72.0, 168.0}) {
        painter.drawRoundedRect(QRectF(x, 24, 16, 44), 8, 8);
    }

    const QRectF grid(46, 112, 164, 102);
    constexpr qreal kGap = 8;
    const qreal width = (grid.width() - kGap * (kColumns - 1)) / kColumns;
    const qreal height = (grid.height() - kGap * (kRows - 1)) / kRows;
    for (int row = 0; row < kRows; ++row) {
        for (int column = 0; column < kColumns; ++column) {
            painter.setBrush(slotColour(row, column));
            painter.drawRoundedRect(QRectF(grid.left() + column * (width + kGap),
                                           grid.top() + row * (height + kGap), width, height),
                                    5, 5);
        }
    }
}

int luminance(QRgb pixel) {
    return qAlpha(pixel) == 0 ? 0 : qGray(pixel) * qAlpha(pixel) / 255;
}

}  // namespace

QImage drawLogo(int side) {
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.scale(side / kUnits, side / kUnits);
    paintLogo(painter);
    return image;
}

QImage drawEmbossedLogo(int side, const QColor& surface) {
    const QImage flat = drawLogo(side).convertToFormat(QImage::Format_ARGB32);
    QImage relief(side, side, QImage::Format_ARGB32);
    relief.fill(Qt::transparent);
    // Light falls from the upper left on a shape that stands out of the surface: an edge
    // where the shape grows brighter away from the light faces the light and shines, one
    // where it grows darker lies in its own shadow.
    const int reach = std::max(1, side / 96);
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const int towards =
                luminance(flat.pixel(std::max(0, x - reach), std::max(0, y - reach)));
            const int away =
                luminance(flat.pixel(std::min(side - 1, x + reach), std::min(side - 1, y + reach)));
            const int alpha =
                std::max({qAlpha(flat.pixel(x, y)), towards > 0 ? 255 : 0, away > 0 ? 255 : 0});
            if (alpha == 0) {
                continue;
            }
            const int slope = std::clamp(away - towards, -255, 255);
            const QColor shade = slope >= 0 ? surface.lighter(100 + slope * 70 / 255)
                                            : surface.darker(100 - slope * 90 / 255);
            relief.setPixel(x, y, qRgba(shade.red(), shade.green(), shade.blue(), alpha));
        }
    }
    return relief;
}

QIcon logoIcon() {
    QIcon icon;
    for (const int side : {16, 24, 32, 48, 64, 128, 256}) {
        icon.addPixmap(QPixmap::fromImage(drawLogo(side)));
    }
    return icon;
}
