#pragma once

#include <QScrollBar>

// The month stepper: a vertical bar whose arrows, the space between them, the wheel and the
// arrow and page keys each make one step of one, and a drag of its thumb a step of any size. A step
// is reported once the press that made it is over, never while the mouse button is still down: a
// question that a step asks then stands on its own, and no press repeats by itself behind it.
class MonthStepper : public QScrollBar {
    Q_OBJECT

public:
    explicit MonthStepper(QWidget* parent = nullptr);

signals:
    // The value moved: by a click, a notch of the wheel, a key, or a drag let go.
    void changed();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    int valueAtPress_ = 0;
    int wheelTurn_ = 0;
};
