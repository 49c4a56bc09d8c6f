#pragma once

#include <QFrame>

class ElidedLabel;
class QLabel;

// A day's box in a month's calendar: the day's text fills it, and the day's number stands in
// its top right corner, where the text's first line stops short of it. Its size is a fixed
// number of lines of a given width, so that a calendar of such boxes knows its size before
// any day is shown; where something beside the calendar needs the room, the box gives way
// down to the width of a narrower sample.
class DayCell : public QFrame {
    Q_OBJECT

public:
    DayCell(const QString& widthSample, const QString& leastSample, int lines, QWidget* parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    // A marked box stands out in the palette's highlight, as a chosen item does.
    void setMarked(bool marked);

    ElidedLabel* text;
    QLabel* number;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QSize size_;
    QSize least_;
};
