#pragma once

#include "core/services/surface.h"

#include <functional>

// A surface that passes every call on to another and writes it down first, one line a call
// in the printer's own terms, positions in inches and sizes in points, as "FontSize = 12",
// "Line (0.25, 0.2)-(10.36, 0.7), , B" or "Print "Monday";". A call that gives something
// back writes what it gave: "TextWidth("Monday") -> 0.7". A printed text is followed by
// where it stood: "Print "Monday"  ' at (1.2, 0.8)".
class TracingSurface final : public Surface {
public:
    using Sink = std::function<void(const QString& line)>;

    TracingSurface(Surface& inner, Sink sink);

    int Orientation() const override;
    void setOrientation(int orientation) override;
    void setScaleMode(int mode) override;
    void setScaleWidth(double width) override;
    void setScaleHeight(double height) override;
    void setFontName(const QString& name) override;
    double FontSize() const override;
    void setFontSize(double points) override;
    void setFontBold(bool bold) override;
    void setFontItalic(bool italic) override;
    void setFontTransparent(bool transparent) override;
    void setFillStyle(int style) override;
    void setFillColor(int color) override;
    double CurrentX() const override;
    double CurrentY() const override;
    void setCurrentX(double x) override;
    void setCurrentY(double y) override;
    double TextWidth(const QString& text) override;
    double TextHeight(const QString& text) override;
    void Print(const QString& text) override;
    void PrintKeepingLine(const QString& text) override;
    void Line(double x1, double y1, double x2, double y2) override;
    void LineTo(double x2, double y2) override;
    void Box(double x1, double y1, double x2, double y2) override;
    void EndDoc() override;
    int FontCount() const override;
    QString Fonts(int index) const override;
    QString DeviceName() const override;

private:
    void write(const QString& line) const;
    QString at() const;

    Surface& inner_;
    Sink sink_;
};

// A number as the trace writes it: at most four decimals, no trailing zeros.
QString traceNumber(double value);
