#include "printing/pagesurface.h"

#include "core/services/textfile.h"

#include <algorithm>
#include <cmath>

namespace {

// A printer holds font sizes in twentieths of a point.
double roundedFontSize(double points) {
    return std::round(points * 20.0) / 20.0;
}

}  // namespace

PageSurface::PageSurface(QString deviceName, QStringList fonts)
    : deviceName_(std::move(deviceName)), fonts_(std::move(fonts)) {}

void PageSurface::setOrientation(int orientation) {
    if (orientation == 1 || orientation == 2) {
        orientation_ = orientation;
    }
}

// Every mode the printer knows is taken; the reports' positions are inches of the user
// scale in any case.
void PageSurface::setScaleMode(int mode) {
    Q_UNUSED(mode);
}

void PageSurface::setScaleWidth(double width) {
    if (std::isfinite(width) && width > 0) {
        scaleWidth_ = width;
    }
}

void PageSurface::setScaleHeight(double height) {
    if (std::isfinite(height) && height > 0) {
        scaleHeight_ = height;
    }
}

void PageSurface::setFontName(const QString& name) {
    const auto known = std::find_if(fonts_.cbegin(), fonts_.cend(), [&name](const QString& font) {
        return font.compare(name, Qt::CaseInsensitive) == 0;
    });
    if (known != fonts_.cend()) {
        font_.name = *known;
        fontChanged();
    }
}

void PageSurface::setFontSize(double points) {
    if (std::isfinite(points) && points >= kSmallestFontSize && points <= kLargestFontSize) {
        font_.size = roundedFontSize(points);
        fontChanged();
    }
}

void PageSurface::setFontBold(bool bold) {
    font_.bold = bold;
    fontChanged();
}

void PageSurface::setFontItalic(bool italic) {
    font_.italic = italic;
    fontChanged();
}

void PageSurface::setFillStyle(int style) {
    if (style >= 0 && style <= 7) {
        fillStyle_ = style;
    }
}

void PageSurface::setFillColor(int color) {
    if (color >= 0 && color <= 0xFFFFFF) {
        fillColor_ = color;
    }
}

void PageSurface::setCurrentX(double x) {
    if (std::isfinite(x)) {
        x_ = x;
    }
}

void PageSurface::setCurrentY(double y) {
    if (std::isfinite(y)) {
        y_ = y;
    }
}

double PageSurface::TextWidth(const QString& text) {
    double widest = 0.0;
    for (const QString& line : textLines(text)) {
        widest = std::max(widest, lineWidth(line));
    }
    return widest;
}

double PageSurface::TextHeight(const QString& text) {
    return static_cast<double>(textLines(text).size()) * lineHeight();
}

void PageSurface::print(const QString& text, bool endLine) {
    const QStringList lines = textLines(text);
    const double height = lineHeight();
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (!lines[i].isEmpty()) {
            drawText(x_, y_ + static_cast<double>(i) * height, lines[i], !transparent_);
        }
    }
    if (endLine) {
        x_ = 0.0;
        y_ += static_cast<double>(lines.size()) * height;
    } else {
        x_ += lineWidth(lines.last());
        y_ += static_cast<double>(lines.size() - 1) * height;
    }
}

void PageSurface::Print(const QString& text) {
    print(text, true);
}

void PageSurface::PrintKeepingLine(const QString& text) {
    print(text, false);
}

void PageSurface::Line(double x1, double y1, double x2, double y2) {
    if (std::isfinite(x1) && std::isfinite(y1) && std::isfinite(x2) && std::isfinite(y2)) {
        drawLine(x1, y1, x2, y2);
        x_ = x2;
        y_ = y2;
    }
}

void PageSurface::LineTo(double x2, double y2) {
    Line(x_, y_, x2, y2);
}

void PageSurface::Box(double x1, double y1, double x2, double y2) {
    if (std::isfinite(x1) && std::isfinite(y1) && std::isfinite(x2) && std::isfinite(y2)) {
        drawBox(x1, y1, x2, y2, fillStyle_ == 0 ? std::optional<int>(fillColor_) : std::nullopt);
        x_ = x2;
        y_ = y2;
    }
}

void PageSurface::EndDoc() {
    endDocument();
    x_ = 0.0;
    y_ = 0.0;
}
