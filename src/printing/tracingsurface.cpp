#include "printing/tracingsurface.h"

#include "core/model/numbers.h"

namespace {

QString quoted(const QString& text) {
    QString escaped = text;
    escaped.replace(QLatin1Char('"'), QStringLiteral("\"\""));
    escaped.replace(QLatin1Char('\r'), QStringLiteral("\\r"));
    escaped.replace(QLatin1Char('\n'), QStringLiteral("\\n"));
    return QLatin1Char('"') + escaped + QLatin1Char('"');
}

QString truth(bool value) {
    return value ? QStringLiteral("True") : QStringLiteral("False");
}

QString point(double x, double y) {
    return QLatin1Char('(') + traceNumber(x) + QStringLiteral(", ") + traceNumber(y) +
           QLatin1Char(')');
}

}  // namespace

QString traceNumber(double value) {
    return decimalText(value, 4);
}

TracingSurface::TracingSurface(Surface& inner, Sink sink) : inner_(inner), sink_(std::move(sink)) {}

void TracingSurface::write(const QString& line) const {
    sink_(line);
}

QString TracingSurface::at() const {
    return QStringLiteral("  ' at ") + point(inner_.CurrentX(), inner_.CurrentY());
}

int TracingSurface::Orientation() const {
    const int value = inner_.Orientation();
    write(QStringLiteral("Orientation -> ") + QString::number(value));
    return value;
}

void TracingSurface::setOrientation(int orientation) {
    write(QStringLiteral("Orientation = ") + QString::number(orientation));
    inner_.setOrientation(orientation);
}

void TracingSurface::setScaleMode(int mode) {
    write(QStringLiteral("ScaleMode = ") + QString::number(mode));
    inner_.setScaleMode(mode);
}

void TracingSurface::setScaleWidth(double width) {
    write(QStringLiteral("ScaleWidth = ") + traceNumber(width));
    inner_.setScaleWidth(width);
}

void TracingSurface::setScaleHeight(double height) {
    write(QStringLiteral("ScaleHeight = ") + traceNumber(height));
    inner_.setScaleHeight(height);
}

void TracingSurface::setFontName(const QString& name) {
    write(QStringLiteral("FontName = ") + quoted(name));
    inner_.setFontName(name);
}

double TracingSurface::FontSize() const {
    const double value = inner_.FontSize();
    write(QStringLiteral("FontSize -> ") + traceNumber(value));
    return value;
}

void TracingSurface::setFontSize(double points) {
    write(QStringLiteral("FontSize = ") + traceNumber(points));
    inner_.setFontSize(points);
}

void TracingSurface::setFontBold(bool bold) {
    write(QStringLiteral("FontBold = ") + truth(bold));
    inner_.setFontBold(bold);
}

void TracingSurface::setFontItalic(bool italic) {
    write(QStringLiteral("FontItalic = ") + truth(italic));
    inner_.setFontItalic(italic);
}

void TracingSurface::setFontTransparent(bool transparent) {
    write(QStringLiteral("FontTransparent = ") + truth(transparent));
    inner_.setFontTransparent(transparent);
}

void TracingSurface::setFillStyle(int style) {
    write(QStringLiteral("FillStyle = ") + QString::number(style));
    inner_.setFillStyle(style);
}

void TracingSurface::setFillColor(int color) {
    write(QStringLiteral("FillColor = ") + QString::number(color));
    inner_.setFillColor(color);
}

double TracingSurface::CurrentX() const {
    const double value = inner_.CurrentX();
    write(QStringLiteral("CurrentX -> ") + traceNumber(value));
    return value;
}

double TracingSurface::CurrentY() const {
    const double value = inner_.CurrentY();
    write(QStringLiteral("CurrentY -> ") + traceNumber(value));
    return value;
}

void TracingSurface::setCurrentX(double x) {
    write(QStringLiteral("CurrentX = ") + traceNumber(x));
    inner_.setCurrentX(x);
}

void TracingSurface::setCurrentY(double y) {
    write(QStringLiteral("CurrentY = ") + traceNumber(y));
    inner_.setCurrentY(y);
}

double TracingSurface::TextWidth(const QString& text) {
    const double value = inner_.TextWidth(text);
    write(QStringLiteral("TextWidth(") + quoted(text) + QStringLiteral(") -> ") +
          traceNumber(value));
    return value;
}

double TracingSurface::TextHeight(const QString& text) {
    const double value = inner_.TextHeight(text);
    write(QStringLiteral("TextHeight(") + quoted(text) + QStringLiteral(") -> ") +
          traceNumber(value));
    return value;
}

void TracingSurface::Print(const QString& text) {
    write(text.isEmpty() ? QStringLiteral("Print") + at()
                         : QStringLiteral("Print ") + quoted(text) + at());
    inner_.Print(text);
}

void TracingSurface::PrintKeepingLine(const QString& text) {
    write(QStringLiteral("Print ") + quoted(text) + QLatin1Char(';') + at());
    inner_.PrintKeepingLine(text);
}

void TracingSurface::Line(double x1, double y1, double x2, double y2) {
    write(QStringLiteral("Line ") + point(x1, y1) + QLatin1Char('-') + point(x2, y2));
    inner_.Line(x1, y1, x2, y2);
}

void TracingSurface::LineTo(double x2, double y2) {
    write(QStringLiteral("Line -") + point(x2, y2));
    inner_.LineTo(x2, y2);
}

void TracingSurface::Box(double x1, double y1, double x2, double y2) {
    write(QStringLiteral("Line ") + point(x1, y1) + QLatin1Char('-') + point(x2, y2) +
          QStringLiteral(", , B"));
    inner_.Box(x1, y1, x2, y2);
}

void TracingSurface::EndDoc() {
    write(QStringLiteral("EndDoc"));
    inner_.EndDoc();
}

int TracingSurface::FontCount() const {
    const int value = inner_.FontCount();
    write(QStringLiteral("FontCount -> ") + QString::number(value));
    return value;
}

QString TracingSurface::Fonts(int index) const {
    const QString value = inner_.Fonts(index);
    write(QStringLiteral("Fonts(") + QString::number(index) + QStringLiteral(") -> ") +
          quoted(value));
    return value;
}

QString TracingSurface::DeviceName() const {
    const QString value = inner_.DeviceName();
    write(QStringLiteral("DeviceName -> ") + quoted(value));
    return value;
}
