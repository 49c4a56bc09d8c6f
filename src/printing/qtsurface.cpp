#include "printing/qtsurface.h"

#include <QPagedPaintDevice>

#include <algorithm>
#include <cmath>

namespace {

// The painter works in twentieths of a point, so that every size the printer holds is a
// whole number of its units.
constexpr double kUnitsPerInch = 1440.0;
constexpr double kPenWidth = 3.0;

QColor colorOf(int color) {
    return {color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF};
}

QRectF boxOf(double x1, double y1, double x2, double y2) {
    return QRectF(QPointF(x1 * kUnitsPerInch, y1 * kUnitsPerInch),
                  QPointF(x2 * kUnitsPerInch, y2 * kUnitsPerInch))
        .normalized();
}

// Where a length of `wanted` inches starts on paper of `paper` inches whose printable part
// runs from `from` for `printable` inches: in the middle of the paper, moved into the
// printable part.
double placed(double wanted, double paper, double from, double printable) {
    return std::clamp((paper - wanted) / 2.0, from, std::max(from, from + printable - wanted));
}

}  // namespace

QtSurface::QtSurface(PageTarget& target, QStringList fonts)
    : PageSurface(target.deviceName(), std::move(fonts)), target_(target) {
    fontChanged();
}

QtSurface::~QtSurface() {
    endDocument();
}

void QtSurface::fontChanged() {
    qfont_ = QFont(font().name);
    qfont_.setPixelSize(static_cast<int>(std::lround(font().size * 20.0)));
    qfont_.setBold(font().bold);
    qfont_.setItalic(font().italic);
    qfont_.setHintingPreference(QFont::PreferNoHinting);
    qfont_.setKerning(true);
    metrics_.reset();
    painterFontStale_ = true;
}

const QFontMetricsF& QtSurface::metrics() {
    if (!metrics_) {
        metrics_.emplace(qfont_);
    }
    return *metrics_;
}

double QtSurface::lineWidth(const QString& line) {
    return metrics().horizontalAdvance(line) / kUnitsPerInch;
}

double QtSurface::lineHeight() {
    return metrics().lineSpacing() / kUnitsPerInch;
}

bool QtSurface::drawing() {
    if (open_) {
        return true;
    }
    if (refused_) {
        return false;
    }
    QPagedPaintDevice* device = target_.startDocument(
        title_, Orientation() == 2 ? QPageLayout::Landscape : QPageLayout::Portrait);
    if (device == nullptr || !painter_.begin(device)) {
        if (device != nullptr) {
            target_.finishDocument();
        }
        refused_ = true;
        return false;
    }
    open_ = true;
    layOutScale(*device);
    painter_.setPen(QPen(Qt::black, kPenWidth));
    painterFontStale_ = true;
    return true;
}

void QtSurface::layOutScale(const QPagedPaintDevice& device) {
    const QPageLayout layout = device.pageLayout();
    const QRectF paper = layout.fullRectPoints();
    const QRectF printable = layout.paintRectPoints();
    const double points = 72.0;
    const double fit = std::min({1.0, printable.width() / points / scaleWidth(),
                                 printable.height() / points / scaleHeight()});
    const double left = placed(scaleWidth() * fit, paper.width() / points,
                               printable.left() / points, printable.width() / points);
    const double top = placed(scaleHeight() * fit, paper.height() / points,
                              printable.top() / points, printable.height() / points);
    const double dpiX = device.logicalDpiX();
    const double dpiY = device.logicalDpiY();
    painter_.translate((left - printable.left() / points) * dpiX,
                       (top - printable.top() / points) * dpiY);
    painter_.scale(fit * dpiX / kUnitsPerInch, fit * dpiY / kUnitsPerInch);
}

void QtSurface::drawText(double x, double y, const QString& line, bool onWhite) {
    if (!drawing()) {
        return;
    }
    if (painterFontStale_) {
        painter_.setFont(qfont_);
        painterFontStale_ = false;
    }
    const QPointF corner(x * kUnitsPerInch, y * kUnitsPerInch);
    if (onWhite) {
        painter_.fillRect(
            QRectF(corner, QSizeF(metrics().horizontalAdvance(line), metrics().lineSpacing())),
            Qt::white);
    }
    painter_.drawText(corner + QPointF(0.0, metrics().ascent()), line);
}

void QtSurface::drawLine(double x1, double y1, double x2, double y2) {
    if (drawing()) {
        painter_.drawLine(QPointF(x1 * kUnitsPerInch, y1 * kUnitsPerInch),
                          QPointF(x2 * kUnitsPerInch, y2 * kUnitsPerInch));
    }
}

void QtSurface::drawBox(double x1, double y1, double x2, double y2, std::optional<int> fill) {
    if (!drawing()) {
        return;
    }
    painter_.setBrush(fill ? QBrush(colorOf(*fill)) : QBrush(Qt::NoBrush));
    painter_.drawRect(boxOf(x1, y1, x2, y2));
}

void QtSurface::endDocument() {
    if (open_) {
        painter_.end();
        target_.finishDocument();
        open_ = false;
    }
    refused_ = false;
}
