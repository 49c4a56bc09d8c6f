#pragma once

#include "core/services/surface.h"

#include <QStringList>

#include <optional>

// The printer object's own rules, whatever device lies beneath: it keeps the orientation,
// the page's user scale, the font, the fill and the position, passes over the values a
// printer refuses, and moves the position as printing and drawing do. The device measures
// and draws; it works in the units of the user scale.
class PageSurface : public Surface {
public:
    // The smallest and largest font sizes a printer takes, in points.
    static constexpr double kSmallestFontSize = 1.0;
    static constexpr double kLargestFontSize = 2160.0;

    PageSurface(QString deviceName, QStringList fonts);

    int Orientation() const override { return orientation_; }
    void setOrientation(int orientation) override;
    void setScaleMode(int mode) override;
    void setScaleWidth(double width) override;
    void setScaleHeight(double height) override;
    void setFontName(const QString& name) override;
    double FontSize() const override { return font_.size; }
    void setFontSize(double points) override;
    void setFontBold(bool bold) override;
    void setFontItalic(bool italic) override;
    void setFontTransparent(bool transparent) override { transparent_ = transparent; }
    void setFillStyle(int style) override;
    void setFillColor(int color) override;
    double CurrentX() const override { return x_; }
    double CurrentY() const override { return y_; }
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
    int FontCount() const override { return static_cast<int>(fonts_.size()); }
    QString Fonts(int index) const override { return fonts_.value(index); }
    QString DeviceName() const override { return deviceName_; }

protected:
    struct Font {
        QString name = QStringLiteral("Times New Roman");
        double size = 12.0;
        bool bold = false;
        bool italic = false;
    };

    const Font& font() const { return font_; }
    double scaleWidth() const { return scaleWidth_; }
    double scaleHeight() const { return scaleHeight_; }

    // Called when the font changes, before the next measure.
    virtual void fontChanged() {}
    // The width of one line of text and the height of a line, in the current font.
    virtual double lineWidth(const QString& line) = 0;
    virtual double lineHeight() = 0;
    // One line of text with its top left corner there; on white when the font is not
    // transparent.
    virtual void drawText(double x, double y, const QString& line, bool onWhite) = 0;
    virtual void drawLine(double x1, double y1, double x2, double y2) = 0;
    // fill is the colour inside the box, or nothing for none.
    virtual void drawBox(double x1, double y1, double x2, double y2, std::optional<int> fill) = 0;
    // Ends the document, if one was begun.
    virtual void endDocument() = 0;

private:
    void print(const QString& text, bool endLine);

    QString deviceName_;
    QStringList fonts_;
    int orientation_ = 1;
    double scaleWidth_ = 8.5;
    double scaleHeight_ = 11.0;
    Font font_;
    bool transparent_ = true;
    int fillStyle_ = 1;
    int fillColor_ = 0;
    double x_ = 0.0;
    double y_ = 0.0;
};
