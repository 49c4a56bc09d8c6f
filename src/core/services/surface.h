#pragma once

#include <QString>

// The printer as the reports draw on it, in its own terms. Positions and sizes are in units
// of the page's user scale, which the reports set so that a unit is an inch; font sizes are
// in points. A value the printer cannot take is passed over: the setting keeps what it had,
// and the report goes on.
class Surface {
public:
    virtual ~Surface() = default;

    // 1 portrait, 2 landscape; it takes effect with the next document.
    virtual int Orientation() const = 0;
    virtual void setOrientation(int orientation) = 0;
    // 5 is inches; the page's user scale follows.
    virtual void setScaleMode(int mode) = 0;
    virtual void setScaleWidth(double width) = 0;
    virtual void setScaleHeight(double height) = 0;

    // A family among Fonts(); any other name is passed over.
    virtual void setFontName(const QString& name) = 0;
    // The size as the device rounded it.
    virtual double FontSize() const = 0;
    virtual void setFontSize(double points) = 0;
    virtual void setFontBold(bool bold) = 0;
    virtual void setFontItalic(bool italic) = 0;
    // Text leaves what is under it showing, or is printed on white.
    virtual void setFontTransparent(bool transparent) = 0;

    // How boxes are filled: 0 solid in FillColor, 1 transparent.
    virtual void setFillStyle(int style) = 0;
    // A colour as red + 256 * green + 65536 * blue.
    virtual void setFillColor(int color) = 0;

    // Where the next text stands, its top left corner.
    virtual double CurrentX() const = 0;
    virtual double CurrentY() const = 0;
    virtual void setCurrentX(double x) = 0;
    virtual void setCurrentY(double y) = 0;

    // The width of a text's widest line and the height of all its lines, in the current font.
    virtual double TextWidth(const QString& text) = 0;
    virtual double TextHeight(const QString& text) = 0;

    // Prints the text and ends the line: the position goes to the left edge of the next line.
    // An empty text only ends the line.
    virtual void Print(const QString& text) = 0;
    // Prints the text and keeps the line: the position stays behind the text.
    virtual void PrintKeepingLine(const QString& text) = 0;

    // A straight line; the position goes to its end.
    virtual void Line(double x1, double y1, double x2, double y2) = 0;
    // A straight line from the position; the position goes to its end.
    virtual void LineTo(double x2, double y2) = 0;
    // A box with its corners there, filled as FillStyle and FillColor say; the position goes
    // to the second corner.
    virtual void Box(double x1, double y1, double x2, double y2) = 0;

    // Ends the document: the job goes to the printer. Nothing happens when nothing was drawn.
    virtual void EndDoc() = 0;

    // The font families the printer offers, from 0; the empty text beyond them.
    virtual int FontCount() const = 0;
    virtual QString Fonts(int index) const = 0;
    virtual QString DeviceName() const = 0;
};

// Sets the printer's orientation: 1 portrait, 2 landscape. A value beyond 16 bits is passed
// over. Every command that may print puts back the orientation it found.
void modSetOrientation(Surface& printer, int value);
